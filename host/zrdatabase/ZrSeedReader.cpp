#include "zrdatabase/ZrSeedReader.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

namespace {
// Seeds hold no quotes and no commas inside a cell; their generator sees to it.
QStringList cellsOf(QIODevice &device)
{
    return QString::fromUtf8(device.readLine()).trimmed().split(QLatin1Char(','));
}

ZrDataColumn columnOf(const QString &head)
{
    const QStringList parts = head.split(QLatin1Char(':'));
    ZrDataColumn column;
    column.name = parts.first();
    if (parts.last() == QLatin1String("b"))
        column.type = QMetaType::Bool;
    else if (parts.last() == QLatin1String("i"))
        column.type = QMetaType::LongLong;
    else if (parts.last() == QLatin1String("d"))
        column.type = QMetaType::Double;
    return column;
}

bool readTable(const QString &name, ZrDataTable &table, QString &reason)
{
    QFile file(QStringLiteral(":/zrseed/%1.csv").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        reason = QStringLiteral("the seed table %1 is missing").arg(name);
        return false;
    }
    table.name = name;
    const QStringList heads = cellsOf(file);
    for (const QString &head : heads)
        table.columns.append(columnOf(head));
    while (!file.atEnd()) {
        const QStringList cells = cellsOf(file);
        if (cells.size() != heads.size()) {
            reason = QStringLiteral("the seed table %1 has a broken line").arg(name);
            return false;
        }
        QVector<QVariant> row;
        for (int i = 0; i < cells.size(); ++i) {
            QVariant cell(cells.at(i));
            cell.convert(table.columns.at(i).type);
            row.append(cell);
        }
        table.rows.append(row);
    }
    return true;
}
} // namespace

bool ZrSeedReader::read(ZrDataTables &tables, QString &reason)
{
    return readTable(QStringLiteral("securities"), tables.securities, reason) &&
           readTable(QStringLiteral("accounts"), tables.accounts, reason) &&
           readTable(QStringLiteral("dictionaries"), tables.dictionaries, reason) &&
           readTable(QStringLiteral("settings"), tables.settings, reason);
}
