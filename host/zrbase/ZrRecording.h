#pragma once

#include "zrbase/zrbase_global.h"
#include "ZrBusItem.h"

#include <QtCore/QDataStream>
#include <QtCore/QFile>
#include <QtCore/QSaveFile>

/// One entry of a recording.
struct ZrRecordingEntry
{
    qint64 timeUs = 0;      // since the recording began
    bool isRequest = false; // on its way to a service: replay leaves it out, its answers follow
    ZrBusItem item;
};

/// Writes what goes over the bus to a file, which appears under its name when it is whole.
///
/// Shape:   a magic number and a version, then frames, each with its length before it, the last one empty.
/// Threads: one thread at a time.
class ZRBASE_EXPORT ZrRecordingWriter
{
public:
    static constexpr quint32 magic = 0x5a724273; // "ZrBs"
    static constexpr quint16 version = 1;
    static constexpr quint32 maxFrameBytes = 16 * 1024 * 1024;

    /// False with one sentence when the file can't be made.
    bool open(const QString &path, QString *errorText);
    /// A frame beyond maxFrameBytes is left out and counted as skipped.
    void append(const ZrRecordingEntry &entry);
    qint64 skipped() const { return m_skipped; }
    /// False with one sentence when the whole couldn't be written; the file of that name stays as it was.
    bool finish(QString *errorText);

private:
    QSaveFile m_file;
    QDataStream m_stream;
    qint64 m_skipped = 0;
};

/// Reads a recording, entry by entry.
///
/// Threads: one thread at a time.
/// Errors:  damage ends the reading with one sentence; what came before it is good.
class ZRBASE_EXPORT ZrRecordingReader
{
public:
    bool open(const QString &path);
    /// False at the end and at damage; errorText() tells them apart.
    bool next(ZrRecordingEntry *entry);
    QString errorText() const { return m_errorText; }

private:
    bool fail(const QString &what);
    bool readFrame(const QByteArray &frame, ZrRecordingEntry *entry) const;

    QFile m_file;
    QDataStream m_stream;
    QString m_errorText;
};
