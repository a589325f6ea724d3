<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ZrBlotterToolBar</name>
    <message>
        <source>Blotter</source>
        <translation>委托列表</translation>
    </message>
    <message>
        <source>Freeze left</source>
        <translation>冻结左侧</translation>
    </message>
    <message>
        <source>Freeze right</source>
        <translation>冻结右侧</translation>
    </message>
    <message>
        <source>The first columns stay in place</source>
        <translation>前几列保持不动</translation>
    </message>
    <message>
        <source>The last column stays in place</source>
        <translation>最后一列保持不动</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>复选框</translation>
    </message>
    <message>
        <source>A check box in front of each row</source>
        <translation>每行前显示复选框</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随最新</translation>
    </message>
    <message>
        <source>New orders come into sight</source>
        <translation>新委托自动滚动到可见处</translation>
    </message>
    <message>
        <source>Open orders</source>
        <translation>仅在途</translation>
    </message>
    <message>
        <source>Leaves out finished orders</source>
        <translation>不显示已完成的委托</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Sums of all orders</source>
        <translation>所有委托的合计</translation>
    </message>
    <message>
        <source>Delayed display</source>
        <translation>延迟显示</translation>
    </message>
    <message>
        <source>Gathers new rows for 200 ms; stays on once chosen</source>
        <translation>新行汇集 200 毫秒后显示;选中后不可取消</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>A column that counts the rows</source>
        <translation>显示行序号的列</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>升序</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>降序</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行数上限</translation>
    </message>
    <message>
        <source>The oldest orders leave beyond this</source>
        <translation>超过后移除最早的委托</translation>
    </message>
</context>
<context>
    <name>ZrColumnTexts</name>
    <message>
        <source>Order no.</source>
        <translation>委托编号</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>证券</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>证券名称</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>市场</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Validity</source>
        <translation>有效期</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>委托价</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>委托数量</translation>
    </message>
    <message>
        <source>Order value</source>
        <translation>委托金额</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>委托时间</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>回报</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>成交数量</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>未成数量</translation>
    </message>
    <message>
        <source>Withdrawn</source>
        <translation>撤单数量</translation>
    </message>
    <message>
        <source>Average price</source>
        <translation>成交均价</translation>
    </message>
    <message>
        <source>Last price</source>
        <translation>最新成交价</translation>
    </message>
    <message>
        <source>Last quantity</source>
        <translation>最新成交量</translation>
    </message>
    <message>
        <source>Filled value</source>
        <translation>成交金额</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>成交比例</translation>
    </message>
    <message>
        <source>Fills</source>
        <translation>笔数</translation>
    </message>
    <message>
        <source>Report no.</source>
        <translation>回报编号</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>更新时间</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Trading account</source>
        <translation>交易账户</translation>
    </message>
    <message>
        <source>Account name</source>
        <translation>账户名称</translation>
    </message>
    <message>
        <source>Asset account</source>
        <translation>资产账户</translation>
    </message>
    <message>
        <source>Asset name</source>
        <translation>资产账户名称</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Investor</source>
        <translation>投资者</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>order</source>
        <translation>委托</translation>
    </message>
    <message>
        <source>execution</source>
        <translation>成交</translation>
    </message>
    <message>
        <source>account</source>
        <translation>账户</translation>
    </message>
</context>
<context>
    <name>ZrBlotterPlugin</name>
    <message>
        <source>Order blotter</source>
        <translation>委托列表</translation>
    </message>
</context>
</TS>
