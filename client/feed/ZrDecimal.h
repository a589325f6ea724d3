#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// A decimal number as recordings write it: no binary noise gets in.
///
/// Shape:  a value; whole hundred-millionths, so that prices, sizes and their sums compare exactly.
/// Units:  `units` counts 1e-8 of one; about +-92e9 fit.
/// Errors: parse() says whether the text was a number that fits; nothing else can fail.
class ZrDecimal
{
public:
    static constexpr qint64 One = 100000000;

    constexpr ZrDecimal() = default;
    static constexpr ZrDecimal fromUnits(qint64 units) { return ZrDecimal(units); }
    static constexpr ZrDecimal fromInt(qint64 whole) { return ZrDecimal(whole * One); }

    /// Reads sign, digits, point and exponent, multiplied by numerator / denominator. What lies
    /// beyond the eighth decimal is rounded. A text of 15 or more significant digits is a double
    /// printed in full: it is rounded to six decimals, which takes its noise away.
    static bool parse(const QByteArray &text, ZrDecimal *result, qint64 numerator = 1,
                      qint64 denominator = 1);

    constexpr qint64 units() const { return m_units; }
    constexpr bool isZero() const { return m_units == 0; }
    double toDouble() const { return double(m_units) / double(One); }
    /// The shortest text: no zeros at the end.
    QString toString() const;

    /// The nearest multiple of `tick`, halves away from zero; unchanged for a tick of zero.
    ZrDecimal roundedTo(ZrDecimal tick) const;

    constexpr bool operator==(ZrDecimal o) const { return m_units == o.m_units; }
    constexpr bool operator!=(ZrDecimal o) const { return m_units != o.m_units; }
    constexpr bool operator<(ZrDecimal o) const { return m_units < o.m_units; }
    constexpr bool operator>(ZrDecimal o) const { return m_units > o.m_units; }
    /// Sum and difference stop at the ends of the range: sizes come from files.
    ZrDecimal operator+(ZrDecimal o) const;
    ZrDecimal operator-(ZrDecimal o) const;
    ZrDecimal &operator+=(ZrDecimal o) { return *this = *this + o; }

private:
    constexpr explicit ZrDecimal(qint64 units)
        : m_units(units)
    {
    }
    qint64 m_units = 0;
};

/// A sum of price times size, exact, for average prices.
class ZrTurnover
{
public:
    void add(ZrDecimal price, ZrDecimal size);
    /// Value over `size`, rounded to the eighth decimal; zero for a size of zero.
    ZrDecimal average(ZrDecimal size) const;
    double toDouble() const;

private:
    __int128 m_value = 0; // counts 1e-16
};
