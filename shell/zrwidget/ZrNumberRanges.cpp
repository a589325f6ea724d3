#include "ZrNumberRanges.h"

#include "ZrRangeChoice.h"
#include "ZrRoleKeys.h"

#include <cmath>
#include <limits>

namespace {
constexpr int MaxCount = 6;
constexpr qint64 FarEnd = 0xFFFFFFFFFFFF; // beyond any amount that is traded

QVariant valueOf(const ItemRoleMap &cell)
{
    const auto raw = cell.constFind(ITEM_USERROLE);
    return raw != cell.constEnd() ? raw.value() : cell.value(ITEM_DISPLAYROLE);
}

bool isLessOrEqual(const QVariant &left, const QVariant &right)
{
    // Cells may hold values of any type, and the order of QVariant is the one that the ranges are defined
    // by. The toolkit has no other name for it.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return left <= right;
    QT_WARNING_POP
}

class Extent
{
public:
    void take(const QVariant &value)
    {
        if (isLessOrEqual(max, value))
            max = value;
        if (!isLessOrEqual(min, value))
            min = value;
    }
    QVariant max = qlonglong(-FarEnd);
    QVariant min = qlonglong(FarEnd);
};

// Values at the ends of the number range must not overflow; a range text that ends there is as good as any.
qint64 saturatedDifference(qint64 left, qint64 right)
{
    if (right > 0 && left < std::numeric_limits<qint64>::min() + right)
        return std::numeric_limits<qint64>::min();
    if (right < 0 && left > std::numeric_limits<qint64>::max() + right)
        return std::numeric_limits<qint64>::max();
    return left - right;
}

// A step is a digit and zeros, so it is never the smallest integer and its negative fits.
qint64 saturatedStep(qint64 start, qint64 step, int times)
{
    qint64 result = start;
    for (int i = 0; i < times; ++i)
        result = saturatedDifference(result, -step);
    return result;
}

qint64 readBack(double number)
{
    // By way of the text: a number that doesn't fit reads as 0 instead of being undefined.
    return QString::number(number, 'f', 0).toLongLong();
}

int decimalsFor(double step)
{
    return QString::number(step, 'f', 0).size() < 2 ? 2 : 0;
}

ItemRoleMap choiceOf(double low, double high, int decimals)
{
    return ZrRangeChoice::make(QString::number(low, 'f', decimals), QString::number(high, 'f', decimals));
}

QList<ItemRoleMap> integerLoop(qint64 min, qint64 max, qint64 step, int count)
{
    QList<ItemRoleMap> choices;
    for (int i = 0; i <= count; ++i) {
        const qint64 low = saturatedStep(min, step, i);
        qint64 high = saturatedStep(min, step, i + 1);
        if (i == count && high < max)
            high = max;
        if (low != high)
            choices.append(ZrRangeChoice::make(QString::number(low), QString::number(high)));
    }
    return choices;
}

QList<ItemRoleMap> doubleLoop(double min, double max, double step, int count)
{
    QList<ItemRoleMap> choices;
    // The popup shows two decimals at most, so the end is stretched to what it will show.
    const double top = QString::number(max, 'f', 2).toDouble();
    for (int i = 0; i <= count; ++i) {
        const double low = min + i * step;
        double high = min + (i + 1) * step;
        if (qFuzzyCompare(low, high))
            continue;
        if (i == count && top > high)
            high = top;
        if (!qFuzzyCompare(low, high))
            choices.append(choiceOf(low, high, decimalsFor(step)));
    }
    return choices;
}
} // namespace

double ZrNumberRanges::magnitude(double number)
{
    return std::pow(10.0, QString::number(number, 'f', 0).size() - 1);
}

double ZrNumberRanges::leadingDigit(double number)
{
    const double unit = magnitude(number);
    return std::floor(number / unit) * unit;
}

QList<ItemRoleMap> ZrNumberRanges::ofIntegers(const QList<ItemRoleMap> &cells)
{
    // The step is defined as a part of the extent for each cell, which is a division by zero without cells.
    // Callers pass cells; one that doesn't gets no ranges.
    if (cells.isEmpty())
        return QList<ItemRoleMap>();
    Extent extent;
    for (const ItemRoleMap &cell : cells)
        extent.take(valueOf(cell));
    const int count = qMin(cells.size(), MaxCount);
    const qint64 rawStep = saturatedDifference(extent.max.toLongLong(), extent.min.toLongLong()) / count;
    const qint64 step = readBack(leadingDigit(double(rawStep)));
    const double unit = magnitude(double(step));
    const qint64 max = readBack(std::ceil(extent.max.toDouble() / unit) * unit);
    const qint64 min = readBack(std::floor(extent.min.toDouble() / unit) * unit);
    if (max == min || step == 0)
        return {choiceOf(double(min), double(max), decimalsFor(double(step)))};
    return integerLoop(min, max, step, count);
}

QList<ItemRoleMap> ZrNumberRanges::ofDoubles(const QList<ItemRoleMap> &cells)
{
    if (cells.isEmpty())
        return QList<ItemRoleMap>(); // as for integers
    Extent extent;
    for (const ItemRoleMap &cell : cells) {
        const QVariant value = valueOf(cell);
        // Infinities and NaN can't bound a range, so they count as values that can't be used.
        if (value.isValid() && std::isfinite(value.toDouble()))
            extent.take(value);
    }
    double max = extent.max.toDouble();
    double min = extent.min.toDouble();
    const int count = qMin(cells.size(), MaxCount);
    double step = (max - min) / count;
    if (!std::isfinite(step))
        step = max / count - min / count; // the extent itself is beyond the number range
    if (QString::number(step, 'f', 0).size() > 1)
        step = leadingDigit(step);
    const double unit = magnitude(step);
    max = std::ceil(max / unit) * unit;
    min = std::floor(min / unit) * unit;
    if (qFuzzyCompare(max, min) || qFuzzyIsNull(step))
        return {choiceOf(min, max, decimalsFor(step))};
    return doubleLoop(min, max, step, count);
}
