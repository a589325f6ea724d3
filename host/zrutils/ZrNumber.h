#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// A number of any kind that a QVariant holds, compared without loss.
///
/// Shape:   a whole number keeps its 64 bits: turned into a double, neighbours above 2^53 would be equal.
/// Threads: any; a plain value.
/// Errors:  what is no number has the kind None. NaN is a number that lies below all others and equals
/// itself, so
///          that an order over numbers stays an order.
class ZrNumber
{
public:
    enum Kind : quint8 { None, Signed, Unsigned, Real }; // Unsigned: above the greatest signed number

    ZrNumber() = default;
    static ZrNumber fromSigned(qint64 value);
    static ZrNumber fromUnsigned(quint64 value);
    static ZrNumber fromReal(double value);
    /// A number from what kind() and asUnsigned() gave.
    static ZrNumber fromBits(Kind kind, quint64 bits) { return ZrNumber(kind, bits); }
    /// A numeric variant; a truth value counts as 0 or 1, a text doesn't count.
    static ZrNumber fromVariant(const QVariant &value);
    /// Whether fromVariant() reads variants of this type.
    static bool isType(int type);
    /// A text that is a number as a whole, "true" or "false".
    static ZrNumber fromText(const QString &text);

    Kind kind() const { return m_kind; }
    qint64 asSigned() const { return static_cast<qint64>(m_bits); }
    quint64 asUnsigned() const { return m_bits; }
    double asReal() const;

    /// Negative, 0 or positive. Both have to be numbers.
    static int compare(const ZrNumber &a, const ZrNumber &b);

private:
    ZrNumber(Kind kind, quint64 bits)
        : m_bits(bits)
        , m_kind(kind)
    {
    }

    quint64 m_bits = 0; // of the value, as m_kind reads it
    Kind m_kind = None;
};
