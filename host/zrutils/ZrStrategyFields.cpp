#include "zrutils/ZrStrategyFields.h"

#include "zrdefine/Constants.h"
#include "zrutils/ZrStrategyFaults.h"

#include <QtCore/QJsonArray>
#include <QtCore/QMap>

#include <cmath>
#include <limits>

namespace {
constexpr double exactWhole = 9007199254740992.0; // whole numbers of JSON are exact up to here

bool isWhole(const QJsonValue &value, double most)
{
    const double number = value.toDouble();
    return value.isDouble() && std::floor(number) == number && std::fabs(number) <= most;
}
} // namespace

ZrStrategyFields::ZrStrategyFields(const QJsonValue &object, const QString &where)
    : m_object(object.toObject())
    , m_where(where)
{
    if (!object.isObject()) {
        m_faultKey = where;
        m_fault = QStringLiteral("an object is wanted");
    }
}

QString ZrStrategyFields::where(const QString &key) const
{
    return m_where.isEmpty() ? key : m_where + QLatin1Char('.') + key;
}

void ZrStrategyFields::complain(const QString &key, const QString &what)
{
    if (failed())
        return;
    m_faultKey = where(key);
    m_fault = what;
}

void ZrStrategyFields::adopt(const ZrStrategyFields &inner)
{
    if (failed())
        return;
    m_faultKey = inner.m_faultKey;
    m_fault = inner.m_fault;
}

bool ZrStrategyFields::has(const QString &key)
{
    m_known.append(key);
    return m_object.contains(key);
}

QJsonValue ZrStrategyFields::value(const QString &key)
{
    has(key);
    return m_object.value(key);
}

QString ZrStrategyFields::text(const QString &key)
{
    if (!has(key))
        return QString();
    const QJsonValue found = m_object.value(key);
    if (!found.isString())
        complain(key, QStringLiteral("a text is wanted"));
    return found.toString();
}

QString ZrStrategyFields::neededText(const QString &key)
{
    const QString found = text(key);
    if (found.trimmed().isEmpty())
        complain(key, QStringLiteral("a text that is not empty is wanted"));
    return found;
}

bool ZrStrategyFields::flag(const QString &key, bool otherwise)
{
    if (!has(key))
        return otherwise;
    const QJsonValue found = m_object.value(key);
    if (!found.isBool())
        complain(key, QStringLiteral("true or false is wanted"));
    return found.toBool();
}

int ZrStrategyFields::whole(const QString &key, int otherwise, int least, int most)
{
    if (!has(key))
        return otherwise;
    const QJsonValue found = m_object.value(key);
    if (!isWhole(found, exactWhole) || found.toDouble() < least || found.toDouble() > most) {
        complain(key, QStringLiteral("a whole number from %1 to %2 is wanted").arg(least).arg(most));
        return otherwise;
    }
    return int(found.toDouble());
}

QVariant ZrStrategyFields::typed(const QString &key, const QString &valueType)
{
    if (!has(key))
        return QVariant();
    const QJsonValue found = m_object.value(key);
    if (valueType == Constants::VALUETYPE_BOOL)
        return flag(key, false);
    if (valueType == Constants::VALUETYPE_INT)
        return whole(key, 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (valueType == Constants::VALUETYPE_INT64) {
        if (!isWhole(found, exactWhole))
            complain(key, QStringLiteral("a whole number of at most 53 bits is wanted"));
        return failed() ? QVariant() : QVariant(qint64(found.toDouble()));
    }
    if (valueType == Constants::VALUETYPE_DOUBLE) {
        if (!found.isDouble() || !std::isfinite(found.toDouble()))
            complain(key, QStringLiteral("a number is wanted"));
        return found.toDouble();
    }
    return text(key);
}

QString ZrStrategyFields::word(const QString &key, const QMap<QString, QString> &meanings,
                               const QString &otherwise)
{
    const QString found = has(key) ? text(key) : otherwise;
    if (!meanings.contains(found)) {
        const QStringList known(meanings.keyBegin(), meanings.keyEnd());
        complain(key, QStringLiteral("%1 is none of %2")
                          .arg(ZrStrategyFaults::quoted(found), known.join(QStringLiteral(", "))));
    }
    return meanings.value(found);
}

QJsonArray ZrStrategyFields::list(const QString &key, int most)
{
    if (!has(key))
        return QJsonArray();
    const QJsonValue found = m_object.value(key);
    if (!found.isArray() || found.toArray().size() > most) {
        complain(key, QStringLiteral("a list of at most %1 entries is wanted").arg(most));
        return QJsonArray();
    }
    return found.toArray();
}

void ZrStrategyFields::finish()
{
    for (auto entry = m_object.constBegin(); entry != m_object.constEnd(); ++entry) {
        // For people and their editors.
        if (entry.key() == QLatin1String("comment") || entry.key() == QLatin1String("$schema"))
            continue;
        if (!m_known.contains(entry.key()))
            complain(entry.key(), QStringLiteral("it means nothing here"));
    }
}
