#include "ZrRecording.h"

#include "ZrValueCodec.h"

namespace {
constexpr quint8 requestMark = 0x80;
constexpr auto streamVersion = QDataStream::Qt_5_15;

QByteArray frameOf(const ZrRecordingEntry &entry)
{
    QVariantList fields;
    const quint8 kind = static_cast<quint8>(entry.item.kind) | (entry.isRequest ? requestMark : 0);
    fields << entry.timeUs << int(kind) << entry.item.source << entry.item.asker << entry.item.type
           << entry.item.body;
    return ZrValueCodec::write(fields);
}
} // namespace

bool ZrRecordingWriter::open(const QString &path, QString *errorText)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::WriteOnly)) {
        *errorText = QStringLiteral("Can't record to \"%1\": %2.").arg(path, m_file.errorString());
        return false;
    }
    m_stream.setDevice(&m_file);
    m_stream.setVersion(streamVersion);
    m_stream << magic << version;
    return true;
}

void ZrRecordingWriter::append(const ZrRecordingEntry &entry)
{
    const QByteArray frame = frameOf(entry);
    if (frame.size() > static_cast<int>(maxFrameBytes)) {
        ++m_skipped;
        return;
    }
    m_stream << quint32(frame.size());
    m_stream.writeRawData(frame.constData(), frame.size());
}

bool ZrRecordingWriter::finish(QString *errorText)
{
    m_stream << quint32(0);
    if (m_stream.status() == QDataStream::Ok && m_file.commit())
        return true;
    *errorText =
        QStringLiteral("Can't write the recording \"%1\": %2.").arg(m_file.fileName(), m_file.errorString());
    m_file.cancelWriting();
    return false;
}

bool ZrRecordingReader::open(const QString &path)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly))
        return fail(m_file.errorString());
    m_stream.setDevice(&m_file);
    m_stream.setVersion(streamVersion);
    quint32 magic = 0;
    quint16 version = 0;
    m_stream >> magic >> version;
    if (m_stream.status() != QDataStream::Ok || magic != ZrRecordingWriter::magic)
        return fail(QStringLiteral("it is no recording"));
    if (version != ZrRecordingWriter::version)
        return fail(QStringLiteral("its version %1 is unknown").arg(version));
    return true;
}

bool ZrRecordingReader::next(ZrRecordingEntry *entry)
{
    if (!m_errorText.isEmpty())
        return false;
    quint32 size = 0;
    const qint64 at = m_file.pos();
    m_stream >> size;
    if (m_stream.status() != QDataStream::Ok)
        return fail(QStringLiteral("it ends early"));
    if (size == 0)
        return false;
    if (size > ZrRecordingWriter::maxFrameBytes || size > m_file.bytesAvailable())
        return fail(QStringLiteral("the entry at byte %1 is longer than the file").arg(at));
    QByteArray frame(static_cast<int>(size), Qt::Uninitialized);
    m_stream.readRawData(frame.data(), frame.size());
    return readFrame(frame, entry) || fail(QStringLiteral("the entry at byte %1 is damaged").arg(at));
}

bool ZrRecordingReader::fail(const QString &what)
{
    m_errorText = QStringLiteral("Can't replay \"%1\": %2.").arg(m_file.fileName(), what);
    return false;
}

bool ZrRecordingReader::readFrame(const QByteArray &frame, ZrRecordingEntry *entry) const
{
    QVariant value;
    if (!ZrValueCodec::read(frame, &value))
        return false;
    const QVariantList fields = value.toList();
    if (fields.size() != 6)
        return false;
    const int mark = fields.at(1).toInt();
    const int kind = mark & ~int(requestMark);
    if (kind < 0 || kind > static_cast<int>(ZrBusKind::Quotation))
        return false;
    entry->timeUs = fields.at(0).toLongLong();
    entry->isRequest = (mark & requestMark) != 0;
    entry->item = ZrBusItem{static_cast<ZrBusKind>(kind), fields.at(2).toString(), fields.at(3).toString(),
                            fields.at(4), fields.at(5)};
    return entry->timeUs >= 0;
}
