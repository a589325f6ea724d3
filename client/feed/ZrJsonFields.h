#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

/// Reads one object of a JSON file by its keys and notes the first thing that is wrong.
///
/// Shape:  made for an object and where it stands ("files[1].time"); finish() refuses keys that nobody
///         asked for, since a misspelled key would otherwise be a setting without effect.
/// Errors: the first complaint is kept in the text given at construction; later ones are dropped.
class ZrJsonFields
{
public:
    ZrJsonFields(const QJsonObject &object, const QString &where, QString *error);

    bool has(const QString &key);
    QString text(const QString &key, const QString &otherwise = QString());
    /// A text or a whole number, as a text: codes are often written as numbers.
    QString code(const QString &key);
    bool flag(const QString &key, bool otherwise);
    int whole(const QString &key, int otherwise, int least, int most);
    QJsonValue value(const QString &key);
    QJsonObject object(const QString &key);
    QStringList texts(const QString &key);
    /// The position of the key's word among `words`; 0 when the key is missing.
    int word(const QString &key, const QStringList &words);
    void finish();

    void complain(const QString &key, const QString &what);
    QString where(const QString &key) const;
    bool failed() const { return !m_error->isEmpty(); }
    QString *error() const { return m_error; }

    /// The text of a string or a whole number; null for anything else.
    static QString codeOf(const QJsonValue &value);

private:
    const QJsonObject m_object;
    const QString m_where;
    QString *const m_error; // not owned
    QStringList m_known;
};
