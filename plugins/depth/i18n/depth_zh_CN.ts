<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ZrDepthPanel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Latest price</source>
        <translation>最新价</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>涨跌</translation>
    </message>
    <message>
        <source>Change in percent</source>
        <translation>涨跌幅</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>证券</translation>
    </message>
    <message>
        <source>Order book</source>
        <translation>盘口</translation>
    </message>
</context>
<context>
    <name>ZrDepthPlugin</name>
    <message>
        <source>Market depth</source>
        <translation>盘口行情</translation>
    </message>
</context>
</TS>
