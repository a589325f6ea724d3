#include "ZrJsonFields.h"

#include <QtCore/QJsonArray>

#include <cmath>

ZrJsonFields::ZrJsonFields(const QJsonObject &object, const QString &where, QString *error)
    : m_object(object)
    , m_where(where)
    , m_error(error)
{
}

QString ZrJsonFields::where(const QString &key) const
{
    return m_where.isEmpty() ? key : m_where + QLatin1Char('.') + key;
}

void ZrJsonFields::complain(const QString &key, const QString &what)
{
    if (m_error->isEmpty())
        *m_error = QStringLiteral("key \"%1\": %2").arg(where(key), what);
}

bool ZrJsonFields::has(const QString &key)
{
    m_known.append(key);
    return m_object.contains(key);
}

QJsonValue ZrJsonFields::value(const QString &key)
{
    has(key);
    return m_object.value(key);
}

QString ZrJsonFields::codeOf(const QJsonValue &value)
{
    if (value.isString())
        return value.toString();
    const double number = value.toDouble(0.5);
    if (!value.isDouble() || std::floor(number) != number || std::fabs(number) > 9e15)
        return QString();
    return QString::number(qint64(number));
}

QString ZrJsonFields::text(const QString &key, const QString &otherwise)
{
    if (!has(key))
        return otherwise;
    const QJsonValue found = m_object.value(key);
    if (!found.isString())
        complain(key, QStringLiteral("a text is wanted"));
    return found.toString();
}

QString ZrJsonFields::code(const QString &key)
{
    if (!has(key))
        return QString();
    const QString found = codeOf(m_object.value(key));
    if (found.isNull())
        complain(key, QStringLiteral("a text or a whole number is wanted"));
    return found;
}

bool ZrJsonFields::flag(const QString &key, bool otherwise)
{
    if (!has(key))
        return otherwise;
    const QJsonValue found = m_object.value(key);
    if (!found.isBool())
        complain(key, QStringLiteral("true or false is wanted"));
    return found.toBool();
}

int ZrJsonFields::whole(const QString &key, int otherwise, int least, int most)
{
    if (!has(key))
        return otherwise;
    const double found = m_object.value(key).toDouble(least - 1.0);
    if (std::floor(found) != found || found < least || found > most) {
        complain(key, QStringLiteral("a whole number from %1 to %2 is wanted").arg(least).arg(most));
        return otherwise;
    }
    return int(found);
}

QJsonObject ZrJsonFields::object(const QString &key)
{
    if (!has(key))
        return QJsonObject();
    const QJsonValue found = m_object.value(key);
    if (!found.isObject())
        complain(key, QStringLiteral("an object is wanted"));
    return found.toObject();
}

QStringList ZrJsonFields::texts(const QString &key)
{
    QStringList result;
    if (!has(key))
        return result;
    const QJsonValue found = m_object.value(key);
    if (!found.isArray())
        complain(key, QStringLiteral("a list of texts is wanted"));
    const QJsonArray list = found.toArray();
    for (const QJsonValue &entry : list) {
        const QString text = codeOf(entry);
        if (text.isNull())
            complain(key, QStringLiteral("a list of texts is wanted"));
        result.append(text);
    }
    return result;
}

int ZrJsonFields::word(const QString &key, const QStringList &words)
{
    const QString found = text(key, words.constFirst());
    const int index = words.indexOf(found);
    if (index < 0)
        complain(
            key,
            QStringLiteral("\"%1\" is none of %2").arg(found.left(60), words.join(QStringLiteral(", "))));
    return qMax(0, index);
}

void ZrJsonFields::finish()
{
    const QStringList keys = m_object.keys();
    for (const QString &key : keys) {
        // "$schema" and "comment" are for people and their editors.
        if (!m_known.contains(key) && key != QLatin1String("comment") && key != QLatin1String("$schema"))
            complain(key, QStringLiteral("there is no such key"));
    }
}
