#include "zrutils/ZrNumber.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {
constexpr double twoTo63 = 9223372036854775808.0;

template<typename T>
const T &stored(const QVariant &value)
{
    return *static_cast<const T *>(value.constData());
}

template<typename T>
int order(T a, T b)
{
    return (a > b) - (a < b);
}

int compareReals(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
        return order(!std::isnan(a), !std::isnan(b));
    return order(a, b);
}

// The whole part decides; only between equal whole parts does the fraction.
template<typename Whole>
int compareInRange(Whole whole, double real)
{
    const double truncated = std::trunc(real);
    const int byWhole = order(whole, static_cast<Whole>(truncated));
    return byWhole != 0 ? byWhole : order(truncated, real);
}

int compareSignedWithReal(qint64 whole, double real)
{
    if (std::isnan(real))
        return 1;
    if (real >= twoTo63)
        return -1;
    return real < -twoTo63 ? 1 : compareInRange(whole, real);
}

int compareUnsignedWithReal(quint64 whole, double real)
{
    if (std::isnan(real) || real < twoTo63)
        return 1;
    return real >= 2 * twoTo63 ? -1 : compareInRange(whole, real);
}
} // namespace

ZrNumber ZrNumber::fromSigned(qint64 value)
{
    return ZrNumber(Signed, static_cast<quint64>(value));
}

ZrNumber ZrNumber::fromUnsigned(quint64 value)
{
    const bool small = value <= static_cast<quint64>(std::numeric_limits<qint64>::max());
    return ZrNumber(small ? Signed : Unsigned, value);
}

ZrNumber ZrNumber::fromReal(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return ZrNumber(Real, bits);
}

double ZrNumber::asReal() const
{
    if (m_kind == Signed)
        return static_cast<double>(asSigned());
    if (m_kind == Unsigned)
        return static_cast<double>(m_bits);
    double value;
    std::memcpy(&value, &m_bits, sizeof value);
    return value;
}

ZrNumber ZrNumber::fromVariant(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return fromReal(stored<double>(value));
    case QMetaType::Int:
        return fromSigned(stored<int>(value));
    case QMetaType::LongLong:
        return fromSigned(stored<qlonglong>(value));
    case QMetaType::UInt:
        return fromSigned(stored<uint>(value));
    case QMetaType::ULongLong:
        return fromUnsigned(stored<qulonglong>(value));
    case QMetaType::Bool:
        return fromSigned(stored<bool>(value) ? 1 : 0);
    case QMetaType::Float:
        return fromReal(static_cast<double>(stored<float>(value)));
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::SChar:
    case QMetaType::Char:
        return fromSigned(value.toLongLong());
    case QMetaType::ULong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return fromUnsigned(value.toULongLong());
    default:
        return ZrNumber();
    }
}

bool ZrNumber::isType(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Long:
    case QMetaType::Short:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::ULong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

ZrNumber ZrNumber::fromText(const QString &text)
{
    bool isNumber = false;
    const qlonglong whole = text.toLongLong(&isNumber);
    if (isNumber)
        return fromSigned(whole);
    const qulonglong great = text.toULongLong(&isNumber);
    if (isNumber)
        return fromUnsigned(great);
    const double real = text.toDouble(&isNumber);
    if (isNumber)
        return fromReal(real);
    if (text == QLatin1String("true") || text == QLatin1String("false"))
        return fromSigned(text.size() == 4 ? 1 : 0);
    return ZrNumber();
}

int ZrNumber::compare(const ZrNumber &a, const ZrNumber &b)
{
    if (a.m_kind == Real)
        return b.m_kind == Real ? compareReals(a.asReal(), b.asReal()) : -compare(b, a);
    if (b.m_kind == Real) {
        return a.m_kind == Signed ? compareSignedWithReal(a.asSigned(), b.asReal())
                                  : compareUnsignedWithReal(a.m_bits, b.asReal());
    }
    if (a.m_kind != b.m_kind)
        return order<int>(a.m_kind, b.m_kind);
    return a.m_kind == Signed ? order(a.asSigned(), b.asSigned()) : order(a.m_bits, b.m_bits);
}
