#include "ZrClientFields.h"
#include "ZrFeedFactory.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"
#include "ZrWorkstationOptions.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QTemporaryDir>

/// Which feed a name means.
class tst_ZrFeedFactory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void theSimulatorTradesTheHostsSecurities();
    void theSeedDecidesWhatTheSimulatorDoes();
    void aNameIsLookedForInTheFolders();
    void aPathIsTakenAsItIs();
    void whatThereIsNotIsOneSentence_data();
    void whatThereIsNotIsOneSentence();
    void ordersGetAccountsThatMayTrade();

private:
    std::unique_ptr<ZrFeedSource> make(const QString &feed, quint32 seed = 1);
    void write(const char *name, const QByteArray &content);

    ZrReferenceHost m_host;
    QTemporaryDir m_folder;
    QString m_error;
};

namespace {
const QStringList shipped = {QStringLiteral("/nonexistent"), QStringLiteral(ZR_CLIENT_RECORDINGS)};

QList<ZrFeedEvent> begin(ZrFeedSource *source, int count)
{
    QList<ZrFeedEvent> events;
    ZrFeedEvent event;
    while (events.size() < count && source->next(&event))
        events.append(event);
    return events;
}
} // namespace

void tst_ZrFeedFactory::initTestCase()
{
    QVERIFY(m_folder.isValid());
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.filePath(QStringLiteral("config"));
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

std::unique_ptr<ZrFeedSource> tst_ZrFeedFactory::make(const QString &feed, quint32 seed)
{
    ZrWorkstationOptions options;
    options.feed = feed;
    options.seed = seed;
    m_error.clear();
    return ZrFeedFactory::make(options, shipped, &m_error);
}

void tst_ZrFeedFactory::write(const char *name, const QByteArray &content)
{
    QFile file(m_folder.filePath(QLatin1String(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_ZrFeedFactory::theSimulatorTradesTheHostsSecurities()
{
    const auto source = make(QString());
    QVERIFY2(source, qPrintable(m_error));
    QSet<QByteArray> symbols, markets;
    for (const ZrFeedEvent &event : begin(source.get(), 6000)) {
        symbols.insert(event.symbol);
        markets.insert(event.symbol.mid(event.symbol.lastIndexOf('.') + 1));
    }
    QCOMPARE(symbols.size(), 40);
    QCOMPARE(markets, (QSet<QByteArray>{"SH", "SZ"}));
    // Prices start from the previous close that the host's data tells.
    int books = 0;
    for (const ZrFeedEvent &event : begin(make(QStringLiteral("simulator")).get(), 6000)) {
        if (event.kind != ZrFeedKind::Book)
            continue;
        ++books;
        const QVariantMap details =
            CBusinessDataBase::GetInstance()->GetSecurityDetailsBySymbol(QString::fromUtf8(event.symbol));
        QCOMPARE(event.previousClose.toDouble(), details.value(ZrClientFields::previousClose).toDouble());
    }
    QVERIFY(books > 0);
}

void tst_ZrFeedFactory::theSeedDecidesWhatTheSimulatorDoes()
{
    const auto orders = [this](quint32 seed) {
        QByteArray text;
        for (const ZrFeedEvent &event : begin(make(QString(), seed).get(), 500))
            text += event.symbol + event.price.toString().toLatin1() + ' ';
        return text;
    };
    QCOMPARE(orders(7), orders(7));
    QVERIFY(orders(7) != orders(8));
}

void tst_ZrFeedFactory::aNameIsLookedForInTheFolders()
{
    const auto source = make(QStringLiteral("sample"));
    QVERIFY2(source, qPrintable(m_error));
    QCOMPARE(m_error, QString());
    QCOMPARE(begin(source.get(), 100).size(), 100);
}

void tst_ZrFeedFactory::aPathIsTakenAsItIs()
{
    write("own.csv", "T,N,Q\n09:30:00,1,200\n");
    write("own.json", R"({"files": [{"path": "own.csv", "role": "orders", "time": {"column": "T"},
        "security": {"constant": "600000.SH"}, "order": "N", "quantity": "Q"}]})");
    const auto source = make(m_folder.filePath(QStringLiteral("own.json")));
    QVERIFY2(source, qPrintable(m_error));
    const QList<ZrFeedEvent> events = begin(source.get(), 2);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().quantity.toString(), QStringLiteral("200"));
}

void tst_ZrFeedFactory::whatThereIsNotIsOneSentence_data()
{
    write("torn.json", "{\"files\": [");
    write("alone.json", R"({"files": [{"path": "missing.csv", "role": "orders", "time": {"column": "T"},
        "security": {"constant": "600000.SH"}, "order": "N", "quantity": "Q"}]})");
    QTest::addColumn<QString>("feed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no such name") << "nothing"
                                  << "there is no recording and no file \"nothing\"";
    // A name is no way out of the folders.
    QTest::newRow("a name with a slash") << "../recordings/sample"
                                         << "there is no recording and no file";
    QTest::newRow("a folder") << m_folder.path() << "there is no recording and no file";
    QTest::newRow("no JSON") << m_folder.filePath(QStringLiteral("torn.json")) << "line 1 is no JSON";
    QTest::newRow("its file is missing")
        << m_folder.filePath(QStringLiteral("alone.json")) << "missing.csv: there is no such file";
    QTest::newRow("a name longer than a screen")
        << QString(5000, QLatin1Char('x')) << QString(300, QLatin1Char('x')) + QStringLiteral("\".");
}

void tst_ZrFeedFactory::whatThereIsNotIsOneSentence()
{
    QFETCH(QString, feed);
    QFETCH(QString, expected);
    QVERIFY(!make(feed));
    QVERIFY2(m_error.contains(expected), qPrintable(m_error));
    QVERIFY(!m_error.contains(QLatin1Char('\n')));
}

void tst_ZrFeedFactory::ordersGetAccountsThatMayTrade()
{
    QVERIFY(!ZrFeedFactory::accounts().isEmpty()); // those of the seed
    const QVariantMap trades = {{"TradingAccount", "T1"},  {"AssetAccount", "A1"},
                                {"ProductAccount", "P1"},  {"InvestAccount", "I1"},
                                {"SystemNodeID", "Node7"}, {"Authorities", "AccountQuery;AccountTrade"}};
    const QVariantMap looksOn = {{"TradingAccount", "T2"}, {"Authorities", "AccountQuery"}};
    m_host.setAccounts({looksOn, trades});
    const QList<QVariantMap> accounts = ZrFeedFactory::accounts();
    QCOMPARE(accounts.size(), 1);
    const QVariantMap expected = {{Vexlor_Fields::UserAccount::tradingAccount, "T1"},
                                  {Vexlor_Fields::UserAccount::assetAccount, "A1"},
                                  {ZrClientFields::productAccount, "P1"},
                                  {ZrClientFields::investAccount, "I1"},
                                  {Vexlor_Fields::Security::systemNodeId, "Node7"}};
    QCOMPARE(accounts.first(), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrFeedFactory)
#include "tst_zrfeedfactory.moc"
