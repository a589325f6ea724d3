#include "FormScene.h"
#include "ZrParamText.h"

class TestParamText : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aValueShowsItsConfiguredTextOrItself();
    void aCellShowsWhatItsColumnMeans_data();
    void aCellShowsWhatItsColumnMeans();

private:
    FormHost m_host;
};

void TestParamText::initTestCase()
{
    QVERIFY(m_host.isReady());
}

void TestParamText::aValueShowsItsConfiguredTextOrItself()
{
    QCOMPARE(ZrParamText::ofBasic(Vexlor_Fields::UserAccount::SymbolPost, "SH"), QString("Shanghai"));
    QCOMPARE(ZrParamText::ofBasic(Vexlor_Fields::UserAccount::SymbolPost, "XX"), QString("XX"));
    QCOMPARE(ZrParamText::ofBasic("unknown", "SH"), QString("SH"));
}

void TestParamText::aCellShowsWhatItsColumnMeans_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariantMap>("more");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    const QString text = Constants::VALUETYPE_STRING;
    const QVariantMap choice = {
        {Constants::STRATEGYPARAM_OPTIONS, form::options({{"Buy", 1}, {"Sell", "2"}})}};
    const QString symbol = Vexlor_Fields::Security::symbol;
    const QString account = Vexlor_Fields::UserAccount::tradingAccount;
    const QString post = Vexlor_Fields::UserAccount::SymbolPost;
    QTest::newRow("security") << symbol << text << QVariantMap() << "600001.SH"
                              << "600001";
    QTest::newRow("unknown security") << symbol << text << QVariantMap() << "1.X"
                                      << "";
    QTest::newRow("security goes before choices") << symbol << text << choice << "600001.SH"
                                                  << "600001";
    QTest::newRow("account") << account << text << QVariantMap() << "T1"
                             << "first";
    QTest::newRow("unknown account") << account << text << QVariantMap() << "T9"
                                     << "";
    QTest::newRow("choice") << "side" << text << choice << "2"
                            << "Sell";
    QTest::newRow("choice stored as a number") << "side" << text << choice << "1"
                                               << "Buy";
    QTest::newRow("no choice but configured") << post << text << choice << "SZ"
                                              << "Shenzhen";
    QTest::newRow("neither") << "side" << text << choice << "3"
                             << "";
    QTest::newRow("text") << "note" << text << QVariantMap() << "1.50"
                          << "1.50";
    QTest::newRow("double") << "price" << Constants::VALUETYPE_DOUBLE << QVariantMap() << "1.50"
                            << "1.5";
    QTest::newRow("int") << "qty" << Constants::VALUETYPE_INT << QVariantMap() << "0100"
                         << "100";
    QTest::newRow("long") << "qty" << Constants::VALUETYPE_INT64 << QVariantMap() << "9007199254740993"
                          << "9007199254740993";
    QTest::newRow("truth") << "on" << Constants::VALUETYPE_BOOL << QVariantMap() << "1"
                           << "true";
    QTest::newRow("empty number") << "qty" << Constants::VALUETYPE_INT << QVariantMap() << ""
                                  << "";
}

void TestParamText::aCellShowsWhatItsColumnMeans()
{
    QFETCH(QString, id);
    QFETCH(QString, type);
    QFETCH(QVariantMap, more);
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    QCOMPARE(ZrParamText::ofCell(form::record(id, Constants::WIDGETTYPE_LINEEDIT, type, more), stored),
             expected);
}

ZR_TEST_MAIN(TestParamText)
#include "tst_zrparamtext.moc"
