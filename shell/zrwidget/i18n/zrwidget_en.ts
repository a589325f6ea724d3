<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ZrColumnFileGuard</name>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file isn&apos;t text in its encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a document type isn&apos;t allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elements are nested more than %1 deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has more than %1 nodes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrComfirmDialog</name>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrDialog</name>
    <message>
        <source>是否关闭</source>
        <translation>Close?</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ZrHelpMark</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrLinkageCombox</name>
    <message>
        <source>Linkage group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linkage groups</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrLoadingFrame</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrLogWidget</name>
    <message>
        <source>Waiting for data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrMessageBox</name>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrMultiComboBox</name>
    <message>
        <source>Selected items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrMultiComboList</name>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrPresenterClass</name>
    <message>
        <source>request timeout</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrShortCutKeyWidget</name>
    <message>
        <source>直接按键盘进行设置</source>
        <translation>Press the keys</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrTableModel</name>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seq.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrTableView</name>
    <message>
        <source>Summary of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrToastDialog</name>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrViewFilterWidget</name>
    <message>
        <source>Search box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrPluginBaseWidget</name>
    <message>
        <source>Plugin hasn&apos;t been initialized. Please do not close!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrCompleter</name>
    <message>
        <source>Securities</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrSearchBox</name>
    <message>
        <source>Tips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The security id is not supported!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrAlgoParamSettingWidget</name>
    <message>
        <source>提醒</source>
        <translation>Reminder</translation>
    </message>
    <message>
        <source>参数名</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>参数值</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>参数描述</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>不可为空！ </source>
        <translation> must not be empty! </translation>
    </message>
    <message>
        <source>不可大于</source>
        <translation> must not be above </translation>
    </message>
    <message>
        <source>不可大于等于</source>
        <translation> must be below </translation>
    </message>
    <message>
        <source>不可小于</source>
        <translation> must not be below </translation>
    </message>
    <message>
        <source>不可小于等于</source>
        <translation> must be above </translation>
    </message>
</context>
</TS>
