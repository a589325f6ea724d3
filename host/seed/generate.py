#!/usr/bin/env python3
"""Writes the seed tables of the reference host next to this script.

Everything is invented and follows from the fixed seed below: run it again and the files stay the same.
A head cell is a field's name, with ":b", ":i" or ":d" behind it when the field is a truth value, a whole
number or a decimal one. No cell holds a comma or a quote, so the files need no quoting.
"""
import os
import random

HERE = os.path.dirname(os.path.abspath(__file__))
SEED = 20240229

SYLLABLES = [
    ("澄", "cheng"), ("砚", "yan"), ("岑", "cen"), ("沐", "mu"), ("翊", "yi"), ("泓", "hong"), ("珞", "luo"),
    ("峤", "qiao"), ("棠", "tang"), ("筠", "yun"), ("霁", "ji"), ("漪", "yi"), ("崧", "song"), ("穗", "sui"),
    ("晖", "hui"), ("禾", "he"), ("衡", "heng"), ("嵘", "rong"), ("璟", "jing"), ("渝", "yu"), ("桐", "tong"),
    ("钧", "jun"), ("岚", "lan"), ("瀚", "han"), ("菁", "jing"), ("舟", "zhou"), ("朔", "shuo"), ("屿", "yu"),
    ("麓", "lu"), ("汐", "xi"), ("垚", "yao"), ("昀", "yun"), ("栎", "li"), ("铄", "shuo"), ("湛", "zhan"),
    ("萃", "cui"), ("驰", "chi"), ("祺", "qi"), ("坤", "kun"), ("渊", "yuan"), ("榕", "rong"), ("钰", "yu"),
    ("苒", "ran"), ("棣", "di"), ("颢", "hao"), ("沅", "yuan"), ("瑾", "jin"), ("奕", "yi"), ("翎", "ling"),
    ("枫", "feng"), ("澜", "lan"), ("宸", "chen"), ("洺", "ming"), ("胤", "yin"), ("楷", "kai"), ("煦", "xu"),
    ("钊", "zhao"), ("郁", "yu"), ("觅", "mi"), ("帆", "fan"), ("皓", "hao"), ("谧", "mi"), ("倬", "zhuo"),
    ("骁", "xiao"), ("笙", "sheng"), ("毓", "yu"), ("鹭", "lu"), ("芮", "rui"), ("旌", "jing"), ("淮", "huai"),
    ("柏", "bai"), ("垣", "yuan"), ("绮", "qi"), ("邺", "ye"), ("浔", "xun"), ("黛", "dai"), ("稷", "ji"),
    ("蔚", "wei"), ("珩", "heng"), ("潼", "tong"),
]
TRADES = [
    ("科技", "KJ", "Technology"), ("电子", "DZ", "Electronics"), ("药业", "YY", "Pharma"), ("化工", "HG", "Chemicals"),
    ("机械", "JX", "Machinery"), ("能源", "NY", "Energy"), ("食品", "SP", "Foods"), ("物流", "WL", "Logistics"),
    ("地产", "DC", "Property"), ("传媒", "CM", "Media"), ("新材", "XC", "Materials"), ("软件", "RJ", "Software"),
    ("纺织", "FZ", "Textile"), ("环保", "HB", "Environment"), ("航运", "HY", "Shipping"), ("农业", "NY", "Farming"),
]
# market, first code, count, type, sub type, name ending (Chinese, initials, English), lot, tick, limit
BLOCKS = [
    ("SH", 600000, 1800, "Stock", "MainBoard", None, 100, 0.01, 0.10),
    ("SH", 688000, 300, "Stock", "TechBoard", None, 200, 0.01, 0.20),
    ("SZ", 1, 1000, "Stock", "MainBoard", None, 100, 0.01, 0.10),
    ("SZ", 300001, 900, "Stock", "GrowthBoard", None, 100, 0.01, 0.20),
    ("SH", 510000, 300, "Fund", "ExchangeTraded", ("基金", "JJ", "Fund"), 100, 0.001, 0.10),
    ("SZ", 159000, 300, "Fund", "ExchangeTraded", ("基金", "JJ", "Fund"), 100, 0.001, 0.10),
    ("SH", 113000, 300, "Bond", "Convertible", ("转债", "ZZ", "Convertible"), 10, 0.001, 0.20),
    ("SZ", 127000, 300, "Bond", "Convertible", ("转债", "ZZ", "Convertible"), 10, 0.001, 0.20),
    # Last, and with codes that stocks of the other market have too: a bare code means the stock.
    ("SH", 1, 50, "Index", "Composite", ("指数", "ZS", "Index"), 1, 0.0001, 0.10),
]
TEXTS = {
    "SymbolPost": [("SH", "上交所", "Shanghai"), ("SZ", "深交所", "Shenzhen")],
    "LinkageType": [("1", "证券联动", "Security"), ("2", "账户联动", "Account"), ("3", "委托联动", "Order"),
                    ("4", "组合联动", "Portfolio"), ("5", "策略联动", "Strategy")],
    "DefaultMasterColorInfo": [("banlanceColor_dark", "#C8CDD6", "#C8CDD6"), ("banlanceColor_light", "#3A4250", "#3A4250"),
                               ("upColor_dark", "#F0524F", "#F0524F"), ("upColor_light", "#D0302C", "#D0302C"),
                               ("downColor_dark", "#2FB878", "#2FB878"), ("downColor_light", "#128A50", "#128A50")],
    "Side": [("1", "买入", "Buy"), ("2", "卖出", "Sell"), ("5", "融券卖出", "Sell short"), ("D", "申购", "Subscribe"),
             ("E", "赎回", "Redeem")],
    "OrderType": [("1", "市价", "Market"), ("2", "限价", "Limit"), ("3", "止损", "Stop"), ("4", "止损限价", "Stop limit"),
                  ("U", "本方最优", "Best own side")],
    "OrderStatus": [("0", "已报", "New"), ("1", "部分成交", "Partly filled"), ("2", "全部成交", "Filled"),
                    ("4", "已撤单", "Cancelled"), ("6", "待撤", "Cancel pending"), ("8", "已拒绝", "Rejected"),
                    ("A", "待报", "New pending"), ("C", "已过期", "Expired")],
    "ExecType": [("0", "确认", "New"), ("4", "撤单", "Cancelled"), ("8", "拒绝", "Rejected"), ("F", "成交", "Trade")],
    "TimeInForce": [("0", "当日有效", "Day"), ("1", "撤销前有效", "Good till cancel"), ("3", "即时成交剩余撤销", "Immediate or cancel"),
                    ("4", "全部成交或撤销", "Fill or kill")],
    "SecurityType": [("Stock", "股票", "Stock"), ("Fund", "基金", "Fund"), ("Bond", "债券", "Bond"), ("Index", "指数", "Index")],
    "SecuritySubType": [("MainBoard", "主板", "Main board"), ("TechBoard", "科创板", "Technology board"),
                        ("GrowthBoard", "创业板", "Growth board"), ("ExchangeTraded", "交易型基金", "Exchange traded fund"),
                        ("Convertible", "可转债", "Convertible bond"), ("Composite", "综合指数", "Composite index")],
    "MarketPhase": [("S", "启动", "Start"), ("O", "开盘集合竞价", "Opening auction"), ("T", "连续竞价", "Continuous"),
                    ("B", "休市", "Break"), ("C", "收盘集合竞价", "Closing auction"), ("E", "闭市", "End")],
    "Currency": [("CNY", "人民币", "Renminbi"), ("HKD", "港币", "Hong Kong dollar"), ("USD", "美元", "US dollar")],
    "UserType": [("SysAdmin", "系统管理员", "Administrator"), ("Trader", "交易员", "Trader"), ("Risk", "风控员", "Risk officer")],
    "AuthorityType": [("AccountTrade", "账户交易", "Account trade"), ("AccountQuery", "账户查询", "Account query")],
}
INVESTORS = ["澄观投资", "砚石资管", "泓远信托", "霁光保险", "棠溪养老"]
STYLES = ["稳健", "进取", "均衡", "量化", "指数增强", "对冲", "红利", "价值", "成长", "固收"]


def number(value):
    return ("%.4f" % value).rstrip("0").rstrip(".")


def write(name, head, rows):
    for row in rows:
        assert len(row) == len(head) and not any(c in "".join(row) for c in ',"\n'), row
    with open(os.path.join(HERE, name), "w", encoding="utf-8", newline="\n") as out:
        for row in [head] + rows:
            out.write(",".join(row) + "\n")


def securities(rng):
    pairs = [(a, b) for a in SYLLABLES for b in SYLLABLES if a is not b]
    rng.shuffle(pairs)
    rows = []
    for market, first, count, kind, sub, ending, lot, tick, limit in BLOCKS:
        for code in range(first, first + count):
            (a, a_sound), (b, b_sound) = pairs[len(rows)]
            trade = ending or rng.choice(TRADES)
            steps = int(rng.lognormvariate(3, 0.8) / tick) if kind in ("Stock", "Fund") else rng.randint(90, 140) * 1000
            close = max(steps, 100) * tick
            up, down = (round(close * (1 + s * limit) / tick) * tick for s in (1, -1))
            tradable = kind != "Index" and rng.random() > 0.02
            rows.append(["%06d.%s" % (code, market), a + b + trade[0],
                         (a_sound + b_sound).capitalize() + " " + trade[2],
                         (a_sound[0] + b_sound[0]).upper() + trade[1], kind, sub, "1" if tradable else "0",
                         number(close), str(lot), number(tick), number(up), number(down)])
    write("securities.csv", ["Symbol", "ChineseName", "EnglishName", "SearchKey", "SecurityType", "SecuritySubType",
                             "Tradable:b", "PreviousClose:d", "LotSize:i", "PriceTick:d", "UpperLimit:d",
                             "LowerLimit:d"], rows)


def accounts():
    rows = []
    for i in range(40):
        asset, product = i // 2, i // 4
        investor = product // 2
        product_name = INVESTORS[investor][:2] + STYLES[product] + "%d号" % (product + 1)
        authorities = "AccountQuery" if i % 8 == 7 else "AccountTrade;AccountQuery"
        rows.append(["T%05d" % (10001 + i), product_name + ("沪" if i % 2 == 0 else "深"), "A%04d" % (2001 + asset),
                     product_name + "资产%d" % (asset % 2 + 1), "P%03d" % (301 + product), product_name,
                     "I%02d" % (41 + investor), INVESTORS[investor], "SH" if i % 2 == 0 else "SZ", authorities,
                     "Node%02d" % (asset % 4 + 1)])
    write("accounts.csv", ["TradingAccount", "TradingAccountName", "AssetAccount", "AssetAccountName",
                           "ProductAccount", "ProductName", "InvestAccount", "InvestorName", "SymbolPost",
                           "Authorities", "SystemNodeID"], rows)


def dictionaries():
    rows = [[section, *entry] for section, entries in sorted(TEXTS.items()) for entry in entries]
    write("dictionaries.csv", ["Section", "Code", "ChineseText", "EnglishText"], rows)


def main():
    rng = random.Random(SEED)
    securities(rng)
    accounts()
    dictionaries()
    write("settings.csv", ["Name", "Setting"], [["LoginType", "Trader"]])


if __name__ == "__main__":
    main()
