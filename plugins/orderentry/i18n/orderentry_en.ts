<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ZrOrderEntryPanel</name>
    <message>
        <source>Buy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Validity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrOrderEntryPlugin</name>
    <message>
        <source>Order entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order %1 was accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No answer: the order may have arrived or not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order was not sent.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrOrderReports</name>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own orders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrOrderTicket</name>
    <message>
        <source>Choose a security.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a price above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The price must be a multiple of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The price must lie between %1 and %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a whole quantity above 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quantity must be a multiple of %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
