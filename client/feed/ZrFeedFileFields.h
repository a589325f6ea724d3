#pragma once

#include "ZrFeedDescription.h"
#include "ZrJsonFields.h"

/// Reads what a feed description says of one file.
///
/// Shape:   one object per entry of "files", whose keys were merged over those of "defaults".
/// Errors:  go to the text that the fields were made with.
class ZrFeedFileFields
{
public:
    ZrFeedFileFields(const QJsonObject &object, const QString &where, QString *error);

    /// Everything but the path's folder and the file named by "sameRowAs": see alignedPath().
    ZrFeedFile read();
    QString alignedPath() const { return m_alignedPath; }

private:
    void readFormat();
    void readTime();
    void readSecurity();
    void readExchange();
    void readKind();
    void readSide();
    void readQuantity();
    void readPhase();
    void readLevels();
    void checkRole();

    ZrFeedColumn column(const QString &key);
    ZrFeedColumn columnOf(const QJsonValue &value, ZrJsonFields *fields, const QString &key);
    ZrFeedNumber number(const QString &key);
    ZrFeedPattern pattern(ZrJsonFields *fields, const QString &key);
    void readScale(ZrJsonFields *fields, ZrFeedNumber *number);
    QHash<QByteArray, QByteArray> words(ZrJsonFields *fields, const QString &key);

    ZrJsonFields m_fields;
    ZrFeedFile m_file;
    QString m_alignedPath;
};
