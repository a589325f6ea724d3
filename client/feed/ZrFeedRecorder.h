#pragma once

#include "ZrFeedEvent.h"

#include <QtCore/QSaveFile>

/// Writes events as a recording: two CSV files and the feed description that tells them.
///
/// Shape:   NAME.json, NAME.events.csv (orders and trades) and NAME.books.csv in one folder; reading them
///          gives the same events. Levels beyond the tenth are left out.
/// Errors:  finish() gives one sentence or nothing. The files appear only then, each written beside its
///          place and renamed, the description last.
class ZrFeedRecorder
{
public:
    static constexpr int Levels = 10;

    /// `path` is that of the description, ending in ".json".
    explicit ZrFeedRecorder(const QString &path);

    void add(const ZrFeedEvent &event);
    QString finish(const QString &timeZone);

private:
    static QByteArray levels(const QVector<ZrFeedLevel> &levels);
    void addBook(const ZrFeedEvent &event);
    QByteArray description(const QString &timeZone) const;

    const QString m_path;
    QSaveFile m_events;
    QSaveFile m_books;
    QString m_error;
};
