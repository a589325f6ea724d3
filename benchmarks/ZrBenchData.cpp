#include "ZrBenchData.h"

#include "ZrRoleKeys.h"

#include <QtCore/QDateTime>

ZrBenchData::ZrBenchData(uint seed, int columns)
    : m_random(seed)
    , m_columns(columns)
{
}

QString ZrBenchData::keyOf(int number)
{
    return QString::asprintf("K%08d", number);
}

QString ZrBenchData::word(int length)
{
    QString text;
    text.reserve(length);
    for (int i = 0; i < length; ++i)
        text.append(QLatin1Char(char('a' + m_random() % 26)));
    return text;
}

double ZrBenchData::price()
{
    return (m_random() % 100000) / 100.0;
}

ZrBenchCell ZrBenchData::doubleCell(double value)
{
    return {QString::number(value, 'f', 2), value};
}

ZrBenchCells ZrBenchData::row(int number)
{
    ZrBenchCells cells;
    cells.reserve(m_columns);
    for (int column = 0; column < m_columns; ++column) {
        if (column < TextColumns) {
            const QString text = column == KeyColumn ? keyOf(number) : word(6 + column);
            cells.append({text, text});
        } else if (column < TextColumns + DoubleColumns) {
            cells.append(doubleCell(price()));
        } else if (column < TextColumns + DoubleColumns + IntColumns) {
            const int value = int(m_random() % 1000000);
            cells.append({QString::number(value), value});
        } else {
            const QTime time = QTime::fromMSecsSinceStartOfDay(int(m_random() % (24 * 3600 * 1000)));
            cells.append({time.toString(QStringLiteral("hh:mm:ss")), time});
        }
    }
    return cells;
}

ItemRoleMap ZrBenchData::toRoles(const ZrBenchCell &cell)
{
    return {{ITEM_DISPLAYROLE, cell.text}, {ITEM_USERROLE, cell.raw}};
}

RecordData ZrBenchData::toRecord(const ZrBenchCells &cells)
{
    RecordData record;
    for (int column = 0; column < cells.size(); ++column)
        record.insert(column, toRoles(cells.at(column)));
    return record;
}

RecordData ZrBenchData::record(int number)
{
    return toRecord(row(number));
}

RecordDataList ZrBenchData::records(int count)
{
    RecordDataList list;
    list.reserve(count);
    for (int i = 0; i < count; ++i)
        list.append(record(i));
    return list;
}

RecordDataList ZrBenchData::updates(int count, int rows, bool priceToo)
{
    RecordDataList updates;
    updates.reserve(count);
    for (int i = 0; i < count; ++i) {
        const QString key = keyOf(int(m_random() % uint(rows)));
        RecordData update = {{KeyColumn, toRoles({key, key})}};
        const int first = priceToo ? PriceColumn : PriceColumn + 1 + int(m_random() % (DoubleColumns - 3));
        for (int column = first; column < first + 3; ++column)
            update.insert(column, toRoles(doubleCell(price())));
        updates.append(update);
    }
    return updates;
}

HeadList ZrBenchData::heads(int columns)
{
    HeadList heads;
    for (int column = 0; column < columns; ++column)
        heads.append({{HEAD_DISPLAYROLE, QStringLiteral("Column %1").arg(column)}});
    return heads;
}
