<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ZrOrderEntryPanel</name>
    <message>
        <source>Buy</source>
        <translation>买入</translation>
    </message>
    <message>
        <source>Sell</source>
        <translation>卖出</translation>
    </message>
    <message>
        <source>Send order</source>
        <translation>下单</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>证券</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Validity</source>
        <translation>有效期</translation>
    </message>
</context>
<context>
    <name>ZrOrderEntryPlugin</name>
    <message>
        <source>Order entry</source>
        <translation>委托下单</translation>
    </message>
    <message>
        <source>Sending...</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>Order %1 was accepted.</source>
        <translation>委托 %1 已受理。</translation>
    </message>
    <message>
        <source>No answer: the order may have arrived or not.</source>
        <translation>没有应答：委托可能已到达，也可能没有。</translation>
    </message>
    <message>
        <source>The order was not sent.</source>
        <translation>委托未发出。</translation>
    </message>
</context>
<context>
    <name>ZrOrderReports</name>
    <message>
        <source>Order</source>
        <translation>委托编号</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>证券</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>成交</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Own orders</source>
        <translation>本窗口委托</translation>
    </message>
</context>
<context>
    <name>ZrOrderTicket</name>
    <message>
        <source>Choose a security.</source>
        <translation>请选择证券。</translation>
    </message>
    <message>
        <source>Choose an account.</source>
        <translation>请选择账户。</translation>
    </message>
    <message>
        <source>Enter a price above 0.</source>
        <translation>请输入大于 0 的价格。</translation>
    </message>
    <message>
        <source>The price must be a multiple of %1.</source>
        <translation>价格必须是 %1 的整数倍。</translation>
    </message>
    <message>
        <source>The price must lie between %1 and %2.</source>
        <translation>价格必须在 %1 与 %2 之间。</translation>
    </message>
    <message>
        <source>Enter a whole quantity above 0.</source>
        <translation>请输入大于 0 的整数数量。</translation>
    </message>
    <message>
        <source>The quantity must be a multiple of %1.</source>
        <translation>数量必须是 %1 的整数倍。</translation>
    </message>
</context>
</TS>
