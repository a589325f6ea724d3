<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ZrBlotterToolBar</name>
    <message>
        <source>Blotter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freeze left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first columns stay in place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freeze right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last column stays in place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A check box in front of each row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New orders come into sight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leaves out finished orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sums of all orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delayed display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gathers new rows for 200 ms; stays on once chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A column that counts the rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>upwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>downwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The oldest orders leave beyond this</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrColumnTexts</name>
    <message>
        <source>Order no.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Market</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Validity</source>
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
        <source>Order value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Withdrawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report no.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trading account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Investor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>execution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrBlotterPlugin</name>
    <message>
        <source>Order blotter</source>
        <translation>Order blotter</translation>
    </message>
</context>
</TS>
