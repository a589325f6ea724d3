<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ZrAccountBox</name>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>The account whose data are shown</source>
        <translation>显示哪个账户的数据</translation>
    </message>
    <message>
        <source>All accounts</source>
        <translation>全部账户</translation>
    </message>
</context>
<context>
    <name>ZrDeskToolBar</name>
    <message>
        <source>Workstation</source>
        <translation>工作站</translation>
    </message>
    <message>
        <source>Open plugin</source>
        <translation>打开插件</translation>
    </message>
    <message>
        <source>Another plugin on the desk</source>
        <translation>在桌面上再打开一个插件</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>Colours and pictures of all windows</source>
        <translation>所有窗口的颜色和图片</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
</context>
<context>
    <name>ZrMainWindow</name>
    <message>
        <source>Trading workstation</source>
        <translation>交易工作站</translation>
    </message>
    <message>
        <source>Showcase</source>
        <translation>控件展示</translation>
    </message>
    <message>
        <source>A page for each widget, with all its states</source>
        <translation>每个控件一页，列出它的各种状态</translation>
    </message>
</context>
<context>
    <name>ZrPluginTitleBar</name>
    <message>
        <source>Open another one</source>
        <translation>再打开一个</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Float or dock</source>
        <translation>浮动或停靠</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ZrShowcase</name>
    <message>
        <source>Titles</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Sorted upwards</source>
        <translation>升序</translation>
    </message>
    <message>
        <source>Sorted downwards</source>
        <translation>降序</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>分组表头</translation>
    </message>
    <message>
        <source>Help mark</source>
        <translation>帮助标记</translation>
    </message>
    <message>
        <source>Filter buttons</source>
        <translation>筛选按钮</translation>
    </message>
    <message>
        <source>Shown at the pointer</source>
        <translation>指针所在处显示</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>悬停</translation>
    </message>
    <message>
        <source>Always shown</source>
        <translation>始终显示</translation>
    </message>
    <message>
        <source>Filtered by side</source>
        <translation>按方向筛选</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>复选框</translation>
    </message>
    <message>
        <source>None checked</source>
        <translation>全未勾选</translation>
    </message>
    <message>
        <source>Some checked</source>
        <translation>部分勾选</translation>
    </message>
    <message>
        <source>All checked</source>
        <translation>全部勾选</translation>
    </message>
    <message>
        <source>The head of a grid: sorting, filter buttons, bands over columns, a check box for all rows.</source>
        <translation>表格的表头：排序、筛选按钮、列分组以及全选复选框。</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>买入</translation>
    </message>
    <message>
        <source>Sell</source>
        <translation>卖出</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>证券</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Current row</source>
        <translation>当前行</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>焦点</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>Long text</source>
        <translation>长文本</translation>
    </message>
    <message>
        <source>Some checked, one disabled</source>
        <translation>部分勾选，一行禁用</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Frozen left and right</source>
        <translation>左右冻结</translation>
    </message>
    <message>
        <source>Numbers and summary</source>
        <translation>序号与合计</translation>
    </message>
    <message>
        <source>A live grid of keyed records, with check boxes, frozen columns, bands and a summary.</source>
        <translation>按键更新的实时表格，带复选框、冻结列、分组表头与合计行。</translation>
    </message>
    <message>
        <source>In shares</source>
        <translation>以股计</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>委托</translation>
    </message>
    <message>
        <source>Sell short</source>
        <translation>融券卖出</translation>
    </message>
    <message>
        <source>A row of buttons of which one can be chosen.</source>
        <translation>一排按钮，可以选择其中一个。</translation>
    </message>
    <message>
        <source>States</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>长文本</translation>
    </message>
    <message>
        <source>A date that may be left empty; a digit fills in today.</source>
        <translation>可以留空的日期；键入数字即填入当天。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>With a calendar</source>
        <translation>带日历</translation>
    </message>
    <message>
        <source>Order quantity</source>
        <translation>委托数量</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>勾选</translation>
    </message>
    <message>
        <source>Text colours by flag</source>
        <translation>按标志着色</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上涨</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下跌</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Markup stays text</source>
        <translation>标记按原文显示</translation>
    </message>
    <message>
        <source>A label whose look can be switched, and which carries its form&apos;s data.</source>
        <translation>可以切换外观并携带表单数据的标签。</translation>
    </message>
    <message>
        <source>A text field that carries its form&apos;s data and tells when the entry is finished.</source>
        <translation>携带表单数据、输入完成时发出通知的文本框。</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Covers a plugin with a moving picture while its data load.</source>
        <translation>数据加载期间用动画覆盖插件。</translation>
    </message>
    <message>
        <source>Before the first picture</source>
        <translation>首帧之前</translation>
    </message>
    <message>
        <source>First picture</source>
        <translation>第一帧</translation>
    </message>
    <message>
        <source>Sixth picture</source>
        <translation>第六帧</translation>
    </message>
    <message>
        <source>Over an empty grid</source>
        <translation>覆盖空表格</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>试一试</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>09:15:00 Connecting to the data service</source>
        <translation>09:15:00 正在连接数据服务</translation>
    </message>
    <message>
        <source>09:15:01 Securities are loaded</source>
        <translation>09:15:01 证券信息已加载</translation>
    </message>
    <message>
        <source>09:15:02 Accounts are loaded</source>
        <translation>09:15:02 账户信息已加载</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>A moving picture for a time of waiting, with a log over it for who wants to know more.</source>
        <translation>等待时播放的动画，上面可显示日志供人查看详情。</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>At rest</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Read-only log</source>
        <translation>只读日志</translation>
    </message>
    <message>
        <source>09:15:03 Error: the data service does not answer</source>
        <translation>09:15:03 错误：数据服务没有应答</translation>
    </message>
    <message>
        <source>Many lines</source>
        <translation>多行</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>全部委托</translation>
    </message>
    <message>
        <source>Open orders</source>
        <translation>在途委托</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>A menu that carries data, so that a chosen entry leads back to its grid.</source>
        <translation>携带数据的菜单，所选菜单项可以找回对应的表格。</translation>
    </message>
    <message>
        <source>Current entry</source>
        <translation>当前项</translation>
    </message>
    <message>
        <source>Check marks</source>
        <translation>勾选标记</translation>
    </message>
    <message>
        <source>Copy this row with the names of its columns</source>
        <translation>复制此行及其列名</translation>
    </message>
    <message>
        <source>Opens below its button</source>
        <translation>在按钮下方打开</translation>
    </message>
    <message>
        <source>How amounts are read</source>
        <translation>金额读法</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Most digits before the full stop</source>
        <translation>小数点前最多位数</translation>
    </message>
    <message>
        <source>Most digits of all</source>
        <translation>总位数上限</translation>
    </message>
    <message>
        <source>Takes amounts and quantities, and reads them in Chinese while they are typed.</source>
        <translation>输入金额和数量，键入时以中文单位读出。</translation>
    </message>
    <message>
        <source>Send order</source>
        <translation>发送委托</translation>
    </message>
    <message>
        <source>A button that lights up under the pointer and the focus.</source>
        <translation>指针移入或获得焦点时点亮的按钮。</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>An ampersand is no shortcut</source>
        <translation>&amp; 不是快捷键</translation>
    </message>
    <message>
        <source>A quoted price, whose colour tells where it went.</source>
        <translation>行情价格，以颜色表示涨跌。</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>平盘</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>突出显示</translation>
    </message>
    <message>
        <source>Limit price</source>
        <translation>限价</translation>
    </message>
    <message>
        <source>Chosen and disabled</source>
        <translation>已选择且禁用</translation>
    </message>
    <message>
        <source>One choice among few, which carries its form&apos;s data.</source>
        <translation>携带表单数据的单选按钮。</translation>
    </message>
    <message>
        <source>Send the order?</source>
        <translation>发送委托？</translation>
    </message>
    <message>
        <source>The body of a frameless window: it paints the ground, the border and a soft edge.</source>
        <translation>无边框窗口的主体：绘制底色、边框和柔和的边缘。</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>选中</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>The exchange has refused the order: price outside the limits.</source>
        <translation>交易所拒绝了委托：价格超出涨跌幅限制。</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Cancel all orders</source>
        <translation>全部撤单</translation>
    </message>
    <message>
        <source>A row in which the user presses the keys of a shortcut.</source>
        <translation>在此行按键设置快捷键。</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>靛</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Security and trading account of the same investor</source>
        <translation>同一投资者的证券与交易账户</translation>
    </message>
    <message>
        <source>Chooses the group whose windows follow each other, in the colour of the group.</source>
        <translation>选择联动分组，并以该组颜色显示；同组窗口互相跟随。</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>No group</source>
        <translation>无分组</translation>
    </message>
    <message>
        <source>All portfolios</source>
        <translation>全部组合</translation>
    </message>
    <message>
        <source>A text for nothing ticked</source>
        <translation>未勾选时的文本</translation>
    </message>
    <message>
        <source>Many rows</source>
        <translation>多行列表</translation>
    </message>
    <message>
        <source>Open list</source>
        <translation>展开的列表</translation>
    </message>
    <message>
        <source>Some ticked</source>
        <translation>勾选若干</translation>
    </message>
    <message>
        <source>Some ticked, two disabled</source>
        <translation>勾选若干，两项禁用</translation>
    </message>
    <message>
        <source>A field for many choices: its list has a check box in each row, and the closed field shows what is ticked.</source>
        <translation>多选下拉框：列表每行一个复选框，收起时显示已勾选项。</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Send the order of a very long name to the exchange of the day before yesterday</source>
        <translation>将名称很长的委托发送到前天的那家交易所</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>金额</translation>
    </message>
    <message>
        <source>A name that is longer than its half of the table</source>
        <translation>比表格一半还要长的名称</translation>
    </message>
    <message>
        <source>Focus in the rows</source>
        <translation>焦点在行中</translation>
    </message>
    <message>
        <source>Before the first rows</source>
        <translation>填入行之前</translation>
    </message>
    <message>
        <source>Asks the user to confirm a table of values before they go out.</source>
        <translation>发送前请用户确认一组数值。</translation>
    </message>
    <message>
        <source>Opens over the main window</source>
        <translation>在主窗口上方打开</translation>
    </message>
    <message>
        <source>Cancel order</source>
        <translation>撤单</translation>
    </message>
    <message>
        <source>Cancel the order of 1,000 at 10.25?</source>
        <translation>撤销 10.25 买入 1,000 股的委托？</translation>
    </message>
    <message>
        <source>Cancel it</source>
        <translation>撤单</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>The exchange refused the order because its price lies outside the limits of the day, and the account has no more quantity to sell. </source>
        <translation>交易所拒绝了委托，因为价格超出当日涨跌幅限制，且账户已没有可卖数量。</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Focus in the text</source>
        <translation>焦点在文本中</translation>
    </message>
    <message>
        <source>Order refused</source>
        <translation>委托被拒</translation>
    </message>
    <message>
        <source>The price lies outside the limits of the day.</source>
        <translation>价格超出当日涨跌幅限制。</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>组成</translation>
    </message>
    <message>
        <source>Own button texts</source>
        <translation>自定按钮文字</translation>
    </message>
    <message>
        <source>A box that tells or asks something and sizes itself to its text.</source>
        <translation>提示或询问的消息框，大小随文本而定。</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>The order was accepted.</source>
        <translation>委托已受理。</translation>
    </message>
    <message>
        <source>The order was refused.</source>
        <translation>委托被拒绝。</translation>
    </message>
    <message>
        <source>Long text, error</source>
        <translation>长文本，错误</translation>
    </message>
    <message>
        <source>A notice that closes by itself and leaves keyboard and mouse where they are.</source>
        <translation>自动关闭的通知，不影响键盘和鼠标。</translation>
    </message>
    <message>
        <source>Opens for three seconds</source>
        <translation>显示三秒</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Ranges of numbers</source>
        <translation>数值区间</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>已筛选</translation>
    </message>
    <message>
        <source>Searched</source>
        <translation>搜索后</translation>
    </message>
    <message>
        <source>Opens at a filter button</source>
        <translation>在筛选按钮处打开</translation>
    </message>
    <message>
        <source>The list below a filter button: what the column holds, to be searched and ticked.</source>
        <translation>筛选按钮下的列表：列中的取值，可搜索、可勾选。</translation>
    </message>
    <message>
        <source>Order limits</source>
        <translation>委托限制</translation>
    </message>
    <message>
        <source>Without a shadow</source>
        <translation>无阴影</translation>
    </message>
    <message>
        <source>Without a title</source>
        <translation>无标题</translation>
    </message>
    <message>
        <source>Without buttons</source>
        <translation>无按钮</translation>
    </message>
    <message>
        <source>One button</source>
        <translation>一个按钮</translation>
    </message>
    <message>
        <source>Own parts in the title</source>
        <translation>标题中的自有部件</translation>
    </message>
    <message>
        <source>A frameless dialog that hosts a plugin or any other widget.</source>
        <translation>承载插件或任意控件的无边框对话框。</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定大小</translation>
    </message>
    <message>
        <source>Resizable</source>
        <translation>可调整大小</translation>
    </message>
    <message>
        <source>Asks before it closes</source>
        <translation>关闭前询问</translation>
    </message>
    <message>
        <source>The changes are lost.</source>
        <translation>更改将会丢失。</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>委托</translation>
    </message>
    <message>
        <source>Half typed</source>
        <translation>输入一半</translation>
    </message>
    <message>
        <source>Picked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Finds in the middle too</source>
        <translation>也匹配中间</translation>
    </message>
    <message>
        <source>A code of two markets</source>
        <translation>两个市场的同一代码</translation>
    </message>
    <message>
        <source>Finds a security by a few letters or digits of its code or search key.</source>
        <translation>输入代码或检索简拼的几个字母或数字即可找到证券。</translation>
    </message>
    <message>
        <source>The order book of one security: levels to point at, to select and to step through.</source>
        <translation>一只证券的盘口：各档可指向、选中并逐档移动。</translation>
    </message>
    <message>
        <source>Ten levels</source>
        <translation>十档</translation>
    </message>
    <message>
        <source>Five levels</source>
        <translation>五档</translation>
    </message>
    <message>
        <source>Seller selected</source>
        <translation>选中卖档</translation>
    </message>
    <message>
        <source>Buyer selected</source>
        <translation>选中买档</translation>
    </message>
    <message>
        <source>Nobody sells</source>
        <translation>无卖盘</translation>
    </message>
    <message>
        <source>Before any data</source>
        <translation>尚无数据</translation>
    </message>
    <message>
        <source>Chinese numerals</source>
        <translation>中文数字</translation>
    </message>
    <message>
        <source>Line in place of the band</source>
        <translation>以细线代替最新价</translation>
    </message>
    <message>
        <source>Long numbers</source>
        <translation>长数字</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限价</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>市价</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>交易阶段</translation>
    </message>
    <message>
        <source>Price type</source>
        <translation>价格类型</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>有效期至</translation>
    </message>
    <message>
        <source>Brokers</source>
        <translation>经纪商</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Passive orders only</source>
        <translation>仅被动委托</translation>
    </message>
    <message>
        <source>Continuous trading</source>
        <translation>连续竞价</translation>
    </message>
    <message>
        <source>A form that a strategy&apos;s description tells: names and editors in rows.</source>
        <translation>由策略描述生成的表单：名称和编辑框按行排列。</translation>
    </message>
    <message>
        <source>New strategy</source>
        <translation>新建策略</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>已填写</translation>
    </message>
    <message>
        <source>Running strategy: some parameters can still be changed</source>
        <translation>运行中的策略：部分参数仍可修改</translation>
    </message>
    <message>
        <source>Strategy that has ended</source>
        <translation>已结束的策略</translation>
    </message>
</context>
<context>
    <name>ZrStatusLine</name>
    <message>
        <source>Feed: %1</source>
        <translation>数据源:%1</translation>
    </message>
    <message>
        <source>%1 messages/s</source>
        <translation>%1 条/秒</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>Tick to pixel: %1 ms median, %2 ms 99th percentile</source>
        <translation>行情到显示:中位 %1 毫秒,99% 分位 %2 毫秒</translation>
    </message>
</context>
<context>
    <name>ZrPluginTexts</name>
    <message>
        <source>found</source>
        <translation>已找到</translation>
    </message>
    <message>
        <source>loaded</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation>无法读取:%1</translation>
    </message>
    <message>
        <source>No plugin: %1</source>
        <translation>不是插件:%1</translation>
    </message>
    <message>
        <source>Damaged: %1</source>
        <translation>已损坏:%1</translation>
    </message>
    <message>
        <source>Neither a seal nor a manifest vouches for its content</source>
        <translation>内容既无封印也无清单担保</translation>
    </message>
    <message>
        <source>Made for another machine or toolkit: %1</source>
        <translation>为其他机器或工具包构建:%1</translation>
    </message>
    <message>
        <source>Wrong interface: %1</source>
        <translation>接口不符:%1</translation>
    </message>
    <message>
        <source>No usable ID: %1</source>
        <translation>没有可用的标识:%1</translation>
    </message>
    <message>
        <source>Has the ID of %1</source>
        <translation>标识与 %1 重复</translation>
    </message>
    <message>
        <source>Not in the manifest, or with another hash</source>
        <translation>不在清单中,或哈希不符</translation>
    </message>
    <message>
        <source>Missing symbol: %1</source>
        <translation>缺少符号:%1</translation>
    </message>
    <message>
        <source>Missing library: %1</source>
        <translation>缺少库:%1</translation>
    </message>
    <message>
        <source>Cannot be loaded: %1</source>
        <translation>无法加载:%1</translation>
    </message>
    <message>
        <source>A start ended while it was loaded or made</source>
        <translation>加载或创建它时启动中断</translation>
    </message>
    <message>
        <source>By the user</source>
        <translation>由用户停用</translation>
    </message>
    <message>
        <source>The last start ended while the plugin %1 was loaded or made; it is switched off.</source>
        <translation>上次启动在加载或创建插件 %1 时中断,该插件已停用。</translation>
    </message>
    <message>
        <source>Refused plugin files: %1.</source>
        <translation>已拒绝的插件文件:%1。</translation>
    </message>
</context>
<context>
    <name>ZrPluginsPanel</name>
    <message>
        <source>Load at start</source>
        <translation>启动时加载</translation>
    </message>
    <message>
        <source>Load now</source>
        <translation>立即加载</translation>
    </message>
    <message>
        <source>Notice about plugins</source>
        <translation>插件通知</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Plugin files</source>
        <translation>插件文件</translation>
    </message>
    <message>
        <source>Whether the next start loads this plugin</source>
        <translation>下次启动时是否加载此插件</translation>
    </message>
    <message>
        <source>Loads the plugin in spite of what the start left out</source>
        <translation>加载启动时未加载的插件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Read (ms)</source>
        <translation>读取(毫秒)</translation>
    </message>
    <message>
        <source>Load (ms)</source>
        <translation>加载(毫秒)</translation>
    </message>
    <message>
        <source>The choice cannot be kept: the configuration folder cannot be written.</source>
        <translation>选择无法保存:配置文件夹不可写。</translation>
    </message>
</context>
<context>
    <name>ZrPluginsDock</name>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Which plugin files are loaded, and why others are not</source>
        <translation>哪些插件文件已加载,其余为何未加载</translation>
    </message>
</context>
</TS>
