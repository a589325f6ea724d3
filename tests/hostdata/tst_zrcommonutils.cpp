#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QTextDocument>

class TestCommonUtils : public QObject
{
    Q_OBJECT
private slots:
    void aTipThatIsShownAsItStandsStays_data();
    void aTipThatIsShownAsItStandsStays();
    void markupInATipIsShownAndNotRead_data();
    void markupInATipIsShownAndNotRead();
    void aWideTipCanBeWrapped();
    void aVeryLongTipEndsInAnEllipsis();
    void onlyJsonBecomesADocument_data();
    void onlyJsonBecomesADocument();
    void aRefusedTextLeavesTheDocumentAlone();
};

void TestCommonUtils::aTipThatIsShownAsItStandsStays_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << QStringLiteral("600001.SH 10.25");
    QTest::newRow("comparison signs") << QStringLiteral("10 < 20");
    QTest::newRow("several short lines") << QString(QStringLiteral("line\n")).repeated(40);
    QTest::newRow("chinese") << QStringLiteral("委托数量");
}

void TestCommonUtils::aTipThatIsShownAsItStandsStays()
{
    QFETCH(QString, text);
    QCOMPARE(ZrCommonUtils::getMyTipString(text), text);
}

void TestCommonUtils::markupInATipIsShownAndNotRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("bold") << QStringLiteral("<b>bold</b>");
    QTest::newRow("picture") << QStringLiteral("<img src='file:///etc/passwd'>");
    QTest::newRow("entity in markup") << QStringLiteral("<i>&amp;</i> \"quoted\"");
    QTest::newRow("declaration") << QStringLiteral("<?xml version='1.0'?><b>x</b>");
    QTest::newRow("two lines") << QStringLiteral("<b>one\ntwo</b>");
}

void TestCommonUtils::markupInATipIsShownAndNotRead()
{
    QFETCH(QString, text);
    const QString tip = ZrCommonUtils::getMyTipString(text);
    QVERIFY(Qt::mightBeRichText(tip));
    QTextDocument document;
    document.setHtml(tip);
    QCOMPARE(document.toPlainText(), text);
    QVERIFY(!tip.contains(QLatin1String("<img")));
}

void TestCommonUtils::aWideTipCanBeWrapped()
{
    const QString word = QString(300, QLatin1Char('x'));
    const QString tip = ZrCommonUtils::getMyTipString(QStringLiteral("short\n") + word);
    QTextDocument document;
    document.setHtml(tip);
    document.setTextWidth(400);
    QVERIFY2(document.idealWidth() <= 400, "a word without a blank has to break");
    QCOMPARE(document.toPlainText().remove(QChar(0x200B)), QStringLiteral("short\n") + word);
}

void TestCommonUtils::aVeryLongTipEndsInAnEllipsis()
{
    QString text(3999, QLatin1Char('x'));
    text += QString::fromUtf8("\xF0\x9F\x98\x80") + QString(100000, QLatin1Char('y'));
    QTextDocument document;
    document.setHtml(ZrCommonUtils::getMyTipString(text));
    const QString visible = document.toPlainText().remove(QChar(0x200B));
    QCOMPARE(visible, QString(3999, QLatin1Char('x')) + QChar(0x2026));
}

void TestCommonUtils::onlyJsonBecomesADocument_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    const auto nested = [](int depth) {
        return QString(depth, QLatin1Char('[')) + QString(depth, QLatin1Char(']'));
    };
    QTest::newRow("object") << QStringLiteral("{\"a\":[1,2]}") << true;
    QTest::newRow("array") << QStringLiteral("[]") << true;
    QTest::newRow("chinese") << QStringLiteral("{\"名\":\"值\"}") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("text") << QStringLiteral("hello") << false;
    QTest::newRow("cut off") << QStringLiteral("{\"a\":") << false;
    QTest::newRow("trailing") << QStringLiteral("{} x") << false;
    QTest::newRow("as deep as allowed") << nested(128) << true;
    QTest::newRow("too deep") << nested(129) << false;
    QTest::newRow("brackets in a text")
        << QStringLiteral("[\"") + QString(500, QLatin1Char('[')) + QStringLiteral("\\\"[\"]") << true;
    QTest::newRow("a bomb of brackets") << QString(4000000, QLatin1Char('[')) << false;
    QTest::newRow("too long") << QStringLiteral("[") + QString(9 * 1024 * 1024, QLatin1Char(' ')) +
                                     QStringLiteral("]")
                              << false;
}

void TestCommonUtils::onlyJsonBecomesADocument()
{
    QFETCH(QString, text);
    QFETCH(bool, expected);
    QJsonDocument document;
    QCOMPARE(ZrCommonUtils::canCreateJsonDocu(document, text), expected);
    QCOMPARE(!document.isNull(), expected);
}

void TestCommonUtils::aRefusedTextLeavesTheDocumentAlone()
{
    QJsonDocument document;
    QVERIFY(ZrCommonUtils::canCreateJsonDocu(document, QStringLiteral("[1]")));
    QVERIFY(!ZrCommonUtils::canCreateJsonDocu(document, QStringLiteral("[1")));
    QCOMPARE(document.array().size(), 1);
}

ZR_TEST_MAIN(TestCommonUtils)
#include "tst_zrcommonutils.moc"
