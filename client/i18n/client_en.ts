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
        <source>Skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours and pictures of all windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
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
    <name>ZrMainWindow</name>
    <message>
        <source>Trading workstation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order blotter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Showcase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page for each widget, with all its states</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrShowcase</name>
    <message>
        <source>Titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted upwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted downwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown at the pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filtered by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The head of a grid: sorting, filter buttons, bands over columns, a check box for all rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some checked, one disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frozen left and right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers and summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A live grid of keyed records, with check boxes, frozen columns, bands and a summary.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In shares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrStatusLine</name>
    <message>
        <source>Feed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 messages/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick to pixel: %1 ms median, %2 ms 99th percentile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
