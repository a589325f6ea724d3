#include "ZrTablePropertySet.h"

#include "ZrCompactDate.h"
#include "ZrDisplayChain.h"
#include "ZrDistinctCells.h"
#include "ZrRoleKeys.h"
#include "ZrTableFilterParse.h"
#include "ZrTableView.h"

#include <QtCore/QDateTime>
#include <zrdatabase/CDataBase.h>

namespace {
constexpr int MaxDecimals = 1100; // no double has more; a file could ask for a gigabyte of zeros

void store(ItemRoleMap &cell, const QString &role, const QVariant &value)
{
    // The roles come in ascending order nearly always, so the end is a good hint.
    cell.insert(cell.constEnd(), role, value);
}
} // namespace

ZrTablePropertySet::ZrTablePropertySet() = default;

void ZrTablePropertySet::setTableViewProperty(const ZrGridSetting &grid, ZrTableView *view)
{
    if (!view)
        return;
    const QList<ZrFieldSetting> fields = grid.getFieldSetList();
    HeadList heads;
    QList<int> keys;
    for (const ZrFieldSetting &field : fields) {
        // No column index is written: the view numbers the heads by position.
        heads.append({{HEAD_DISPLAYROLE, field.titleName}, {HEAD_USERROLE, QString::number(field.index)}});
        if (field.keyColumn)
            keys.append(field.index);
    }
    view->setHeadList(heads);
    view->setKeyColumn(keys);
    // Only now: a column can be filtered once there are heads and keys.
    for (const ZrFieldSetting &field : fields)
        view->setColumnFilterable(field.index, field.filterable);
    for (const ZrFieldSetting &field : fields) {
        view->setColumnWidth(field.index, field.columnWidth); // also when it is -1
        if (field.columnAlignment != 0)
            view->setColumnTextAlignment(field.index, field.columnAlignment);
    }
}

void ZrTablePropertySet::setTableRecordData(const ZrGridSetting &grid,
                                            const QList<QMap<QString, QVariant>> &messages,
                                            RecordDataList &records)
{
    records.reserve(records.size() + messages.size());
    for (const QMap<QString, QVariant> &message : messages) {
        RecordData record;
        setTableSingleRecordData(grid, message, record);
        records.append(record);
    }
}

void ZrTablePropertySet::setTableSingleRecordData(const ZrGridSetting &grid,
                                                  const QMap<QString, QVariant> &message, RecordData &record)
{
    const QList<ZrFieldSetting> fields = grid.getFieldSetList();
    for (const ZrFieldSetting &field : fields) {
        if (field.fieldNumber.isEmpty())
            continue;
        // Ascending indexes: a fresh row grows at its end.
        ItemRoleMap &cell = *record.insert(record.constEnd(), field.index, ItemRoleMap());
        const auto value = message.constFind(field.fieldNumber);
        if (value != message.constEnd())
            handleMsgValueTypeAndProperty(value.value(), cell, field);
    }
}

QString ZrTablePropertySet::getRecordKeyString(const ZrGridSetting &grid, const RecordData &record)
{
    QString key;
    const QList<ZrFieldSetting> fields = grid.getFieldSetList();
    for (const ZrFieldSetting &field : fields) {
        if (field.keyColumn)
            key.append(record.value(field.index).value(ITEM_USERROLE).toString());
    }
    return key;
}

void ZrTablePropertySet::setViewFilterList(const ZrGridSetting &grid, const RecordDataList &records,
                                           ZrTableView *view)
{
    if (!view)
        return;
    const QList<ZrFieldSetting> fields = grid.getFieldSetList();
    for (const ZrFieldSetting &field : fields) {
        if (!field.filterable)
            continue;
        // The whole property, not one word of a chain: only then do the dictionary's texts stand in the
        // cells.
        if (field.displayRoleProperty == QLatin1String("Dictionary")) {
            view->setColumnFilterDataList(field.index, dictionaryChoices(field));
            continue;
        }
        const QList<ItemRoleMap> cells = distinctCellsOf(field.index, records);
        view->setColumnFilterDataList(
            field.index, ZrTableFilterParse::getFilterRecordList(translateValueType(field.type), cells));
    }
}

QString ZrTablePropertySet::getRealRole(QString role)
{
    if (role == QLatin1String("ITEM_USERROLE"))
        return ITEM_USERROLE;
    if (role == QLatin1String("ITEM_CUSTOMROLE"))
        return ITEM_CUSTOMROLE;
    if (role == QLatin1String("ITEM_EXPORTVIEWROLE"))
        return ITEM_EXPORTVIEWROLE;
    return ITEM_DISPLAYROLE;
}

int ZrTablePropertySet::translateValueType(QString type)
{
    if (type == QLatin1String("int"))
        return QVariant::Int;
    if (type == QLatin1String("double"))
        return QVariant::Double;
    if (type == QLatin1String("long long"))
        return QVariant::LongLong;
    if (type == QLatin1String("Date"))
        return QVariant::Date;
    if (type == QLatin1String("DateTime"))
        return QVariant::DateTime;
    return QVariant::String;
}

void ZrTablePropertySet::handleMsgValueTypeAndProperty(const QVariant &value, ItemRoleMap &cell,
                                                       const ZrFieldSetting &field)
{
    if (!value.isValid())
        return;
    const int type = translateValueType(field.type);
    QString text = displayTextOf(value, type, field);
    // The display text first: a column whose text goes to the raw role loses it to the raw value.
    handleDisplayMsgValueProperty(text, cell, field);
    const QVariant raw = storeRawValue(value, type, cell, field);
    handleExportViewRoleProperty(text, raw, cell, field);
}

QString ZrTablePropertySet::displayTextOf(const QVariant &value, int type, const ZrFieldSetting &field)
{
    // Only here do the digits count, and only for "double"; the word "Percent" reads them by itself.
    if (type == QVariant::Double && field.decimal != -1)
        return QString::number(value.toDouble(), 'f', qMin(field.decimal, MaxDecimals));
    return value.toString();
}

QVariant ZrTablePropertySet::storeRawValue(const QVariant &value, int type, ItemRoleMap &cell,
                                           const ZrFieldSetting &field)
{
    switch (type) {
    case QVariant::Int: {
        int number = value.toInt();
        handleUserIntMsgValueProperty(number, cell, field);
        return number;
    }
    case QVariant::Double: {
        double number = value.toDouble();
        handleUserDoubleMsgValueProperty(number, cell, field);
        return number;
    }
    case QVariant::LongLong: {
        long long number = value.toLongLong();
        handleUserLongLongMsgValueProperty(number, cell, field);
        return number;
    }
    case QVariant::Date: {
        const QVariant date = ZrCompactDate::parse(value.toString());
        store(cell, ITEM_USERROLE, date);
        return date;
    }
    case QVariant::DateTime: {
        const QVariant moment = QDateTime::fromMSecsSinceEpoch(value.toLongLong());
        store(cell, ITEM_USERROLE, moment);
        return moment;
    }
    }
    QString text = value.toString();
    handleUserQStringMsgValueProperty(text, cell, field);
    return text;
}

void ZrTablePropertySet::handleDisplayMsgValueProperty(QString &text, ItemRoleMap &cell,
                                                       const ZrFieldSetting &field)
{
    text = ZrDisplayChain::apply(text, field);
    store(cell, getRealRole(field.role), text);
}

// The four below store the raw value and nothing else. `userRoleProperty` was meant to steer them; the files
// in use carry the attribute, and grids show the plain value for all of them.
void ZrTablePropertySet::handleUserQStringMsgValueProperty(QString &value, ItemRoleMap &cell,
                                                           const ZrFieldSetting &)
{
    store(cell, ITEM_USERROLE, value);
}

void ZrTablePropertySet::handleUserIntMsgValueProperty(int &value, ItemRoleMap &cell, const ZrFieldSetting &)
{
    store(cell, ITEM_USERROLE, value);
}

void ZrTablePropertySet::handleUserDoubleMsgValueProperty(double &value, ItemRoleMap &cell,
                                                          const ZrFieldSetting &)
{
    store(cell, ITEM_USERROLE, value);
}

void ZrTablePropertySet::handleUserLongLongMsgValueProperty(long long &value, ItemRoleMap &cell,
                                                            const ZrFieldSetting &)
{
    store(cell, ITEM_USERROLE, value);
}

void ZrTablePropertySet::handleExportViewRoleProperty(QString text, QVariant user, ItemRoleMap &cell,
                                                      const ZrFieldSetting &field)
{
    const bool writesRaw = field.exportViewRoleProperty == QLatin1String("UserRole");
    store(cell, ITEM_EXPORTVIEWROLE, writesRaw ? user : QVariant(text));
}

QList<ItemRoleMap> ZrTablePropertySet::dictionaryChoices(const ZrFieldSetting &field)
{
    QList<ItemRoleMap> choices;
    const QMap<QString, QString> section =
        CDataBase::GetInstance()->GetStaticValuesBySection(field.fieldNumber);
    for (auto it = section.constBegin(); it != section.constEnd(); ++it)
        choices.append({{ITEM_USERROLE, it.key()}, {ITEM_DISPLAYROLE, it.value()}});
    return choices;
}

QList<ItemRoleMap> ZrTablePropertySet::distinctCellsOf(int column, const RecordDataList &records)
{
    ZrDistinctCells distinct;
    for (const RecordData &record : records)
        distinct.add(record.value(column));
    return distinct.cells();
}
