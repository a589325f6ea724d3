#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariant>

#include <array>

/// The exact sum of numbers that come and go.
///
/// Shape:  whole numbers in 128 bits; doubles in a fixed point that spans 2^-160 to 2^96. Nothing is rounded
/// before
///         the total is asked for, so nothing drifts and no order of additions shows.
/// Errors: doubles outside that span, infinities and NaN are only counted; hasOdd() says that the total is
/// unusable.
class ZRWIDGET_PRIVATE_EXPORT ZrRunningTotal
{
public:
    /// Adds (step 1) or takes away (step -1); false when the value is no number.
    bool count(const QVariant &value, int step);
    bool isEmpty() const { return m_wholeCount + m_realCount + m_oddCount == 0; }
    bool hasOdd() const { return m_oddCount > 0; }
    /// Which kinds of number are in; the type of the total hangs on it.
    int kinds() const { return (m_wholeCount ? 1 : 0) + (m_realCount ? 2 : 0) + (m_oddCount ? 4 : 0); }
    /// LongLong, ULongLong above its range, or a Double as soon as one is in or the sum is too large.
    QVariant total(int extra = 0) const;

private:
    __extension__ typedef __int128 Wide;
    static constexpr int limbBits = 32;
    static constexpr int limbCount = 8;
    static constexpr int unitBit = 160;          // the bit that counts 1
    using Limbs = std::array<qint64, limbCount>; // 32 bits each, the rest is room for carries

    void countReal(double value, int step);
    static void add(Limbs &limbs, quint64 magnitude, int bit, int sign);
    double rounded(Limbs limbs) const;

    Wide m_whole = 0;
    Limbs m_limbs{};
    int m_wholeCount = 0;
    int m_realCount = 0;
    int m_oddCount = 0;
};
