<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ZrColumnFileGuard</name>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>文件超过 %1 字节</translation>
    </message>
    <message>
        <source>the file isn&apos;t text in its encoding</source>
        <translation>文件内容与其编码不符</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>元素的属性超过 %1 个</translation>
    </message>
    <message>
        <source>a document type isn&apos;t allowed</source>
        <translation>不允许文档类型声明</translation>
    </message>
    <message>
        <source>elements are nested more than %1 deep</source>
        <translation>元素嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the file has more than %1 nodes</source>
        <translation>文件的节点超过 %1 个</translation>
    </message>
</context>
<context>
    <name>ZrComfirmDialog</name>
    <message>
        <source>确认</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
</context>
<context>
    <name>ZrHelpMark</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>ZrLinkageCombox</name>
    <message>
        <source>Linkage group</source>
        <translation>联动组</translation>
    </message>
    <message>
        <source>Linkage groups</source>
        <translation>联动组列表</translation>
    </message>
</context>
<context>
    <name>ZrLoadingFrame</name>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
</context>
<context>
    <name>ZrLogWidget</name>
    <message>
        <source>Waiting for data</source>
        <translation>正在等待数据</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
</context>
<context>
    <name>ZrMessageBox</name>
    <message>
        <source>确认</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>ZrMultiComboBox</name>
    <message>
        <source>Selected items</source>
        <translation>已选项</translation>
    </message>
</context>
<context>
    <name>ZrMultiComboList</name>
    <message>
        <source>Choices</source>
        <translation>选项</translation>
    </message>
</context>
<context>
    <name>ZrPresenterClass</name>
    <message>
        <source>request timeout</source>
        <translation>请求超时</translation>
    </message>
</context>
<context>
    <name>ZrShortCutKeyWidget</name>
    <message>
        <source>直接按键盘进行设置</source>
        <translation>直接按键盘进行设置</translation>
    </message>
    <message>
        <source>Shortcut key</source>
        <translation>快捷键</translation>
    </message>
</context>
<context>
    <name>ZrTableModel</name>
    <message>
        <source>Total</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Seq.</source>
        <translation>序号</translation>
    </message>
</context>
<context>
    <name>ZrTableView</name>
    <message>
        <source>Summary of %1</source>
        <translation>%1合计</translation>
    </message>
</context>
<context>
    <name>ZrToastDialog</name>
    <message>
        <source>Notice</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>ZrCompleter</name>
    <message>
        <source>Securities</source>
        <translation>证券</translation>
    </message>
</context>
<context>
    <name>ZrSearchBox</name>
    <message>
        <source>Tips</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>The security id is not supported!</source>
        <translation>不支持该证券代码！</translation>
    </message>
</context>
<context>
    <name>ZrAlgoParamSettingWidget</name>
    <message>
        <source>提醒</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>参数名</source>
        <translation>参数名</translation>
    </message>
    <message>
        <source>参数值</source>
        <translation>参数值</translation>
    </message>
    <message>
        <source>参数描述</source>
        <translation>参数描述</translation>
    </message>
    <message>
        <source>不可为空！ </source>
        <translation>不可为空！ </translation>
    </message>
    <message>
        <source>不可大于</source>
        <translation>不可大于</translation>
    </message>
    <message>
        <source>不可大于等于</source>
        <translation>不可大于等于</translation>
    </message>
    <message>
        <source>不可小于</source>
        <translation>不可小于</translation>
    </message>
    <message>
        <source>不可小于等于</source>
        <translation>不可小于等于</translation>
    </message>
</context>
</TS>
