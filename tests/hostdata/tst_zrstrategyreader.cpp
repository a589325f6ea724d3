#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "ZrTestMain.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

namespace {
struct Read
{
    int code = 1;
    QList<QVariantMap> basic, initial, running, results, links;
    QVariantMap strategy, settings;

    QStringList ids() const
    {
        QStringList list;
        for (const QVariantMap &record : basic)
            list.append(record.value(Constants::STRATEGYPARAM_PARAMID).toString());
        return list;
    }
};

Read read(const QString &path)
{
    Read result;
    // What stood in the lists before must be gone afterwards.
    result.basic = result.initial = result.running = result.results = result.links = {{{"old", 1}}};
    result.strategy = result.settings = {{"old", 1}};
    result.code =
        ZrCommonUtils::praseAlgoParamJsonFile(path, result.basic, result.initial, result.running,
                                              result.results, result.links, result.strategy, result.settings);
    return result;
}

const char *const Head = R"("strategy": {"id": "s"}, )";

/// A description around the parts given, with the basic parameters given.
QByteArray withBasic(const QByteArray &parameters)
{
    return QByteArray("{") + Head + "\"basic\": [" + parameters + "]}";
}

QByteArray withColumns(const QByteArray &columns)
{
    return QByteArray("{") + Head + R"("initial": [{"id": "v", "columns": [)" + columns + "]}]}";
}

QVariantMap columnOf(const Read &read, int column)
{
    const QVariantMap table = read.initial.value(0);
    return table.value(Constants::STRATEGYPARAM_INITIALPARAMVIEWPARAMLIST).toList().value(column).toMap();
}
} // namespace

class TestStrategyReader : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void anEmptySheetHasItsDefaults();
    void theInterfaceIsReadAsTold();
    void aParameterBecomesItsRecord();
    void valuesComeInTheirType_data();
    void valuesComeInTheirType();
    void aParameterWithoutARowGoesBelowTheOneBefore();
    void casesAreComparedAsTexts();
    void securitiesBecomeOneText();
    void aTableHasItsColumns();
    void aColumnMayDependOnAFieldOfTheSecurity();
    void linksOfTheBasicParametersAreTold();
    void commentsMeanNothing();
    void aBadFileIsRefusedInOneLine_data();
    void aBadFileIsRefusedInOneLine();
    void aHugeFileIsRefusedUnread();
    void aPipeIsNoFile();
    void aBadParameterIsLeftOutInOneLine_data();
    void aBadParameterIsLeftOutInOneLine();
    void aCircleIsLeftOutWithWhatHangsOnIt();
    void aBadTableIsLeftOutInOneLine_data();
    void aBadTableIsLeftOutInOneLine();
    void linesAreBounded();
    void aLineFromTheFileStaysOneLine();
    void theDescriptionsOfThePluginsAreRight_data();
    void theDescriptionsOfThePluginsAreRight();

private:
    QString write(const QByteArray &content)
    {
        const QString path = m_folder->filePath(QStringLiteral("sheet.json"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the test's file can't be written");
        return path;
    }
    /// Announces the line, which holds file and key.
    static void expectLine(const QString &text)
    {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("praseAlgoParamJsonFile .*sheet\\.json: ") +
                                                QRegularExpression::escape(text)));
    }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestStrategyReader::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestStrategyReader::cleanup()
{
    m_folder.reset();
}

void TestStrategyReader::anEmptySheetHasItsDefaults()
{
    const Read sheet = read(write(R"({"strategy": {"id": "s"}})"));
    QCOMPARE(sheet.code, 0);
    QVERIFY(sheet.basic.isEmpty() && sheet.initial.isEmpty() && sheet.running.isEmpty() &&
            sheet.results.isEmpty() && sheet.links.isEmpty());
    QCOMPARE(sheet.strategy.value(Constants::STRATEGYPARAM_PARAMID), QVariant("s"));
    QCOMPARE(sheet.settings.value(Constants::STRATEGYPARAM_INITIALPARAMLAYOUT),
             QVariant(Constants::STRATEGYPARAM_VBOXLAYOUT));
    QCOMPARE(sheet.settings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMVISIABLE), QVariant(true));
    QCOMPARE(sheet.settings.value(Constants::STRATEGYPARAM_INITIALPARAMVISIABLE), QVariant(true));
    QCOMPARE(sheet.settings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMDESCVISIABLE), QVariant(false));
    QCOMPARE(sheet.settings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMWIDTH), QVariant(0));
    QVERIFY(sheet.settings.value(Constants::STRATEGYPARAM_INITIALBASICPARAMUI) !=
            QVariant(Constants::STRATEGYPARAM_VIEWDISPLAY));
}

void TestStrategyReader::theInterfaceIsReadAsTold()
{
    const Read sheet = read(write(R"({"strategy": {"id": "s", "name": "n", "description": "d"},
        "interface": {"layout": "horizontal", "basicAs": "table", "showBasic": false,
                      "showDescriptions": true, "basicWidth": 300, "showInitial": false}})"));
    QCOMPARE(sheet.code, 0);
    QCOMPARE(sheet.strategy.value(Constants::STRATEGYPARAM_PARAMNAME), QVariant("n"));
    QCOMPARE(sheet.strategy.value(Constants::STRATEGYPARAM_PARAMDESC), QVariant("d"));
    const QVariantMap expected = {
        {Constants::STRATEGYPARAM_INITIALPARAMLAYOUT, Constants::STRATEGYPARAM_HBOXLAYOUT},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMUI, Constants::STRATEGYPARAM_VIEWDISPLAY},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMVISIABLE, false},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMDESCVISIABLE, true},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMWIDTH, 300},
        {Constants::STRATEGYPARAM_INITIALPARAMVISIABLE, false}};
    QCOMPARE(sheet.settings, expected);
}

void TestStrategyReader::aParameterBecomesItsRecord()
{
    const Read sheet = read(write(withBasic(R"({"id": "Qty", "name": "数量", "description": "d",
        "editor": "line", "type": "double", "required": true, "editableWhileRunning": true, "row": 3,
        "nameWidth": 80, "editorWidth": 120, "maxLength": 12, "precision": 2, "pattern": "[0-9]*",
        "min": 1, "max": 100, "exclusiveMin": 0.5, "exclusiveMax": 100.5, "initial": 7})")));
    QCOMPARE(sheet.code, 0);
    const QVariantMap expected = {{Constants::STRATEGYPARAM_PARAMID, "Qty"},
                                  {Constants::STRATEGYPARAM_PARAMNAME, "数量"},
                                  {Constants::STRATEGYPARAM_PARAMDESC, "d"},
                                  {Constants::STRATEGYPARAM_WIDGETTYPE, Constants::WIDGETTYPE_LINEEDIT},
                                  {Constants::STRATEGYPARAM_VALUETYPE, Constants::VALUETYPE_DOUBLE},
                                  {Constants::STRATEGYPARAM_CANBEEMPTY, "0"},
                                  {Constants::STRATEGYPARAM_EDITABLEAFTERRUNNING, true},
                                  {Constants::STRATEGYPARAM_ROW, 3},
                                  {Constants::STRATEGYPARAM_NAMEWIDTH, 80},
                                  {Constants::STRATEGYPARAM_WIDGETWIDTH, 120},
                                  {Constants::STRATEGYPARAM_VALUELENGTH, 12},
                                  {Constants::STRATEGYPARAM_PRECISION, 2},
                                  {Constants::STRATEGYPARAM_REGEXPVALIDATOR, "[0-9]*"},
                                  {Constants::STRATEGYPARAM_MINVALUE, 1.0},
                                  {Constants::STRATEGYPARAM_MAXVALUE, 100.0},
                                  {Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE, 0.5},
                                  {Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE, 100.5},
                                  {Constants::STRATEGYPARAM_INIT, 7.0}};
    QCOMPARE(sheet.basic, QList<QVariantMap>{expected});
}

void TestStrategyReader::valuesComeInTheirType_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("text") << QByteArray(R"("editor": "line", "initial": "7")") << QVariant("7");
    QTest::newRow("whole") << QByteArray(R"("editor": "spin", "type": "int", "initial": 7)") << QVariant(7);
    QTest::newRow("least whole") << QByteArray(R"("editor": "line", "type": "int", "initial": -2147483648)")
                                 << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("long") << QByteArray(R"("editor": "line", "type": "int64", "initial": 9007199254740992)")
                          << QVariant(qint64(9007199254740992));
    QTest::newRow("double") << QByteArray(R"("editor": "spin", "type": "double", "initial": 0.01)")
                            << QVariant(0.01);
    QTest::newRow("truth") << QByteArray(R"("editor": "check", "initial": true)") << QVariant(true);
    QTest::newRow("time") << QByteArray(R"("editor": "time", "initial": "09:30:00")") << QVariant("09:30:00");
    QTest::newRow("date and time") << QByteArray(R"("editor": "dateTime", "initial": "2024-02-29 09:30:00")")
                                   << QVariant("2024-02-29 09:30:00");
    QTest::newRow("choice") << QByteArray(
                                   R"("editor": "combo", "type": "int", "initial": 2,
                                      "options": [{"text": "two", "value": 2}])")
                            << QVariant(2);
    QTest::newRow("choice of a case") << QByteArray(
                                             R"("editor": "radio", "initial": "b", "options": [],
                                                "dependsOn": {"parameter": "other", "cases": [{"value": 1,
                                                "options": [{"text": "B", "value": "b"}]}]})")
                                      << QVariant("b");
}

void TestStrategyReader::valuesComeInTheirType()
{
    QFETCH(QByteArray, keys);
    QFETCH(QVariant, expected);
    const Read sheet =
        read(write(withBasic(R"({"id": "other", "editor": "line"}, {"id": "p", )" + keys + "}")));
    QCOMPARE(sheet.basic.size(), 2);
    const QVariant initial = sheet.basic.at(1).value(Constants::STRATEGYPARAM_INIT);
    QCOMPARE(initial.userType(), expected.userType());
    QCOMPARE(initial, expected);
}

void TestStrategyReader::aParameterWithoutARowGoesBelowTheOneBefore()
{
    const Read sheet = read(write(withBasic(R"({"id": "a", "editor": "line"},
        {"id": "b", "editor": "line", "row": 5}, {"id": "c", "editor": "line"})")));
    QList<int> rows;
    for (const QVariantMap &record : sheet.basic)
        rows.append(record.value(Constants::STRATEGYPARAM_ROW).toInt());
    QCOMPARE(rows, (QList<int>{1, 5, 6}));
}

void TestStrategyReader::casesAreComparedAsTexts()
{
    const Read sheet = read(write(withBasic(R"({"id": "a", "editor": "line"},
        {"id": "b", "editor": "line", "type": "double", "dependsOn": {"parameter": "a", "cases": [
            {"value": 100, "precision": 3}, {"value": true}, {"value": "x", "pattern": ""}]}})")));
    QCOMPARE(sheet.ids(), (QStringList{"a", "b"}));
    const QVariantMap record = sheet.basic.at(1);
    QCOMPARE(record.value(Constants::STRATEGYPARAM_LINKPARAMID), QVariant("a"));
    const QVariantList expected = {
        QVariantMap{{Constants::STRATEGYPARAM_PARAMVALUE, "100"}, {Constants::STRATEGYPARAM_PRECISION, 3}},
        QVariantMap{{Constants::STRATEGYPARAM_PARAMVALUE, "true"}},
        QVariantMap{{Constants::STRATEGYPARAM_PARAMVALUE, "x"},
                    {Constants::STRATEGYPARAM_REGEXPVALIDATOR, ""}}};
    QCOMPARE(record.value(Constants::STRATEGYPARAM_LINKTYPE).toList(), expected);
    // A number would equal 1e2, and whatever else converts to it.
    QCOMPARE(expected.at(0).toMap().value(Constants::STRATEGYPARAM_PARAMVALUE).userType(),
             int(QMetaType::QString));
}

void TestStrategyReader::securitiesBecomeOneText()
{
    const Read sheet = read(
        write(withBasic(R"({"id": "Symbol", "editor": "security", "securities": ["Stock|Main", "Fund"]})")));
    QCOMPARE(sheet.basic.value(0).value(Constants::STRATEGYPARAM_OPTIONS), QVariant("Stock|Main/Fund"));
}

void TestStrategyReader::aTableHasItsColumns()
{
    const Read sheet = read(write(QByteArray("{") + Head + R"("initial": [
        {"id": "v", "name": "view", "required": true, "columns": [
            {"id": "a", "editor": "line", "key": true, "addsRow": true}, {"id": "b", "editor": "line"}]},
        {"id": "w", "columns": [{"id": "a", "editor": "line", "key": true}]}]})"));
    QCOMPARE(sheet.initial.size(), 2);
    QCOMPARE(sheet.initial.at(0).value(Constants::STRATEGYPARAM_PARAMID), QVariant("v"));
    QCOMPARE(sheet.initial.at(0).value(Constants::STRATEGYPARAM_PARAMNAME), QVariant("view"));
    QCOMPARE(sheet.initial.at(0).value(Constants::STRATEGYPARAM_CANBEEMPTY), QVariant(false));
    QCOMPARE(sheet.initial.at(1).value(Constants::STRATEGYPARAM_PARAMNAME), QVariant("w"));
    QCOMPARE(sheet.initial.at(1).value(Constants::STRATEGYPARAM_CANBEEMPTY), QVariant(true));
    QCOMPARE(columnOf(sheet, 0).value(Constants::STRATEGYPARAM_KEY), QVariant(true));
    QCOMPARE(columnOf(sheet, 0).value(Constants::STRATEGYPARAM_EXTRAACTION), QVariant("addrow"));
    QCOMPARE(columnOf(sheet, 1).value(Constants::STRATEGYPARAM_KEY), QVariant(false));
    QVERIFY(!columnOf(sheet, 1).contains(Constants::STRATEGYPARAM_EXTRAACTION));
}

void TestStrategyReader::aColumnMayDependOnAFieldOfTheSecurity()
{
    const QByteArray dependent = R"({"id": "b", "editor": "combo", "options": [{"text": "X", "value": "x"}],
        "dependsOn": {"securityField": "SecurityType", "cases": []}})";
    const QByteArray id = Vexlor_Fields::Security::symbol.toUtf8();
    const Read sheet = read(
        write(withColumns(R"({"id": ")" + id + R"(", "editor": "security", "key": true}, )" + dependent)));
    QCOMPARE(columnOf(sheet, 1).value(Constants::STRATEGYPARAM_LINKPARAMID), QVariant("SecurityType"));
    // Without a security in the row there is no such field.
    expectLine("left out: key \"initial[0].columns[1].dependsOn\": there is no parameter");
    const Read without =
        read(write(withColumns(R"({"id": "a", "editor": "line", "key": true}, )" + dependent)));
    QCOMPARE(columnOf(without, 0).value(Constants::STRATEGYPARAM_PARAMID), QVariant("a"));
    QCOMPARE(columnOf(without, 1), QVariantMap());
}

void TestStrategyReader::linksOfTheBasicParametersAreTold()
{
    const Read sheet = read(write(withBasic(R"({"id": "a", "editor": "line"},
        {"id": "b", "editor": "line", "dependsOn": {"parameter": "a"}})")));
    const QVariantMap link = {{Constants::STRATEGYPARAM_PARAMID, "b"},
                              {Constants::STRATEGYPARAM_LINKPARAMID, "a"}};
    QCOMPARE(sheet.links, QList<QVariantMap>{link});
}

void TestStrategyReader::commentsMeanNothing()
{
    const Read sheet = read(write(QByteArray("\xEF\xBB\xBF{\"$schema\": \"x\", \"comment\": [1], ") + Head +
                                  R"("basic": [{"comment": {}, "id": "a", "editor": "line"}],
                                     "running": [{"id": "a", "editor": "label"}],
                                     "results": [{"id": "b", "editor": "label"}]})"));
    QCOMPARE(sheet.code, 0);
    QCOMPARE(sheet.ids(), QStringList("a"));
    QCOMPARE(sheet.running.value(0).value(Constants::STRATEGYPARAM_PARAMID), QVariant("a"));
    QCOMPARE(sheet.results.value(0).value(Constants::STRATEGYPARAM_PARAMID), QVariant("b"));
}

void TestStrategyReader::aBadFileIsRefusedInOneLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << QByteArray() << "refused: line 1 is no JSON";
    QTest::newRow("no JSON") << QByteArray("{\n\n\"a\": }") << "refused: line 3 is no JSON";
    QTest::newRow("list") << QByteArray("[]") << "refused: it holds no JSON object";
    QTest::newRow("1,000 levels") << QByteArray(1000, '[') + QByteArray(1000, ']')
                                  << "refused: it is nested too deep";
    QTest::newRow("a million levels") << QByteArray(1000000, '{') << "refused: it is nested too deep";
    QTest::newRow("no strategy") << QByteArray("{}") << "refused: key \"strategy\": an object is wanted";
    QTest::newRow("strategy without id")
        << QByteArray(R"({"strategy": {}})") << "refused: key \"strategy.id\": a text that is not empty";
    QTest::newRow("unknown key") << QByteArray(R"({"strategy": {"id": "s"}, "basics": []})")
                                 << "refused: key \"basics\": it means nothing here";
    QTest::newRow("unknown layout")
        << QByteArray(R"({"strategy": {"id": "s"}, "interface": {"layout": "round"}})")
        << "refused: key \"interface.layout\": \"round\" is none of horizontal, vertical";
    QTest::newRow("width of another type")
        << QByteArray(R"({"strategy": {"id": "s"}, "interface": {"basicWidth": "wide"}})")
        << "refused: key \"interface.basicWidth\": a whole number";
    QTest::newRow("width that is no whole number")
        << QByteArray(R"({"strategy": {"id": "s"}, "interface": {"basicWidth": 1.5}})")
        << "refused: key \"interface.basicWidth\": a whole number";
    QTest::newRow("parameters that are no list")
        << QByteArray(R"({"strategy": {"id": "s"}, "basic": {}})") << "refused: key \"basic\": a list";
    QTest::newRow("too many parameters") << withBasic(QByteArray("1,").repeated(1000) + "1")
                                         << "refused: key \"basic\": a list of at most 1000";
}

void TestStrategyReader::aBadFileIsRefusedInOneLine()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    expectLine(line);
    QElapsedTimer clock;
    clock.start();
    const Read sheet = read(write(content));
    QVERIFY(clock.elapsed() < 1000);
    QCOMPARE(sheet.code, -1);
    QVERIFY(sheet.basic.isEmpty() && sheet.initial.isEmpty() && sheet.running.isEmpty() &&
            sheet.results.isEmpty() && sheet.links.isEmpty() && sheet.strategy.isEmpty() &&
            sheet.settings.isEmpty());
}

void TestStrategyReader::aHugeFileIsRefusedUnread()
{
    const QString path = write("{}");
    QVERIFY(QFile::resize(path, 100 * 1024 * 1024));
    expectLine("refused: a description is no larger than a megabyte");
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(read(path).code, -1);
    QVERIFY(clock.elapsed() < 1000);
}

void TestStrategyReader::aPipeIsNoFile()
{
    expectLine("refused: there is no such file, or it cannot be read");
    QCOMPARE(read(m_folder->filePath("sheet.json")).code, -1);
    QVERIFY(QDir(m_folder->path()).mkdir("sheet.json"));
    expectLine("refused: there is no such file, or it cannot be read");
    QCOMPARE(read(m_folder->filePath("sheet.json")).code, -1);
    QTest::ignoreMessage(
        QtWarningMsg, "ZrCommonUtils::praseAlgoParamJsonFile /dev/zero: refused: there is no such file, or "
                      "it cannot be read");
    QCOMPARE(read("/dev/zero").code, -1);
}

void TestStrategyReader::aBadParameterIsLeftOutInOneLine_data()
{
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QString>("line"); // after the parameter's place
    const auto row = [](const char *name, const char *keys, const char *line) {
        QTest::newRow(name) << QByteArray(keys) << line;
    };
    row("no id", R"("editor": "line")", ".id\": a text that is not empty is wanted");
    row("empty id", R"("id": " ", "editor": "line")", ".id\": a text that is not empty is wanted");
    row("id of another type", R"("id": 5, "editor": "line")", ".id\": a text is wanted");
    row("id given before", R"("id": "good", "editor": "line")", ".id\": \"good\" was given before");
    row("no editor", R"("id": "p")", ".editor\": \"\" is none of ");
    row("unknown editor", R"("id": "p", "editor": "slider")", ".editor\": \"slider\" is none of ");
    row("unknown type", R"("id": "p", "editor": "line", "type": "float")", ".type\": \"float\" is none of ");
    row("spin box without a type", R"("id": "p", "editor": "spin")", ".type\": \"\" is none of ");
    row("type that the editor has not", R"("id": "p", "editor": "spin", "type": "string")",
        ".type\": this editor does not edit such values");
    row("misspelled bound", R"("id": "p", "editor": "line", "type": "int", "maximum": 5)",
        ".maximum\": it means nothing here");
    row("bound of a text", R"("id": "p", "editor": "line", "max": 5)", ".max\": it means nothing here");
    row("bounds crossed", R"("id": "p", "editor": "line", "type": "int", "min": 5, "max": 4)",
        ".max\": no value is within the bounds");
    row("exclusive bounds that meet",
        R"("id": "p", "editor": "line", "type": "double", "exclusiveMin": 5, "exclusiveMax": 5)",
        ".max\": no value is within the bounds");
    row("bound above an int", R"("id": "p", "editor": "spin", "type": "int", "max": 2147483648)",
        ".max\": a whole number from -2147483648 to 2147483647 is wanted");
    row("bound of a long spin box above an int",
        R"("id": "p", "editor": "spin", "type": "int64", "max": 2147483648)",
        ".max\": a whole number from -2147483648 to 2147483647 is wanted");
    row("long spin box without a bound", R"("id": "p", "editor": "spin", "type": "int64")",
        ".max\": a spin box of this type needs a greatest value");
    row("long beyond what is exact", R"("id": "p", "editor": "line", "type": "int64", "max": 1e16)",
        ".max\": a whole number of at most 53 bits is wanted");
    row("step of zero", R"("id": "p", "editor": "spin", "type": "double", "step": 0)",
        ".step\": a number above 0 is wanted");
    row("initial of another type", R"("id": "p", "editor": "line", "type": "int", "initial": "5")",
        ".initial\": a whole number from");
    row("initial beyond the bounds", R"("id": "p", "editor": "line", "type": "int", "max": 4, "initial": 5)",
        ".initial\": it is not within the bounds");
    row("initial on an exclusive bound",
        R"("id": "p", "editor": "line", "type": "int", "exclusiveMin": 0, "initial": 0)",
        ".initial\": it is not within the bounds");
    row("initial that is no choice",
        R"("id": "p", "editor": "combo", "initial": "b", "options": [{"text": "A", "value": "a"}])",
        ".initial\": it is none of the options");
    row("initial that is no time", R"("id": "p", "editor": "time", "initial": "25:00:00")",
        ".initial\": a time such as");
    row("initial that is no day", R"("id": "p", "editor": "dateTime", "initial": "2023-02-29 00:00:00")",
        ".initial\": a time such as");
    row("row 0", R"("id": "p", "editor": "line", "row": 0)", ".row\": a whole number from 1 to 10000");
    row("row beyond a form", R"("id": "p", "editor": "line", "row": 10001)",
        ".row\": a whole number from 1 to 10000");
    row("width below 0", R"("id": "p", "editor": "line", "editorWidth": -1)",
        ".editorWidth\": a whole number from 0");
    row("text for a truth", R"("id": "p", "editor": "line", "required": "0")",
        ".required\": true or false is wanted");
    row("key of a column", R"("id": "p", "editor": "line", "key": true)", ".key\": it means nothing here");
    row("broken pattern", R"("id": "p", "editor": "line", "pattern": "[0-9")",
        ".pattern\": it is no pattern");
    row("pattern that explodes", R"("id": "p", "editor": "line", "pattern": "((a{100}){100}){100}")",
        ".pattern\": it is too long or repeats too much");
    row("option without a value", R"("id": "p", "editor": "combo", "options": [{"text": "A"}])",
        ".options[0].value\": a value is wanted");
    row("option of another type",
        R"("id": "p", "editor": "combo", "options": [{"text": "A", "value": "a"}, {"text": "B", "value": 1}])",
        ".options[1].value\": a text is wanted");
    row("option that is no object", R"("id": "p", "editor": "combo", "options": ["A"])",
        ".options[0]\": an object is wanted");
    row("options for a line", R"("id": "p", "editor": "line", "options": [])",
        ".options\": it means nothing here");
    row("security type in three parts", R"("id": "p", "editor": "security", "securities": ["a|b|c"])",
        ".securities[0]\": a type such as");
    row("dependency on nothing", R"("id": "p", "editor": "line", "dependsOn": {})",
        ".dependsOn.parameter\": a text that is not empty");
    row("dependency that dangles", R"("id": "p", "editor": "line", "dependsOn": {"parameter": "gone"})",
        ".dependsOn\": there is no parameter \"gone\" here");
    row("dependency on itself", R"("id": "p", "editor": "line", "dependsOn": {"parameter": "p"})",
        ".dependsOn\": it depends on itself");
    row("dependency of a spin box",
        R"("id": "p", "editor": "spin", "type": "int", "dependsOn": {"parameter": "good"})",
        ".dependsOn\": it means nothing here");
    row("case without a value",
        R"("id": "p", "editor": "line", "dependsOn": {"parameter": "good", "cases": [{}]})",
        ".dependsOn.cases[0].value\": a text, a number");
    row("precision of a case out of range",
        R"("id": "p", "editor": "line", "type": "double",
           "dependsOn": {"parameter": "good", "cases": [{"value": 1, "precision": 13}]})",
        ".dependsOn.cases[0].precision\": a whole number from 0 to 12");
    row("option of a case without a text",
        R"("id": "p", "editor": "combo", "dependsOn": {"parameter": "good", "cases": [
           {"value": 1, "options": [{"value": "a", "text": 1}]}]})",
        ".options[0].text\": a text is wanted");
}

void TestStrategyReader::aBadParameterIsLeftOutInOneLine()
{
    QFETCH(QByteArray, keys);
    QFETCH(QString, line);
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(QStringLiteral("praseAlgoParamJsonFile .*sheet\\.json: left out: key "
                                          "\"basic\\[1\\].*") +
                           QRegularExpression::escape(line)));
    const Read sheet = read(write(withBasic(R"({"id": "good", "editor": "line"}, {)" + keys +
                                            R"(}, {"id": "last", "editor": "line"})")));
    QCOMPARE(sheet.code, 0);
    QCOMPARE(sheet.ids(), (QStringList{"good", "last"}));
}

void TestStrategyReader::aCircleIsLeftOutWithWhatHangsOnIt()
{
    const auto dependent = [](const QByteArray &id, const QByteArray &other) {
        return R"({"id": ")" + id + R"(", "editor": "line", "dependsOn": {"parameter": ")" + other + "\"}}";
    };
    const QByteArray circle = dependent("a", "b") + ',' + dependent("b", "c") + ',' + dependent("c", "a");
    const QByteArray tail = dependent("e", "d") + ',' + dependent("d", "a");
    for (int i = 0; i < 3; ++i)
        expectLine(QStringLiteral("left out: key \"basic[%1].dependsOn\": it depends on itself").arg(i));
    expectLine("left out: key \"basic[4].dependsOn\": there is no parameter \"a\" here");
    expectLine("left out: key \"basic[3].dependsOn\": there is no parameter \"d\" here");
    const Read sheet = read(write(
        withBasic(circle + ',' + tail + R"(,{"id": "good", "editor": "line"},)" + dependent("f", "good"))));
    QCOMPARE(sheet.ids(), (QStringList{"good", "f"}));
}

void TestStrategyReader::aBadTableIsLeftOutInOneLine_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("line");
    QTest::newRow("no object") << QByteArray("5") << "\": an object is wanted";
    QTest::newRow("no id") << QByteArray(R"({"columns": []})") << ".id\": a text that is not empty";
    QTest::newRow("id given before")
        << QByteArray(R"({"id": "v", "columns": [{"id": "a", "editor": "line", "key": true}]})")
        << ".id\": \"v\" was given before";
    QTest::newRow("no columns") << QByteArray(R"({"id": "w"})") << ".columns\": a column with \"key\"";
    QTest::newRow("no key") << QByteArray(R"({"id": "w", "columns": [{"id": "a", "editor": "line"}]})")
                            << ".columns\": a column with \"key\"";
    QTest::newRow("unknown key")
        << QByteArray(
               R"({"id": "w", "columns": [{"id": "a", "editor": "line", "key": true}],
                                            "canBeEmpty": true})")
        << ".canBeEmpty\": it means nothing here";
}

void TestStrategyReader::aBadTableIsLeftOutInOneLine()
{
    QFETCH(QByteArray, table);
    QFETCH(QString, line);
    expectLine("left out: key \"initial[1]" + line);
    const Read sheet = read(write(QByteArray("{") + Head + R"("initial": [
        {"id": "v", "columns": [{"id": "a", "editor": "line", "key": true}]}, )" +
                                  table + "]}"));
    QCOMPARE(sheet.code, 0);
    QCOMPARE(sheet.initial.size(), 1);
}

void TestStrategyReader::linesAreBounded()
{
    for (int i = 0; i < 50; ++i)
        expectLine(QStringLiteral("left out: key \"basic[%1]\": an object is wanted").arg(i));
    expectLine("950 more faults");
    const Read sheet = read(write(withBasic(QByteArray("1,").repeated(999) + "1")));
    QCOMPARE(sheet.code, 0);
    QVERIFY(sheet.basic.isEmpty());
}

void TestStrategyReader::aLineFromTheFileStaysOneLine()
{
    expectLine("refused: key \"a b" + QString(27, 'x') + "...");
    const QByteArray key = "a\\n b" + QByteArray(5000, 'x');
    QCOMPARE(read(write("{\"strategy\": {\"id\": \"s\"}, \"" + key + "\": 1}")).code, -1);
}

void TestStrategyReader::theDescriptionsOfThePluginsAreRight_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files = QDir(QStringLiteral(ZR_STRATEGIES)).entryInfoList({"*.json"}, QDir::Files);
    QCOMPARE(files.size(), 3);
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.baseName())) << file.filePath();
}

void TestStrategyReader::theDescriptionsOfThePluginsAreRight()
{
    QFETCH(QString, path);
    const Read sheet = read(path);
    QCOMPARE(sheet.code, 0);
    QVERIFY(!sheet.basic.isEmpty());
}

ZR_TEST_GUILESS_MAIN(TestStrategyReader)
#include "tst_zrstrategyreader.moc"
