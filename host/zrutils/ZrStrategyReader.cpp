#include "zrutils/ZrStrategyReader.h"

#include "zrdefine/Constants.h"
#include "zrutils/ZrStrategyFaults.h"
#include "zrutils/ZrStrategyFields.h"
#include "zrutils/ZrStrategyFile.h"
#include "zrutils/ZrStrategyLinks.h"
#include "zrutils/ZrStrategyParameter.h"

#include <QtCore/QJsonArray>
#include <QtCore/QMap>
#include <QtCore/QSet>

#include <algorithm>

namespace {
constexpr int mostParameters = 1000; // of a form or a table
constexpr int mostTables = 32;
constexpr int widestPx = 16777215;

void skip(const ZrStrategyFields &fields, ZrStrategyFaults *faults)
{
    faults->skip(fields.faultKey(), fields.fault());
}

QList<QVariantMap> readParameters(const QJsonArray &list, const QString &where,
                                  ZrStrategyParameter::Place place, ZrStrategyFaults *faults)
{
    QList<ZrStrategyEntry> entries;
    int row = 0;
    for (int i = 0; i < list.size(); ++i) {
        const QString here = where + QStringLiteral("[%1]").arg(i);
        ZrStrategyParameter parameter(list.at(i), here, place);
        // Without a row of its own a parameter goes below the one before.
        const QVariantMap record = parameter.read(row + 1);
        if (parameter.fields().failed())
            skip(parameter.fields(), faults);
        else
            entries.append({record, here});
        row = record.value(Constants::STRATEGYPARAM_ROW, row).toInt();
    }
    return ZrStrategyLinks::sound(entries, faults);
}

QVariantMap readTable(const QJsonValue &object, const QString &where, ZrStrategyFaults *faults)
{
    ZrStrategyFields fields(object, where);
    const QString id = fields.neededText(QStringLiteral("id"));
    const QString name = fields.has(QStringLiteral("name")) ? fields.text(QStringLiteral("name")) : id;
    const bool isRequired = fields.flag(QStringLiteral("required"), false);
    const QJsonArray list = fields.list(QStringLiteral("columns"), mostParameters);
    fields.finish();
    const QList<QVariantMap> columns = fields.failed()
                                           ? QList<QVariantMap>()
                                           : readParameters(list, fields.where(QStringLiteral("columns")),
                                                            ZrStrategyParameter::InTable, faults);
    // Without a key the row that waits to be filled in could not be told from the others.
    if (std::none_of(columns.cbegin(), columns.cend(), [](const QVariantMap &column) {
            return column.value(Constants::STRATEGYPARAM_KEY).toBool();
        }))
        fields.complain(QStringLiteral("columns"), QStringLiteral("a column with \"key\" is wanted"));
    if (fields.failed()) {
        skip(fields, faults);
        return QVariantMap();
    }
    QVariantList records;
    for (const QVariantMap &column : columns)
        records.append(column);
    return {{Constants::STRATEGYPARAM_PARAMID, id},
            {Constants::STRATEGYPARAM_PARAMNAME, name},
            {Constants::STRATEGYPARAM_CANBEEMPTY, !isRequired},
            {Constants::STRATEGYPARAM_INITIALPARAMVIEWPARAMLIST, records}};
}

QList<QVariantMap> readTables(const QJsonArray &list, ZrStrategyFaults *faults)
{
    QList<QVariantMap> tables;
    QSet<QString> ids;
    for (int i = 0; i < list.size(); ++i) {
        const QString where = QStringLiteral("initial[%1]").arg(i);
        const QVariantMap table = readTable(list.at(i), where, faults);
        const QString id = table.value(Constants::STRATEGYPARAM_PARAMID).toString();
        if (table.isEmpty())
            continue;
        if (ids.contains(id))
            faults->skip(where + QStringLiteral(".id"),
                         QStringLiteral("%1 was given before").arg(ZrStrategyFaults::quoted(id)));
        else
            tables.append(table);
        ids.insert(id);
    }
    return tables;
}

QVariantMap readSettings(ZrStrategyFields *fields)
{
    const QMap<QString, QString> layouts = {
        {QStringLiteral("vertical"), Constants::STRATEGYPARAM_VBOXLAYOUT},
        {QStringLiteral("horizontal"), Constants::STRATEGYPARAM_HBOXLAYOUT}};
    const QMap<QString, QString> faces = {{QStringLiteral("form"), QStringLiteral("form")},
                                          {QStringLiteral("table"), Constants::STRATEGYPARAM_VIEWDISPLAY}};
    return {
        {Constants::STRATEGYPARAM_INITIALPARAMLAYOUT,
         fields->word(QStringLiteral("layout"), layouts, QStringLiteral("vertical"))},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMVISIABLE, fields->flag(QStringLiteral("showBasic"), true)},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMUI,
         fields->word(QStringLiteral("basicAs"), faces, QStringLiteral("form"))},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMDESCVISIABLE,
         fields->flag(QStringLiteral("showDescriptions"), false)},
        {Constants::STRATEGYPARAM_INITIALBASICPARAMWIDTH,
         fields->whole(QStringLiteral("basicWidth"), 0, 0, widestPx)},
        {Constants::STRATEGYPARAM_INITIALPARAMVISIABLE, fields->flag(QStringLiteral("showInitial"), true)}};
}

QVariantMap readStrategy(ZrStrategyFields *fields)
{
    return {{Constants::STRATEGYPARAM_PARAMID, fields->neededText(QStringLiteral("id"))},
            {Constants::STRATEGYPARAM_PARAMNAME, fields->text(QStringLiteral("name"))},
            {Constants::STRATEGYPARAM_PARAMDESC, fields->text(QStringLiteral("description"))}};
}

/// Reads an object of the file by `read`; an empty object when there is none and none is needed.
template<typename Read>
QVariantMap readPart(ZrStrategyFields *file, const QString &key, bool isNeeded, Read read)
{
    const bool isThere = file->has(key);
    ZrStrategyFields part(isThere || isNeeded ? file->value(key) : QJsonValue(QJsonObject()), key);
    const QVariantMap result = read(&part);
    part.finish();
    file->adopt(part);
    return result;
}

QList<QVariantMap> linksOf(const QList<QVariantMap> &parameters)
{
    QList<QVariantMap> links;
    for (const QVariantMap &record : parameters) {
        const QString &id = Constants::STRATEGYPARAM_PARAMID;
        const QString &other = Constants::STRATEGYPARAM_LINKPARAMID;
        if (record.contains(other))
            links.append({{id, record.value(id)}, {other, record.value(other)}});
    }
    return links;
}
} // namespace

bool ZrStrategyReader::read(const QString &path, ZrStrategyDescription *description)
{
    *description = ZrStrategyDescription();
    ZrStrategyFaults faults(path);
    const QJsonObject object = ZrStrategyFile::read(path, &faults);
    if (faults.isRefused())
        return false;
    ZrStrategyFields file(object, QString());
    ZrStrategyDescription read;
    read.strategy = readPart(&file, QStringLiteral("strategy"), true, readStrategy);
    read.settings = readPart(&file, QStringLiteral("interface"), false, readSettings);
    const QJsonArray basic = file.list(QStringLiteral("basic"), mostParameters);
    const QJsonArray initial = file.list(QStringLiteral("initial"), mostTables);
    const QJsonArray running = file.list(QStringLiteral("running"), mostParameters);
    const QJsonArray results = file.list(QStringLiteral("results"), mostParameters);
    file.finish();
    if (file.failed()) {
        faults.refuse(file.faultKey(), file.fault());
        return false;
    }
    constexpr auto form = ZrStrategyParameter::OnForm;
    read.basic = readParameters(basic, QStringLiteral("basic"), form, &faults);
    read.initial = readTables(initial, &faults);
    read.running = readParameters(running, QStringLiteral("running"), form, &faults);
    read.results = readParameters(results, QStringLiteral("results"), form, &faults);
    read.links = linksOf(read.basic);
    *description = read;
    return true;
}
