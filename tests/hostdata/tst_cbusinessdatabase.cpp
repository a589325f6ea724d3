#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdatabase/ZrDataFields.h"
#include "zrdatabase/ZrDataStore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "ZrTestMain.h"

#include <cmath>

namespace Security = Vexlor_Fields::Security;
namespace UserAccount = Vexlor_Fields::UserAccount;

namespace {
const CBusinessDataBase &data()
{
    return *CBusinessDataBase::GetInstance();
}

QString symbolOf(const QString &candidate)
{
    return candidate.section(Constants::SymbolSearch_Split, 0, 0);
}
} // namespace

class TestBusinessDataBase : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aSecurityIsFoundBySymbolOrCode();
    void aBareCodeIsNarrowedByItsMarket();
    void anUnknownSecurityIsEmpty();
    void theMarketOfASymbolIsItsSuffix();
    void anIdIsFoundUnderItsSource();
    void candidatesHaveTheFormOfTheSearchBox();
    void typeSubTypeMarketAndTradingNarrowTheCandidates();
    void theSeedsSecuritiesMakeSense();
    void theSeedsAccountsMakeSense();
    void accountsAreFoundByEachOfTheirNumbers();
    void detailsOfAProductNameNoTradingAccount();
    void onlyAccountsWithAllAuthoritiesAreListed();
    void theSystemNodeIsThatOfTheAccount();
    void theLoginTypeIsTheStores();
    void anyThreadMayAskForTheNodeWhileTheDataChanges();
};

void TestBusinessDataBase::init()
{
    QVERIFY(ZrDataStore::openSeed());
}

void TestBusinessDataBase::cleanup()
{
    ZrDataStore::close();
}

void TestBusinessDataBase::aSecurityIsFoundBySymbolOrCode()
{
    const QString name = data().GetSecurityChineseName(QStringLiteral("600001.SH"), QString());
    QVERIFY(!name.isEmpty());
    QCOMPARE(data().GetSecurityChineseName(QStringLiteral("600001"), QString()), name);
    QCOMPARE(data().GetSecurityChineseName(QStringLiteral("600001"), QStringLiteral("SH")), name);
    QCOMPARE(data().GetSecurityChineseName(QStringLiteral("600001.SH"), QStringLiteral("SZ")), name);
    const QVariantMap details = data().GetSecurityDetailsBySymbol(QStringLiteral("600001.SH"));
    QCOMPARE(details.value(Security::chineseName).toString(), name);
    QCOMPARE(details.value(Security::symbol).toString(), QStringLiteral("600001.SH"));
}

void TestBusinessDataBase::aBareCodeIsNarrowedByItsMarket()
{
    const QString code = QStringLiteral("000001");
    const QString stock = data().GetSecurityChineseName(code, QStringLiteral("SZ"));
    const QString index = data().GetSecurityChineseName(code, QStringLiteral(".SH"));
    QVERIFY(!stock.isEmpty() && !index.isEmpty() && stock != index);
    QCOMPARE(data().GetSecurityChineseName(code, QString()), stock);
    QCOMPARE(data().GetSecurityChineseName(QStringLiteral("000001.SH"), QString()), index);
}

void TestBusinessDataBase::anUnknownSecurityIsEmpty()
{
    for (const QString &symbol :
         {QStringLiteral("999999"), QStringLiteral("600001.XX"), QStringLiteral("."), QString()}) {
        QVERIFY(data().GetSecurityChineseName(symbol, QString()).isEmpty());
        QVERIFY(data().GetSecurityDetailsBySymbol(symbol).isEmpty());
        QVERIFY(data().GetSymbolPostBySymbol(symbol).isEmpty());
        QVERIFY(data()
                    .getSecurityIDBySymbol(symbol, QString(), Vexlor_Values::SecurityIDSource::securityID)
                    .isEmpty());
    }
    QVERIFY(data().GetSecurityChineseName(QStringLiteral("600001"), QStringLiteral("SZ")).isEmpty());
}

void TestBusinessDataBase::theMarketOfASymbolIsItsSuffix()
{
    QCOMPARE(data().GetSymbolPostBySymbol(QStringLiteral("600001.SH")), QStringLiteral("SH"));
    QCOMPARE(data().GetSymbolPostBySymbol(QStringLiteral("300001")), QStringLiteral("SZ"));
    QCOMPARE(data().GetSymbolPostBySymbol(QStringLiteral("999999.SH")), QStringLiteral("SH"));
    QVERIFY(data().GetSymbolPostBySymbol(QStringLiteral("SH")).isEmpty());
}

void TestBusinessDataBase::anIdIsFoundUnderItsSource()
{
    const QString &source = Vexlor_Values::SecurityIDSource::securityID;
    QCOMPARE(data().getSecurityIDBySymbol(QStringLiteral("600001.SH"), QString(), source),
             QStringLiteral("600001"));
    QCOMPARE(data().getSecurityIDBySymbol(QStringLiteral("600001"), QStringLiteral("SH"), source),
             QStringLiteral("600001"));
    QVERIFY(
        data()
            .getSecurityIDBySymbol(QStringLiteral("600001.SH"), QString(), QStringLiteral("no such source"))
            .isEmpty());
}

void TestBusinessDataBase::candidatesHaveTheFormOfTheSearchBox()
{
    const QStringList funds =
        data().GetAllSymbolByType(QStringLiteral("Fund"), QString(), QString(), false, {});
    QVERIFY(!funds.isEmpty());
    for (const QString &fund : funds) {
        const QStringList parts = fund.split(Constants::SymbolSearch_Split);
        QCOMPARE(parts.size(), 3);
        const QVariantMap details = data().GetSecurityDetailsBySymbol(parts.at(0));
        QCOMPARE(parts.at(1), details.value(Security::chineseName).toString());
        QCOMPARE(parts.at(2), details.value(ZrDataFields::searchKey).toString());
    }
}

void TestBusinessDataBase::typeSubTypeMarketAndTradingNarrowTheCandidates()
{
    const QString stock = QStringLiteral("Stock");
    const QStringList all = data().GetAllSymbolByType(QString(), QString(), QString(), false, {});
    QCOMPARE(all.size(), ZrDataStore::snapshot()->contents().securities.size());
    const QStringList stocks = data().GetAllSymbolByType(stock, QString(), QString(), false, {});
    const QStringList main =
        data().GetAllSymbolByType(stock, QStringLiteral("MainBoard"), QString(), false, {});
    const QStringList shanghai =
        data().GetAllSymbolByType(stock, QStringLiteral("MainBoard"), QStringLiteral(".SH"), false, {});
    const QStringList traded = data().GetAllSymbolByType(stock, QString(), QString(), true, {});
    QVERIFY(all.size() > stocks.size() && stocks.size() > main.size() && main.size() > shanghai.size() &&
            !shanghai.isEmpty());
    QVERIFY(traded.size() < stocks.size());
    for (const QString &candidate : traded)
        QVERIFY(
            data().GetSecurityDetailsBySymbol(symbolOf(candidate)).value(ZrDataFields::tradable).toBool());
    const QStringList listed = data().GetAllSymbolByType(stock, QStringLiteral("MainBoard"), QString(), false,
                                                         {QStringLiteral("SH")});
    QCOMPARE(listed, shanghai);
    QVERIFY(data().GetAllSymbolByType(QStringLiteral("Tulip"), QString(), QString(), false, {}).isEmpty());
}

void TestBusinessDataBase::theSeedsSecuritiesMakeSense()
{
    const auto snapshot = ZrDataStore::snapshot();
    QSet<QString> symbols;
    QSet<QString> markets;
    for (const QVariantMap &security : snapshot->contents().securities) {
        const QString symbol = security.value(Security::symbol).toString();
        QVERIFY2(!symbols.contains(symbol), qPrintable(symbol));
        symbols.insert(symbol);
        markets.insert(security.value(ZrDataFields::post).toString());
        const double close = security.value(ZrDataFields::previousClose).toDouble();
        const double tick = security.value(ZrDataFields::priceTick).toDouble();
        QVERIFY(security.value(ZrDataFields::lowerLimit).toDouble() < close);
        QVERIFY(security.value(ZrDataFields::upperLimit).toDouble() > close);
        QVERIFY(tick > 0 && std::fabs(close / tick - std::round(close / tick)) < 1e-4);
        QVERIFY(security.value(ZrDataFields::lotSize).toLongLong() >= 1);
        for (const QString &field :
             {Security::chineseName, ZrDataFields::englishName, ZrDataFields::searchKey})
            QVERIFY(!security.value(field).toString().isEmpty());
    }
    QVERIFY(symbols.size() >= 5000);
    QCOMPARE(markets, (QSet<QString>{QStringLiteral("SH"), QStringLiteral("SZ")}));
}

void TestBusinessDataBase::theSeedsAccountsMakeSense()
{
    const QStringList fields{
        UserAccount::tradingAccount,   UserAccount::tradingAccountName, UserAccount::assetAccount,
        UserAccount::assetAccountName, UserAccount::productName,        UserAccount::investorName,
        ZrDataFields::productAccount,  ZrDataFields::investAccount,     UserAccount::SymbolPost,
        ZrDataFields::authorities,     Security::systemNodeId};
    QSet<QString> products;
    QSet<QString> investors;
    for (const QVariantMap &account : ZrDataStore::snapshot()->contents().accounts) {
        for (const QString &field : fields)
            QVERIFY2(!account.value(field).toString().isEmpty(), qPrintable(field));
        products.insert(account.value(UserAccount::productName).toString());
        investors.insert(account.value(UserAccount::investorName).toString());
    }
    QVERIFY(products.size() > investors.size() && investors.size() > 1);
}

void TestBusinessDataBase::accountsAreFoundByEachOfTheirNumbers()
{
    const QVariantMap account = data().GetAccountDetailsByTradinngAccount(QStringLiteral("T10001"));
    QVERIFY(!account.isEmpty());
    const QVariantMap asset =
        data().GetAccountDetailsByAssertAccount(account.value(UserAccount::assetAccount).toString());
    const QVariantMap product =
        data().GetAccountDetailsByProductAccount(account.value(ZrDataFields::productAccount).toString());
    const QVariantMap investor =
        data().GetAccountDetailsByInvestAccount(account.value(ZrDataFields::investAccount).toString());
    QCOMPARE(asset.value(UserAccount::assetAccountName), account.value(UserAccount::assetAccountName));
    QCOMPARE(product.value(UserAccount::productName), account.value(UserAccount::productName));
    QCOMPARE(investor.value(UserAccount::investorName), account.value(UserAccount::investorName));
    for (const QString &unknown : {QStringLiteral("T99999"), QString()}) {
        QVERIFY(data().GetAccountDetailsByTradinngAccount(unknown).isEmpty());
        QVERIFY(data().GetAccountDetailsByAssertAccount(unknown).isEmpty());
        QVERIFY(data().GetAccountDetailsByProductAccount(unknown).isEmpty());
        QVERIFY(data().GetAccountDetailsByInvestAccount(unknown).isEmpty());
    }
}

void TestBusinessDataBase::detailsOfAProductNameNoTradingAccount()
{
    const QVariantMap account = data().GetAccountDetailsByTradinngAccount(QStringLiteral("T10001"));
    for (const QVariantMap &details :
         {data().GetAccountDetailsByAssertAccount(account.value(UserAccount::assetAccount).toString()),
          data().GetAccountDetailsByProductAccount(account.value(ZrDataFields::productAccount).toString()),
          data().GetAccountDetailsByInvestAccount(account.value(ZrDataFields::investAccount).toString())})
        QVERIFY(!details.isEmpty() && !details.contains(UserAccount::tradingAccount));
}

void TestBusinessDataBase::onlyAccountsWithAllAuthoritiesAreListed()
{
    const QString &trade = Vexlor_Values::AuthorityType::AccountTrade;
    const QStringList all = data().GetTradeAccountList({});
    const QStringList trading = data().GetTradeAccountList({trade});
    QCOMPARE(all.size(), 40);
    QVERIFY(!trading.isEmpty() && trading.size() < all.size());
    for (const QString &account : trading) {
        const QVariantMap details = data().GetAccountDetailsByTradinngAccount(account);
        QVERIFY(details.value(ZrDataFields::authorities).toString().contains(trade));
    }
    QVERIFY(data().GetTradeAccountList({trade, QStringLiteral("no such authority")}).isEmpty());
}

void TestBusinessDataBase::theSystemNodeIsThatOfTheAccount()
{
    const QVariantMap account = data().GetAccountDetailsByTradinngAccount(QStringLiteral("T10005"));
    const QString node = account.value(Security::systemNodeId).toString();
    QVERIFY(!node.isEmpty());
    for (const QString &field : {UserAccount::tradingAccount, UserAccount::assetAccount})
        QCOMPARE(data().GetSysNodeIDByAccount({{field, account.value(field)}}), node);
    QVERIFY(data().GetSysNodeIDByAccount({}).isEmpty());
    QVERIFY(
        data().GetSysNodeIDByAccount({{UserAccount::tradingAccount, QStringLiteral("T99999")}}).isEmpty());
}

void TestBusinessDataBase::theLoginTypeIsTheStores()
{
    QVERIFY(data().GetLoginAccountType() != Vexlor_Values::UserType::sysAdmin);
    ZrDataStore::setLoginType(Vexlor_Values::UserType::sysAdmin);
    QCOMPARE(data().GetLoginAccountType(), Vexlor_Values::UserType::sysAdmin);
}

void TestBusinessDataBase::anyThreadMayAskForTheNodeWhileTheDataChanges()
{
    const QVariantMap question{{UserAccount::tradingAccount, QStringLiteral("T10001")}};
    QAtomicInt asked;
    QAtomicInt wrong;
    QAtomicInt stop;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back(QThread::create([&] {
            while (!stop.loadAcquire()) {
                const QString node = CBusinessDataBase::GetInstance()->GetSysNodeIDByAccount(question);
                if (!node.isEmpty() && !node.startsWith(QLatin1String("Node")))
                    wrong.ref();
                asked.ref();
            }
        }));
        threads.back()->start();
    }
    ZrDataContents small;
    small.accounts = ZrDataStore::snapshot()->contents().accounts;
    for (int i = 0; i < 500 || asked.loadAcquire() < 1000; ++i) {
        ZrDataStore::setContents(small);
        ZrDataStore::close();
    }
    stop.storeRelease(1);
    for (const auto &thread : threads)
        thread->wait();
    QCOMPARE(wrong.loadAcquire(), 0);
}

ZR_TEST_GUILESS_MAIN(TestBusinessDataBase)
#include "tst_cbusinessdatabase.moc"
