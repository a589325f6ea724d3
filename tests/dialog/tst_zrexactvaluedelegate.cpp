#include "DialogScene.h"
#include "ZrExactValueDelegate.h"
#include "ZrTestMain.h"

#include <QtCore/QDate>
#include <QtCore/QLocale>

class tst_ZrExactValueDelegate : public QObject
{
    Q_OBJECT
private slots:
    void aValueIsShownExactly_data();
    void aValueIsShownExactly();
    void aVeryLongValueIsBounded();
};

void tst_ZrExactValueDelegate::aValueIsShownExactly_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text") << QVariant("600000.SH") << "600000.SH";
    QTest::newRow("markup") << QVariant(DialogScene::markup()) << DialogScene::markup();
    QTest::newRow("line ends") << QVariant("a\nb\r\nc") << "a b  c";
    QTest::newRow("whole number") << QVariant(1234567) << "1234567";
    QTest::newRow("large whole number") << QVariant(Q_INT64_C(9007199254740993)) << "9007199254740993";
    QTest::newRow("more than six digits") << QVariant(1234567.89) << "1234567.89";
    QTest::newRow("large amount") << QVariant(1e15) << "1000000000000000";
    QTest::newRow("small price") << QVariant(0.001) << "0.001";
    QTest::newRow("tenth") << QVariant(0.1) << "0.1";
    QTest::newRow("float") << QVariant(57.15f) << "57.15";
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << "2024-02-29";
    QTest::newRow("truth") << QVariant(true) << "true";
    QTest::newRow("nothing") << QVariant() << "";
    QTest::newRow("no text") << QVariant(QVariantMap{{"a", 1}}) << "";
}

void tst_ZrExactValueDelegate::aValueIsShownExactly()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    const ZrExactValueDelegate delegate;
    // Whatever the user's groups and points are.
    QCOMPARE(delegate.displayText(value, QLocale(QLocale::German)), expected);
    QCOMPARE(delegate.displayText(value, QLocale::c()), expected);
}

void tst_ZrExactValueDelegate::aVeryLongValueIsBounded()
{
    const ZrExactValueDelegate delegate;
    const QString shown = delegate.displayText(DialogScene::withoutBlank(), QLocale::c());
    QVERIFY(shown.size() < 500);
    QVERIFY(shown.startsWith("WWWW"));
}

ZR_TEST_MAIN(tst_ZrExactValueDelegate)
#include "tst_zrexactvaluedelegate.moc"
