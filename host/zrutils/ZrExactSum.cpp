#include "zrutils/ZrExactSum.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {
constexpr int unitPosition = 1074; // of the bit that counts 1; the least double counts 2^-1074
constexpr int mantissaBits = 52;
} // namespace

void ZrExactSum::addSigned(qint64 value)
{
    ++m_count;
    const quint64 bits = static_cast<quint64>(value);
    add(value < 0 ? 0 - bits : bits, unitPosition, value < 0);
}

void ZrExactSum::addUnsigned(quint64 value)
{
    ++m_count;
    add(value, unitPosition, false);
}

void ZrExactSum::addReal(double value)
{
    ++m_count;
    ++m_realCount;
    if (std::isnan(value)) {
        ++m_nanCount;
    } else if (std::isinf(value)) {
        ++(value > 0 ? m_plusCount : m_minusCount);
    } else {
        quint64 bits;
        std::memcpy(&bits, &value, sizeof bits);
        const int exponent = static_cast<int>(bits >> mantissaBits & 0x7FF);
        const quint64 fraction = bits & ((quint64(1) << mantissaBits) - 1);
        // A subnormal number has no hidden bit and the exponent of the least normal one.
        const quint64 mantissa = exponent == 0 ? fraction : fraction | quint64(1) << mantissaBits;
        add(mantissa, exponent == 0 ? 0 : exponent - 1, bits >> 63 != 0);
    }
}

void ZrExactSum::add(quint64 magnitude, int position, bool negative)
{
    const int limb = position / limbBits;
    const int shift = position % limbBits;
    constexpr quint64 mask = 0xFFFFFFFFu;
    const qint64 sign = negative ? -1 : 1;
    const quint64 low = (magnitude & mask) << shift;
    const quint64 high = (magnitude >> limbBits) << shift;
    m_limbs[limb] += sign * static_cast<qint64>(low & mask);
    m_limbs[limb + 1] += sign * static_cast<qint64>((low >> limbBits) + (high & mask));
    m_limbs[limb + 2] += sign * static_cast<qint64>(high >> limbBits);
}

/// Carries upwards, so that each limb holds its 32 bits; true when the sum was negative and is now its
/// opposite.
bool ZrExactSum::normalize(Limbs &limbs)
{
    const auto carryAll = [&limbs] {
        qint64 carry = 0;
        for (qint64 &limb : limbs) {
            const qint64 value = limb + carry;
            limb = value & 0xFFFFFFFF;
            carry = (value - limb) / (qint64(1) << limbBits);
        }
        return carry;
    };
    if (carryAll() >= 0)
        return false;
    // The carry that ran out counts -2^n: taken from 0, the limbs are the magnitude.
    for (qint64 &limb : limbs)
        limb = -limb;
    carryAll();
    return true;
}

double ZrExactSum::realTotal() const
{
    if (m_nanCount > 0 || (m_plusCount > 0 && m_minusCount > 0))
        return std::numeric_limits<double>::quiet_NaN();
    if (m_plusCount > 0 || m_minusCount > 0)
        return m_plusCount > 0 ? std::numeric_limits<double>::infinity()
                               : -std::numeric_limits<double>::infinity();
    Limbs limbs = m_limbs;
    const bool negative = normalize(limbs);
    int top = limbCount - 1;
    while (top > 0 && limbs[top] == 0)
        --top;
    quint64 bits = static_cast<quint64>(limbs[top]);
    int position = top * limbBits;
    // The uppermost 64 bits; what lies below only tells whether there is something, for the rounding.
    for (int limb = top - 1; limb >= 0 && bits != 0; --limb) {
        const quint64 next = static_cast<quint64>(limbs[limb]);
        int room = 0;
        while (room < limbBits && !(bits >> (63 - room)))
            ++room;
        bits = room == 0 ? bits : bits << room | next >> (limbBits - room);
        position -= room;
        if (room < limbBits && (next & ((quint64(1) << (limbBits - room)) - 1)) != 0)
            bits |= 1;
    }
    const double magnitude = std::ldexp(static_cast<double>(bits), position - unitPosition);
    return negative ? -magnitude : magnitude;
}

QVariant ZrExactSum::wholeTotal() const
{
    Limbs limbs = m_limbs;
    const bool negative = normalize(limbs);
    constexpr int limb = unitPosition / limbBits;
    constexpr int shift = unitPosition % limbBits;
    const auto word = [&limbs](int at) {
        return (static_cast<quint64>(limbs[at]) >> shift | static_cast<quint64>(limbs[at + 1])
                                                               << (limbBits - shift)) &
               0xFFFFFFFFu;
    };
    const quint64 magnitude = word(limb) | word(limb + 1) << limbBits;
    const bool fits = word(limb + 2) == 0 && word(limb + 3) == 0;
    constexpr quint64 greatest = static_cast<quint64>(std::numeric_limits<qint64>::max());
    if (fits && magnitude <= greatest + (negative ? 1 : 0))
        return QVariant(static_cast<qlonglong>(negative ? 0 - magnitude : magnitude));
    if (fits && !negative)
        return QVariant(static_cast<qulonglong>(magnitude));
    return QVariant(realTotal());
}

QVariant ZrExactSum::total() const
{
    return m_realCount > 0 ? QVariant(realTotal()) : wholeTotal();
}
