<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ZrAccountBox</name>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account whose data are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All accounts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrDeskToolBar</name>
    <message>
        <source>Workstation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open plugin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another plugin on the desk</source>
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
</context>
<context>
    <name>ZrMainWindow</name>
    <message>
        <source>Trading workstation</source>
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
    <name>ZrPluginTitleBar</name>
    <message>
        <source>Open another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float or dock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
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
    <message>
        <source>Sell short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A row of buttons of which one can be chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>States</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A date that may be left empty; a digit fills in today.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With a calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text colours by flag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Markup stays text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A label whose look can be switched, and which carries its form&apos;s data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text field that carries its form&apos;s data and tells when the entry is finished.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Covers a plugin with a moving picture while its data load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before the first picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sixth picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over an empty grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>09:15:00 Connecting to the data service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>09:15:01 Securities are loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>09:15:02 Accounts are loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A moving picture for a time of waiting, with a log over it for who wants to know more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At rest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>09:15:03 Error: the data service does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Many lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A menu that carries data, so that a chosen entry leads back to its grid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy this row with the names of its columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens below its button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How amounts are read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most digits before the full stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most digits of all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes amounts and quantities, and reads them in Chinese while they are typed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A button that lights up under the pointer and the focus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An ampersand is no shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quoted price, whose colour tells where it went.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen and disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One choice among few, which carries its form&apos;s data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send the order?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The body of a frameless window: it paints the ground, the border and a soft edge.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The exchange has refused the order: price outside the limits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel all orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A row in which the user presses the keys of a shortcut.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Violet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security and trading account of the same investor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the group whose windows follow each other, in the colour of the group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All portfolios</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text for nothing ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Many rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some ticked, two disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field for many choices: its list has a check box in each row, and the closed field shows what is ticked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send the order of a very long name to the exchange of the day before yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name that is longer than its half of the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus in the rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before the first rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks the user to confirm a table of values before they go out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens over the main window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the order of 1,000 at 10.25?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The exchange refused the order because its price lies outside the limits of the day, and the account has no more quantity to sell. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus in the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The price lies outside the limits of the day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own button texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A box that tells or asks something and sizes itself to its text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order was accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long text, error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A notice that closes by itself and leaves keyboard and mouse where they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens for three seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ranges of numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens at a filter button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list below a filter button: what the column holds, to be searched and ticked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own parts in the title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A frameless dialog that hosts a plugin or any other widget.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resizable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks before it closes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half typed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds in the middle too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A code of two markets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds a security by a few letters or digits of its code or search key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order book of one security: levels to point at, to select and to step through.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ten levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seller selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buyer selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody sells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before any data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese numerals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line in place of the band</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Market</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brokers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passive orders only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous trading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A form that a strategy&apos;s description tells: names and editors in rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New strategy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running strategy: some parameters can still be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strategy that has ended</source>
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
<context>
    <name>ZrPluginTexts</name>
    <message>
        <source>found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plugin: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damaged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither a seal nor a manifest vouches for its content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made for another machine or toolkit: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong interface: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No usable ID: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has the ID of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in the manifest, or with another hash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing symbol: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing library: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be loaded: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A start ended while it was loaded or made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By the user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last start ended while the plugin %1 was loaded or made; it is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused plugin files: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrPluginsPanel</name>
    <message>
        <source>Load at start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice about plugins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plugin files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the next start loads this plugin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads the plugin in spite of what the start left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read (ms)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load (ms)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The choice cannot be kept: the configuration folder cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZrPluginsDock</name>
    <message>
        <source>Plugins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which plugin files are loaded, and why others are not</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
