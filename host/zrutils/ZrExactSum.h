#pragma once

#include <QtCore/QVariant>

#include <array>

/// The exact sum of numbers, rounded once when it is asked for.
///
/// The rule, which whoever keeps a running sum beside this one has to give as well:
///  - Whole numbers alone give LongLong; ULongLong when the total is above the range of that; Double, the
///  nearest
///    one, when it is outside both.
///  - With a double among them the total is a Double: the exact sum of all values, rounded once to the
///  nearest. So
///    neither the order of the rows nor what was added and taken away meanwhile can be seen in it.
///  - A NaN, or infinities of both signs, give NaN; one infinity gives itself. A total of zero is positive.
///
/// Shape:   a sum in fixed point that spans the range of a double; numbers can be taken away again.
/// Threads: any; a plain value of some 600 bytes.
class ZrExactSum
{
public:
    void addSigned(qint64 value);
    void addUnsigned(quint64 value);
    void addReal(double value);
    bool isEmpty() const { return m_count == 0; }
    QVariant total() const;

private:
    // Limbs of 32 bits in 64: a carry has room for 2^31 additions, more than a list can hold rows.
    static constexpr int limbBits = 32;
    static constexpr int limbCount = 70;
    using Limbs = std::array<qint64, limbCount>;

    void add(quint64 magnitude, int position, bool negative);
    double realTotal() const;
    QVariant wholeTotal() const;
    static bool normalize(Limbs &limbs);

    Limbs m_limbs{};
    qint64 m_count = 0;
    qint64 m_realCount = 0;
    qint64 m_nanCount = 0;
    qint64 m_plusCount = 0; // of infinities
    qint64 m_minusCount = 0;
};
