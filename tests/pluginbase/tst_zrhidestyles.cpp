#include "PluginKit.h"
#include "ZrHideStyles.h"
#include "ZrTestMain.h"

namespace {
const QString orders = QStringLiteral("Orders");
const QString shortStyle = QStringLiteral("Short");
const QString example = QStringLiteral(R"({"Orders":{"Short":["3","7"]}})");

void expectNoJson()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^ZrHideStyles no usable JSON")));
}

void expectLeftOut(int count)
{
    const QString line =
        QStringLiteral("ZrHideStyles entries beyond the bounds left out: ") + QString::number(count);
    QTest::ignoreMessage(QtWarningMsg, line.toUtf8().constData());
}
} // namespace

/// The styles of hidden columns as text, with everything that a settings file may hold.
class TestZrHideStyles : public QObject
{
    Q_OBJECT
private slots:
    void stylesAreReadAndWritten();
    void stylesAreAddedToWhatIsThere();
    void stylesInForceAreReadAndWritten();
    void columnsOfTheStyleInForce();
    void textsOfAnotherShapeGiveNothing_data();
    void textsOfAnotherShapeGiveNothing();
    void brokenTextsChangeNothing_data();
    void brokenTextsChangeNothing();
    void elements_data();
    void elements();
    void tooManyViewsAreLeftOut();
    void tooManyStylesAreLeftOut();
    void tooManyColumnsAreLeftOutAcrossTexts();
    void tooLongNamesAreLeftOut();
    void hostileTextsOfAllKindsAreSurvived();
};

void TestZrHideStyles::stylesAreReadAndWritten()
{
    ZrHideStyles styles;
    styles.addCustom(example);
    QCOMPARE(styles.custom.size(), 1);
    QCOMPARE(styles.custom.value(orders).value(shortStyle), (Columns{3, 7}));
    QCOMPARE(styles.customText(), example);
    styles.custom[orders][QStringLiteral("None")] = {};
    styles.custom[QString()][QStringLiteral("长")] = {-1};
    QCOMPARE(styles.customText(),
             QString::fromUtf8(R"({"":{"长":["-1"]},"Orders":{"None":[],"Short":["3","7"]}})"));
    ZrHideStyles again;
    again.addCustom(styles.customText());
    QCOMPARE(again.custom, styles.custom);
    QCOMPARE(ZrHideStyles().customText(), QStringLiteral("{}"));
}

void TestZrHideStyles::stylesAreAddedToWhatIsThere()
{
    ZrHideStyles styles;
    styles.addCustom(example);
    styles.addCustom(QStringLiteral(R"({"Orders":{"Short":["9"],"Long":["1"]},"Trades":{}})"));
    QCOMPARE(styles.custom.value(orders).value(shortStyle), (Columns{3, 7, 9}));
    QCOMPARE(styles.custom.value(orders).value(QStringLiteral("Long")), Columns{1});
    styles.addCustom(example);
    QCOMPARE(styles.custom.value(orders).value(shortStyle), (Columns{3, 7, 9, 3, 7}));
}

void TestZrHideStyles::stylesInForceAreReadAndWritten()
{
    ZrHideStyles styles;
    styles.readCurrent(QStringLiteral(R"({"Orders":"Short","Trades":"Long"})"));
    QCOMPARE(styles.current, (QMap<QString, QString>{{orders, shortStyle},
                                                     {QStringLiteral("Trades"), QStringLiteral("Long")}}));
    QCOMPARE(styles.currentText(), QStringLiteral(R"({"Orders":"Short","Trades":"Long"})"));
    styles.readCurrent(QStringLiteral(R"({"Orders":"Long"})"));
    QCOMPARE(styles.currentText(), QStringLiteral(R"({"Orders":"Long","Trades":"Long"})"));
    styles.readCurrent(QString());
    QCOMPARE(styles.current.size(), 2);
}

void TestZrHideStyles::columnsOfTheStyleInForce()
{
    ZrHideStyles styles;
    styles.addCustom(example);
    QVERIFY(!styles.currentColumns(orders));
    styles.current.insert(orders, shortStyle);
    QCOMPARE(styles.currentColumns(orders).value(), (Columns{3, 7}));
    styles.current.insert(orders, QStringLiteral("gone"));
    QVERIFY(styles.currentColumns(orders).value().isEmpty());
    QVERIFY(!styles.currentColumns(QStringLiteral("Trades")));
}

void TestZrHideStyles::textsOfAnotherShapeGiveNothing_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("empty") << QString();
    QTest::newRow("empty object") << QStringLiteral("{}");
    QTest::newRow("array") << QStringLiteral("[1,2]");
    QTest::newRow("view is a text") << QStringLiteral(R"({"Orders":"Short"})");
    QTest::newRow("view is an array") << QStringLiteral(R"({"Orders":["3"]})");
    QTest::newRow("style is a number") << QStringLiteral(R"({"Orders":{"Short":3}})");
    QTest::newRow("style is an object") << QStringLiteral(R"({"Orders":{"Short":{"3":"7"}}})");
}

void TestZrHideStyles::textsOfAnotherShapeGiveNothing()
{
    QFETCH(QString, json);
    ZrHideStyles styles;
    styles.addCustom(json);
    QVERIFY(styles.custom.value(orders).value(shortStyle).isEmpty());
}

void TestZrHideStyles::brokenTextsChangeNothing_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("cut off") << example.left(20);
    QTest::newRow("no JSON") << QStringLiteral("Short");
    QTest::newRow("followed by more") << QString(example + QLatin1Char('}'));
    QTest::newRow("too long") << QString(example + QString(ZrHideStyles::maxCharacters, QLatin1Char(' ')));
    QTest::newRow("nested too deep") << QString(QString(100000, QLatin1Char('[')) +
                                                QString(100000, QLatin1Char(']')));
}

void TestZrHideStyles::brokenTextsChangeNothing()
{
    QFETCH(QString, json);
    ZrHideStyles styles;
    styles.addCustom(example);
    styles.current.insert(orders, shortStyle);
    expectNoJson();
    styles.addCustom(json);
    expectNoJson();
    styles.readCurrent(json);
    QCOMPARE(styles.customText(), example);
    QCOMPARE(styles.current.size(), 1);
}

void TestZrHideStyles::elements_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<Columns>("expected");
    QTest::newRow("column") << QStringLiteral("\"12\"") << Columns{12};
    QTest::newRow("number") << QStringLiteral("12") << Columns{0};
    QTest::newRow("no number") << QStringLiteral("\"x\"") << Columns{0};
    QTest::newRow("fraction") << QStringLiteral("\"1.5\"") << Columns{0};
    QTest::newRow("beyond int") << QStringLiteral("\"99999999999\"") << Columns{0};
    QTest::newRow("null") << QStringLiteral("null") << Columns{0};
    QTest::newRow("check box column") << QStringLiteral("\"-2\"") << Columns{-2};
    QTest::newRow("before all columns") << QStringLiteral("\"-3\"") << Columns();
    QTest::newRow("last") << QStringLiteral("\"65535\"") << Columns{65535};
    QTest::newRow("behind the last") << QStringLiteral("\"65536\"") << Columns();
}

void TestZrHideStyles::elements()
{
    QFETCH(QString, element);
    QFETCH(Columns, expected);
    ZrHideStyles styles;
    if (expected.isEmpty())
        expectLeftOut(1);
    styles.addCustom(QStringLiteral(R"({"Orders":{"Short":[%1]}})").arg(element));
    QCOMPARE(styles.custom.value(orders).value(shortStyle), expected);
}

void TestZrHideStyles::tooManyViewsAreLeftOut()
{
    QStringList views;
    for (int view = 0; view < ZrHideStyles::maxViews + 5; ++view)
        views.append(QStringLiteral("\"v%1\":{\"s\":[\"1\"]}").arg(view));
    ZrHideStyles styles;
    expectLeftOut(5);
    styles.addCustom(QLatin1Char('{') + views.join(QLatin1Char(',')) + QLatin1Char('}'));
    QCOMPARE(styles.custom.size(), ZrHideStyles::maxViews);
    const QString text = QLatin1Char('{') + views.join(QLatin1Char(',')) + QLatin1Char('}');
    expectLeftOut(5);
    styles.readCurrent(QString(text).replace(QStringLiteral("{\"s\":[\"1\"]}"), QStringLiteral("\"s\"")));
    QCOMPARE(styles.current.size(), ZrHideStyles::maxViews);
}

void TestZrHideStyles::tooManyStylesAreLeftOut()
{
    QStringList names;
    for (int style = 0; style < ZrHideStyles::maxStyles + 1; ++style)
        names.append(QStringLiteral("\"s%1\":[]").arg(style));
    ZrHideStyles styles;
    expectLeftOut(1);
    styles.addCustom(QStringLiteral("{\"Orders\":{") + names.join(QLatin1Char(',')) + QStringLiteral("}}"));
    QCOMPARE(styles.custom.value(orders).size(), ZrHideStyles::maxStyles);
}

void TestZrHideStyles::tooManyColumnsAreLeftOutAcrossTexts()
{
    QStringList columns;
    for (int column = 0; column < ZrHideStyles::maxColumns - 1; ++column)
        columns.append(QStringLiteral("\"1\""));
    const QString text =
        QStringLiteral("{\"Orders\":{\"Short\":[") + columns.join(QLatin1Char(',')) + QStringLiteral("]}}");
    ZrHideStyles styles;
    styles.addCustom(text);
    expectLeftOut(ZrHideStyles::maxColumns - 2);
    styles.addCustom(text);
    QCOMPARE(styles.custom.value(orders).value(shortStyle).size(), ZrHideStyles::maxColumns);
}

void TestZrHideStyles::tooLongNamesAreLeftOut()
{
    const QString fits(ZrHideStyles::maxNameCharacters, QLatin1Char('n'));
    const QString tooLong = fits + QLatin1Char('n');
    const auto object = [](const QString &name, const QString &value) {
        return QString(QStringLiteral("{\"") + name + QStringLiteral("\":") + value + QLatin1Char('}'));
    };
    ZrHideStyles styles;
    styles.addCustom(object(fits, object(fits, QStringLiteral("[]"))));
    expectLeftOut(1);
    styles.addCustom(object(tooLong, object(fits, QStringLiteral("[]"))));
    expectLeftOut(1);
    styles.addCustom(object(fits, object(tooLong, QStringLiteral("[]"))));
    expectLeftOut(1);
    styles.readCurrent(object(orders, QLatin1Char('"') + tooLong + QLatin1Char('"')));
    QCOMPARE(styles.custom.size(), 1);
    QCOMPARE(styles.custom.value(fits).keys(), QStringList{fits});
    QVERIFY(styles.current.isEmpty());
}

void TestZrHideStyles::hostileTextsOfAllKindsAreSurvived()
{
    const LogCatcher log; // most of these texts are told of
    quint32 seed = 4;
    for (int round = 0; round < 5000; ++round) {
        QString text = example;
        for (int change = 0; change < 3; ++change) {
            seed = seed * 1664525u + 1013904223u;
            text[int((seed >> 8) % quint32(text.size()))] = QChar(ushort(seed >> 20 & 0x7f));
        }
        ZrHideStyles styles;
        styles.addCustom(text);
        styles.readCurrent(text);
        ZrHideStyles again;
        again.addCustom(styles.customText());
        QCOMPARE(again.custom, styles.custom);
    }
}

ZR_TEST_MAIN(TestZrHideStyles)
#include "tst_zrhidestyles.moc"
