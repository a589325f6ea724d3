#include "ZrTestMain.h"
#include "ZrXmlText.h"

class tst_ZrXmlText : public QObject
{
    Q_OBJECT

private slots:
    void declarationNamesTheEncoding_data();
    void declarationNamesTheEncoding();
    void bytesThatAreNoTextFail_data();
    void bytesThatAreNoTextFail();
    void textIsDecoded_data();
    void textIsDecoded();
};

void tst_ZrXmlText::declarationNamesTheEncoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("quotes") << QByteArray("<?xml version=\"1.0\" encoding=\"GBK\"?>") << QByteArray("GBK");
    QTest::newRow("blanks") << QByteArray("<?xml version='1.0' encoding = 'GBK' ?>") << QByteArray("GBK");
    QTest::newRow("none") << QByteArray("<?xml version='1.0'?><a encoding='GBK'/>") << QByteArray();
    QTest::newRow("no declaration") << QByteArray("<a encoding='GBK'?>") << QByteArray();
    QTest::newRow("declaration without an end") << QByteArray("<?xml encoding='GBK'") << QByteArray();
    QTest::newRow("no quote") << QByteArray("<?xml encoding=GBK?>") << QByteArray();
    QTest::newRow("no value") << QByteArray("<?xml encoding=?>") << QByteArray();
    QTest::newRow("no closing quote") << QByteArray("<?xml encoding='GBK?>") << QByteArray();
    QTest::newRow("end beyond reach")
        << "<?xml encoding='GBK'" + QByteArray(1000, ' ') + "?>" << QByteArray();
}

void tst_ZrXmlText::declarationNamesTheEncoding()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, expected);
    QCOMPARE(ZrXmlText::declaredEncoding(bytes), expected);
}

void tst_ZrXmlText::bytesThatAreNoTextFail_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("broken UTF-8") << QByteArray("<a>\xff</a>");
    QTest::newRow("UTF-8 cut off") << QByteArray("<a/>\xe5\xa7");
    QTest::newRow("unknown encoding") << QByteArray("<?xml encoding='klingon'?><a/>");
}

void tst_ZrXmlText::bytesThatAreNoTextFail()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!ZrXmlText::decode(bytes).ok);
}

void tst_ZrXmlText::textIsDecoded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << QByteArray("<a/>");
    QTest::newRow("mark of UTF-8") << QByteArray("\xef\xbb\xbf<a/>");
    QTest::newRow("little endian") << QByteArray("<\0a\0/\0>\0", 8);
    QTest::newRow("big endian") << QByteArray("\0<\0a\0/\0>", 8);
    QTest::newRow("mark of little endian") << QByteArray("\xff\xfe<\0a\0/\0>\0", 10);
    QTest::newRow("mark of big endian") << QByteArray("\xfe\xff\0<\0a\0/\0>", 10);
}

void tst_ZrXmlText::textIsDecoded()
{
    QFETCH(QByteArray, bytes);
    const ZrXmlText::Result result = ZrXmlText::decode(bytes);
    QVERIFY(result.ok);
    QCOMPARE(result.text, QString("<a/>"));
}

ZR_TEST_GUILESS_MAIN(tst_ZrXmlText)
#include "tst_zrxmltext.moc"
