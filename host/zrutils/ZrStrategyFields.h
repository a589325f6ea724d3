#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Reads one object of a strategy description by its keys and notes the first thing that is wrong.
///
/// Shape:   made for an object and where it stands ("basic[3].dependsOn"). finish() refuses keys that nobody
///          asked for: a misspelled bound would otherwise be a bound that does not hold.
/// Threads: any.
/// Errors:  the first complaint is kept, with its key; later ones are dropped. Reads give the fallback then.
class ZrStrategyFields
{
public:
    ZrStrategyFields(const QJsonValue &object, const QString &where);

    bool has(const QString &key);
    QJsonValue value(const QString &key);
    QString text(const QString &key);
    /// The same; complains about a missing and about an empty text.
    QString neededText(const QString &key);
    bool flag(const QString &key, bool otherwise);
    int whole(const QString &key, int otherwise, int least, int most);
    /// A value in one of the host's value types; a date or time is a text. Invalid when the key is missing.
    QVariant typed(const QString &key, const QString &valueType);
    /// What one of the words stands for; `otherwise` is a word, empty when the key is needed.
    QString word(const QString &key, const QMap<QString, QString> &meanings, const QString &otherwise);
    /// The list under the key, of at most `most` entries.
    QJsonArray list(const QString &key, int most);
    void finish();

    void complain(const QString &key, const QString &what);
    /// Takes over what an object inside of this one complains about.
    void adopt(const ZrStrategyFields &inner);
    QString where(const QString &key) const;
    bool failed() const { return !m_fault.isEmpty(); }
    const QString &faultKey() const { return m_faultKey; }
    const QString &fault() const { return m_fault; }

private:
    const QJsonObject m_object;
    const QString m_where;
    QStringList m_known;
    QString m_faultKey;
    QString m_fault;
};
