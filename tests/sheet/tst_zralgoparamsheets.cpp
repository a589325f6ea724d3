// Random sheets: filled, read back, written to disk, read and filled again.
#include "SheetScene.h"

#include "ZrAlgoParamSettingWidget.h"
#include "ZrTableView.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRandomGenerator>

namespace {
using Rows = QMap<QString, QList<QVariantMap>>;

const char *const Texts[] = {"a", "600001.SH", "数量", "x & y", "<b>1</b>", "\"quoted\"", "-", "two  blanks"};

/// Makes descriptions and values that fit them; the same ones for the same seed.
class Maker
{
public:
    explicit Maker(quint32 seed)
        : m_random(seed)
    {
    }

    QJsonObject description()
    {
        QJsonArray tables;
        m_columns.clear();
        for (int i = below(4); i > 0; --i) {
            const QString id = QStringLiteral("table%1").arg(i);
            const QList<QJsonObject> columns = parameters(1 + below(5), true);
            tables.append(QJsonObject{{"id", id}, {"columns", array(columns)}});
            m_columns.insert(id, columns);
        }
        m_basic = parameters(1 + below(12), false);
        return {{"strategy", QJsonObject{{"id", "s"}}},
                {"interface", QJsonObject{{"layout", below(2) ? "vertical" : "horizontal"},
                                          {"basicAs", below(2) ? "form" : "table"},
                                          {"showDescriptions", below(2) == 1}}},
                {"basic", array(m_basic)},
                {"initial", tables}};
    }

    QVariantMap basicValues()
    {
        QVariantMap values;
        for (const QJsonObject &parameter : qAsConst(m_basic))
            values.insert(parameter.value("id").toString(), valueOf(parameter));
        return values;
    }

    Rows tableValues()
    {
        Rows all;
        for (auto columns = m_columns.cbegin(); columns != m_columns.cend(); ++columns) {
            QList<QVariantMap> rows;
            for (int row = below(6); row > 0; --row) {
                QVariantMap values;
                for (const QJsonObject &column : *columns)
                    values.insert(column.value("id").toString(), valueOf(column).toString());
                // Rows are told apart by their first column.
                values.insert(columns->first().value("id").toString(), QStringLiteral("key %1").arg(row));
                rows.append(values);
            }
            all.insert(columns.key(), rows);
        }
        return all;
    }

private:
    int below(int number) { return int(m_random.bounded(number)); }
    static QJsonArray array(const QList<QJsonObject> &objects)
    {
        QJsonArray result;
        for (const QJsonObject &object : objects)
            result.append(object);
        return result;
    }

    QList<QJsonObject> parameters(int count, bool areColumns)
    {
        QList<QJsonObject> list;
        for (int i = 0; i < count; ++i) {
            QJsonObject parameter = editor(areColumns && i == 0 ? 0 : below(8));
            parameter.insert("id", QStringLiteral("p%1").arg(i));
            if (areColumns && i == 0)
                parameter.insert("key", true);
            list.append(parameter);
        }
        return list;
    }

    QJsonObject editor(int kind)
    {
        const QJsonArray options = {QJsonObject{{"text", "One"}, {"value", "1"}},
                                    QJsonObject{{"text", "Two"}, {"value", "2"}},
                                    QJsonObject{{"text", "Three"}, {"value", "3"}}};
        switch (kind) {
        case 1:
            return {{"editor", "line"}, {"type", "int"}};
        case 2:
            return {{"editor", "line"}, {"type", "double"}, {"precision", 3}};
        case 3:
            return {{"editor", "check"}};
        case 4:
            return {{"editor", "combo"}, {"options", options}};
        case 5:
            return {{"editor", "radio"}, {"options", options}};
        case 6:
            return {{"editor", "spin"}, {"type", "double"}, {"step", 0.01}, {"max", 1000}};
        case 7:
            return {{"editor", "time"}};
        }
        return {{"editor", "line"}};
    }

    QVariant valueOf(const QJsonObject &parameter)
    {
        const QString editor = parameter.value("editor").toString();
        if (editor == QLatin1String("check"))
            return below(2) == 1;
        if (editor == QLatin1String("combo") || editor == QLatin1String("radio"))
            return QString::number(1 + below(3));
        if (editor == QLatin1String("spin"))
            return below(100000) / 100.0;
        if (editor == QLatin1String("time"))
            return QTime(below(24), below(60), below(60)).toString("hh:mm:ss");
        if (parameter.value("type") == QLatin1String("int"))
            return below(1000000);
        if (parameter.value("type") == QLatin1String("double"))
            return below(1000000) / 1000.0;
        return QString::fromUtf8(Texts[below(int(std::size(Texts)))]);
    }

    QRandomGenerator m_random;
    QList<QJsonObject> m_basic;
    QMap<QString, QList<QJsonObject>> m_columns;
};

QJsonObject toJson(const QVariantMap &basic, const Rows &rows)
{
    QJsonObject tables;
    for (auto table = rows.cbegin(); table != rows.cend(); ++table) {
        QJsonArray list;
        for (const QVariantMap &row : *table)
            list.append(QJsonObject::fromVariantMap(row));
        tables.insert(table.key(), list);
    }
    return {{"basic", QJsonObject::fromVariantMap(basic)}, {"tables", tables}};
}

Rows rowsOf(const QJsonObject &saved)
{
    Rows rows;
    const QJsonObject tables = saved.value("tables").toObject();
    for (auto table = tables.constBegin(); table != tables.constEnd(); ++table) {
        QList<QVariantMap> list;
        for (const QJsonValue &row : table.value().toArray())
            list.append(row.toObject().toVariantMap());
        rows.insert(table.key(), list);
    }
    return rows;
}

/// What a sheet of this description gives back when it was filled so.
class Filled
{
public:
    Filled(const QString &description, const QVariantMap &basic, const Rows &rows)
    {
        ZrAlgoParamSettingWidget widget;
        widget.resize(700, 400);
        widget.setAutoBuildWidgetDetails(description, 1);
        widget.setInitialBasicParamData(basic);
        widget.setInitialParamData(rows);
        widget.resize(1500, 500); // values outlive it
        basicResult = widget.getInitialBasicParamData(basicValues);
        tableResult = widget.getInitialParamData(tableValues, true);
    }
    QVariantMap basicValues;
    Rows tableValues;
    int basicResult = 1;
    int tableResult = 1;
};
} // namespace

class TestAlgoParamSheets : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aSheetGivesBackWhatItWasFilledWith_data();
    void aSheetGivesBackWhatItWasFilledWith();
    void theDescriptionsOfThePluginsFillAndComeBack();

private:
    FormHost m_host;
};

void TestAlgoParamSheets::initTestCase()
{
    QVERIFY(m_host.isReady());
}

void TestAlgoParamSheets::aSheetGivesBackWhatItWasFilledWith_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestAlgoParamSheets::aSheetGivesBackWhatItWasFilledWith()
{
    QFETCH(quint32, seed);
    const QuietPlatform quiet;
    Maker maker(seed);
    QTemporaryDir folder;
    const QString description = sheet::write(folder, QJsonDocument(maker.description()).toJson());
    const QVariantMap basic = maker.basicValues();
    const Rows rows = maker.tableValues();

    const Filled first(description, basic, rows);
    QCOMPARE(first.basicResult, 0);
    QCOMPARE(first.tableResult, 0);
    QCOMPARE(first.basicValues, basic);
    QCOMPARE(first.tableValues, rows);

    QFile file(folder.filePath("saved.json"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.write(QJsonDocument(toJson(first.basicValues, first.tableValues)).toJson()) > 0);
    QVERIFY(file.seek(0));
    const QJsonObject saved = QJsonDocument::fromJson(file.readAll()).object();

    const Filled second(description, saved.value("basic").toObject().toVariantMap(), rowsOf(saved));
    QCOMPARE(second.basicValues, first.basicValues);
    QCOMPARE(second.tableValues, first.tableValues);
    for (auto value = first.basicValues.cbegin(); value != first.basicValues.cend(); ++value)
        QCOMPARE(second.basicValues.value(value.key()).userType(), value->userType());
}

void TestAlgoParamSheets::theDescriptionsOfThePluginsFillAndComeBack()
{
    const QuietPlatform quiet;
    const QDir folder(QStringLiteral(ZR_STRATEGIES));
    const QVariantMap slice = {{"SliceCount", 5},       {"Interval", 30}, {"StartTime", "10:00:00"},
                               {"EndTime", "11:00:00"}, {"Side", "2"},    {"PriceType", "opposite"},
                               {"LimitPrice", 10.125},  {"Random", false}};
    const Filled byTime(folder.filePath("slice-time.json"), slice, {});
    QCOMPARE(byTime.basicResult, 0);
    QCOMPARE(byTime.basicValues, slice);

    const Rows rows = {
        {"constituents",
         {{{"SecurityCode", "600001"}, {"Side", "1"}, {"PriceType", "limit"}, {"OrderQty", "100"}}}},
        {"excluded", {{{"SecurityCode", "000002"}, {"Reason", ""}}}}};
    const Filled basket(folder.filePath("basket.json"), {{"BasketName", "b"}, {"Multiple", 2}}, rows);
    QCOMPARE(basket.basicResult, 0);
    QCOMPARE(basket.tableResult, 0);
    QCOMPARE(basket.tableValues, rows);
}

ZR_TEST_MAIN(TestAlgoParamSheets)
#include "tst_zralgoparamsheets.moc"
