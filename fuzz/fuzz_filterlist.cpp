// The cells of a column, of any type and value, mixed as no producer would.
#include "ZrFuzzBytes.h"
#include "ZrTableFilterParse.h"

#include <QtCore/QDateTime>

namespace {
QVariant valueFrom(ZrFuzzBytes &bytes)
{
    switch (bytes.take<quint8>() % 10) {
    case 0:
        return bytes.take<qint32>();
    case 1:
        return bytes.take<qint64>();
    case 2:
        return bytes.take<quint64>();
    case 3:
        return bytes.take<double>();
    case 4:
        return bytes.takeText();
    case 5:
        return QDate::fromJulianDay(bytes.take<qint64>());
    case 6:
        return QDate(2024, 1, 1).addDays(bytes.take<qint16>());
    case 7:
        return QDateTime::fromMSecsSinceEpoch(bytes.take<qint64>());
    case 8:
        return QTime::fromMSecsSinceStartOfDay(bytes.take<qint32>());
    }
    return QVariant();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, size_t size)
{
    static const QString roles[] = {QStringLiteral("0"), QStringLiteral("256"), QStringLiteral("257")};
    ZrFuzzBytes bytes(data, size);
    const int type = bytes.take<quint8>() % 20;
    QList<ItemRoleMap> cells;
    while (!bytes.isEmpty()) {
        ItemRoleMap cell;
        for (const QString &role : roles) {
            if (bytes.take<quint8>() % 3 != 0)
                cell.insert(role, valueFrom(bytes));
        }
        cells.append(cell);
    }
    const QList<ItemRoleMap> choices = ZrTableFilterParse::getFilterRecordList(type, cells);
    constexpr int MostRanges = 64;
    if (choices.size() > qMax(cells.size(), MostRanges))
        qt_assert("a handful of choices", __FILE__, __LINE__);
    return 0;
}
