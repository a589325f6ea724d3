#include "ZrRunningTotal.h"

#include <cmath>
#include <limits>

namespace {

constexpr int c_mantissaBits = 53;
constexpr qint64 c_limbSize = qint64(1) << 32;

// Carries upwards, so that each limb but the last holds its 32 bits.
template<typename Limbs>
void carry(Limbs &limbs)
{
    for (size_t i = 0; i + 1 < limbs.size(); ++i) {
        const qint64 low = limbs[i] & (c_limbSize - 1);
        limbs[i + 1] += (limbs[i] - low) / c_limbSize;
        limbs[i] = low;
    }
}

} // namespace

bool ZrRunningTotal::count(const QVariant &value, int step)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
        countReal(value.toDouble(), step);
        return true;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::SChar:
    case QMetaType::Char:
        m_whole += Wide(value.toLongLong()) * step;
        break;
    case QMetaType::ULongLong:
    case QMetaType::ULong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        m_whole += Wide(value.toULongLong()) * step;
        break;
    default:
        return false;
    }
    m_wholeCount += step;
    return true;
}

void ZrRunningTotal::countReal(double value, int step)
{
    int exponent = 0;
    const double fraction = std::isfinite(value) ? std::frexp(std::fabs(value), &exponent) : -1;
    const int bit = fraction == 0 ? unitBit : exponent - c_mantissaBits + unitBit;
    if (fraction < 0 || bit < 0 || bit > unitBit) { // above 2^53 a million rows could leave the span
        m_oddCount += step;
        return;
    }
    m_realCount += step;
    const quint64 mantissa = quint64(std::ldexp(fraction, c_mantissaBits));
    add(m_limbs, mantissa, bit, std::signbit(value) ? -step : step);
}

void ZrRunningTotal::add(Limbs &limbs, quint64 magnitude, int bit, int sign)
{
    const size_t limb = size_t(bit / limbBits);
    const int shift = bit % limbBits;
    constexpr quint64 mask = quint64(c_limbSize) - 1;
    const quint64 low = (magnitude & mask) << shift;
    const quint64 high = (magnitude >> limbBits) << shift;
    limbs[limb] += sign * qint64(low & mask);
    limbs[limb + 1] += sign * qint64((low >> limbBits) + (high & mask));
    limbs[limb + 2] += sign * qint64(high >> limbBits);
}

QVariant ZrRunningTotal::total(int extra) const
{
    const Wide whole = m_whole + extra;
    const bool isWhole = m_realCount == 0;
    if (isWhole && whole >= std::numeric_limits<qint64>::min() && whole <= std::numeric_limits<qint64>::max())
        return QVariant(qlonglong(whole));
    if (isWhole && whole > 0 && whole <= Wide(std::numeric_limits<quint64>::max()))
        return QVariant(qulonglong(whole));
    Limbs limbs = m_limbs;
    const int sign = whole < 0 ? -1 : 1;
    const Wide magnitude = whole * sign;
    add(limbs, quint64(magnitude), unitBit, sign);
    limbs[limbCount - 1] += sign * qint64(magnitude >> 64); // the last limb begins there
    return QVariant(rounded(limbs));
}

double ZrRunningTotal::rounded(Limbs limbs) const
{
    carry(limbs);
    const bool isNegative = limbs.back() < 0;
    if (isNegative) {
        for (qint64 &limb : limbs)
            limb = -limb;
        carry(limbs);
    }
    size_t top = limbCount - 1;
    while (top > 0 && limbs[top] == 0)
        --top;
    // The upper limbs as one integer; of those below only matters whether something is there, for the
    // rounding.
    __extension__ typedef unsigned __int128 Bits;
    Bits bits = Bits(quint64(limbs[top]));
    int lowest = int(top);
    while (lowest > 0 && lowest > int(top) - 2)
        bits = bits << limbBits | Bits(quint64(limbs[size_t(--lowest)]));
    for (int i = 0; i < lowest; ++i) {
        if (limbs[size_t(i)] != 0)
            bits |= 1;
    }
    const double magnitude = std::ldexp(double(bits), lowest * limbBits - unitBit);
    return isNegative ? -magnitude : magnitude;
}
