#include "ZrTableSumText.h"

namespace {
constexpr int c_groupDigits = 4;
}

QVariant ZrTableSumText::of(const QVariant &total)
{
    switch (total.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return grouped(total.toString());
    case QMetaType::Double:
    case QMetaType::Float:
        return grouped(QStringLiteral("%1").arg(total.toDouble(), 0, 'f', 2, QLatin1Char(' ')));
    default:
        return total;
    }
}

QString ZrTableSumText::grouped(QString text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    const int firstDigit = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (int at = (point < 0 ? text.size() : point) - c_groupDigits; at > firstDigit; at -= c_groupDigits)
        text.insert(at, QLatin1String("  "));
    return text;
}
