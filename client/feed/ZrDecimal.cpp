#include "ZrDecimal.h"

#include <limits>

namespace {
constexpr int Places = 8;
constexpr int NoisyDigits = 15; // a double has 15 to 17 digits: a text this long was printed from one
constexpr int MaxDigits = 25;   // leaves room in 128 bits for what scaling multiplies
constexpr int MaxExponent = 40;
const qint64 NoiseUnit = 100; // 1e-6 in units

struct Digits
{
    __int128 value = 0;
    int count = 0;    // significant ones
    int decimals = 0; // digits behind the point that `value` holds
    bool any = false;
    bool point = false;
    bool valid = true;
};

void takeDigit(Digits *d, int digit)
{
    d->any = true;
    if (d->count >= MaxDigits) {
        // Behind the point they are below any rounding; before it the number does not fit anyway.
        d->valid = d->valid && d->point;
        return;
    }
    d->value = d->value * 10 + digit;
    if (d->value != 0)
        ++d->count;
    if (d->point)
        ++d->decimals;
}

bool readExponent(const char *at, const char *end, int *exponent)
{
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    if (at == end)
        return false;
    int value = 0;
    for (; at != end; ++at) {
        if (*at < '0' || *at > '9')
            return false;
        value = qMin(value * 10 + (*at - '0'), 10000);
    }
    *exponent = negative ? -value : value;
    return true;
}

__int128 divideRounded(__int128 value, __int128 by)
{
    const bool negative = (value < 0) != (by < 0);
    if (value < 0)
        value = -value;
    if (by < 0)
        by = -by;
    const __int128 result = value / by + (value % by >= by - value % by ? 1 : 0);
    return negative ? -result : result;
}

bool shiftTen(__int128 *value, int power)
{
    constexpr __int128 limit = __int128(1) << 120;
    for (; power > 0; --power) {
        *value *= 10;
        if (*value > limit)
            return false;
    }
    if (power < 0) {
        __int128 by = 1;
        for (; power < 0 && by < limit; ++power)
            by *= 10;
        *value = power < 0 ? 0 : divideRounded(*value, by);
    }
    return true;
}
} // namespace

bool ZrDecimal::parse(const QByteArray &text, ZrDecimal *result, qint64 numerator, qint64 denominator)
{
    const char *at = text.constData();
    const char *const end = at + text.size();
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    Digits digits;
    int exponent = 0;
    for (; at != end; ++at) {
        if (*at >= '0' && *at <= '9') {
            takeDigit(&digits, *at - '0');
        } else if (*at == '.' && !digits.point) {
            digits.point = true;
        } else if ((*at == 'e' || *at == 'E') && digits.any && readExponent(at + 1, end, &exponent)) {
            break;
        } else {
            return false;
        }
    }
    if (!digits.any || !digits.valid || qAbs(exponent) > MaxExponent || numerator <= 0 || denominator <= 0)
        return false;
    __int128 value = digits.value;
    if (value > 0 && !shiftTen(&value, Places - digits.decimals + exponent))
        return false;
    if (value > (__int128(1) << 120) / numerator)
        return false;
    value = divideRounded(value * numerator, denominator);
    constexpr __int128 most = std::numeric_limits<qint64>::max();
    if (value > most)
        return false;
    const ZrDecimal plain(negative ? -qint64(value) : qint64(value));
    const bool noisy = digits.point && digits.count >= NoisyDigits;
    *result = noisy ? plain.roundedTo(ZrDecimal(NoiseUnit)) : plain;
    return true;
}

QString ZrDecimal::toString() const
{
    const quint64 size = m_units < 0 ? quint64(0) - quint64(m_units) : quint64(m_units);
    QString text = QString::number(size / quint64(One));
    const quint64 rest = size % quint64(One);
    if (rest != 0) {
        QString decimals = QString::number(rest).rightJustified(Places, QLatin1Char('0'));
        while (decimals.endsWith(QLatin1Char('0')))
            decimals.chop(1);
        text += QLatin1Char('.') + decimals;
    }
    return m_units < 0 ? QLatin1Char('-') + text : text;
}

ZrDecimal ZrDecimal::operator+(ZrDecimal o) const
{
    qint64 sum = 0;
    if (!__builtin_add_overflow(m_units, o.m_units, &sum))
        return ZrDecimal(sum);
    return ZrDecimal(o.m_units > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min());
}

ZrDecimal ZrDecimal::operator-(ZrDecimal o) const
{
    qint64 rest = 0;
    if (!__builtin_sub_overflow(m_units, o.m_units, &rest))
        return ZrDecimal(rest);
    return ZrDecimal(o.m_units < 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min());
}

ZrDecimal ZrDecimal::roundedTo(ZrDecimal tick) const
{
    if (tick.m_units <= 0)
        return *this;
    const __int128 rounded = divideRounded(m_units, tick.m_units) * tick.m_units;
    // Next to the ends of the range there may be no multiple that fits.
    const bool fits =
        rounded <= std::numeric_limits<qint64>::max() && rounded >= std::numeric_limits<qint64>::min();
    return fits ? ZrDecimal(qint64(rounded)) : *this;
}

void ZrTurnover::add(ZrDecimal price, ZrDecimal size)
{
    __int128 sum = 0;
    if (!__builtin_add_overflow(m_value, __int128(price.units()) * size.units(), &sum))
        m_value = sum;
}

ZrDecimal ZrTurnover::average(ZrDecimal size) const
{
    return size.isZero() ? ZrDecimal() : ZrDecimal::fromUnits(qint64(divideRounded(m_value, size.units())));
}

double ZrTurnover::toDouble() const
{
    return double(m_value) / (double(ZrDecimal::One) * double(ZrDecimal::One));
}
