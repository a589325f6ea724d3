#include "ZrValueCodec.h"

#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QIODevice>
#include <QtCore/QVariantMap>

namespace {
enum Tag : quint8 {
    TagNothing = 0,
    TagBool = 1,
    TagInt = 2,
    TagUInt = 3,
    TagLongLong = 4,
    TagULongLong = 5,
    TagDouble = 6,
    TagString = 7,
    TagBytes = 8,
    TagDate = 9,
    TagTime = 10,
    TagDateTime = 11,
    TagList = 12,
    TagMap = 13,
    TagStringList = 14
};

void setUp(QDataStream *stream)
{
    stream->setVersion(QDataStream::Qt_5_15);
}

void writeValue(QDataStream *stream, const QVariant &value, int depth);

void writeContainer(QDataStream *stream, const QVariant &value, int depth)
{
    if (depth >= ZrValueCodec::maxDepth) {
        *stream << quint8(TagNothing);
        return;
    }
    if (value.userType() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        *stream << quint8(TagList) << quint32(list.size());
        for (const QVariant &element : list)
            writeValue(stream, element, depth + 1);
        return;
    }
    const QVariantMap map = value.toMap();
    *stream << quint8(TagMap) << quint32(map.size());
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        *stream << it.key();
        writeValue(stream, it.value(), depth + 1);
    }
}

void writeValue(QDataStream *stream, const QVariant &value, int depth)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        *stream << quint8(TagNothing);
        return;
    case QMetaType::Bool:
        *stream << quint8(TagBool) << value.toBool();
        return;
    case QMetaType::Int:
        *stream << quint8(TagInt) << qint32(value.toInt());
        return;
    case QMetaType::UInt:
        *stream << quint8(TagUInt) << quint32(value.toUInt());
        return;
    case QMetaType::LongLong:
        *stream << quint8(TagLongLong) << qint64(value.toLongLong());
        return;
    case QMetaType::ULongLong:
        *stream << quint8(TagULongLong) << quint64(value.toULongLong());
        return;
    case QMetaType::Double:
        *stream << quint8(TagDouble) << value.toDouble();
        return;
    case QMetaType::QByteArray:
        *stream << quint8(TagBytes) << value.toByteArray();
        return;
    case QMetaType::QDate:
        *stream << quint8(TagDate) << value.toDate();
        return;
    case QMetaType::QTime:
        *stream << quint8(TagTime) << value.toTime();
        return;
    case QMetaType::QDateTime:
        *stream << quint8(TagDateTime) << value.toDateTime();
        return;
    case QMetaType::QStringList:
        *stream << quint8(TagStringList) << value.toStringList();
        return;
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
        writeContainer(stream, value, depth);
        return;
    default:
        *stream << quint8(TagString) << value.toString();
    }
}

bool readValue(QDataStream *stream, QVariant *value, int depth);

/// The number of elements, which can't be more than the bytes that are left: each has its tag.
bool readCount(QDataStream *stream, quint32 *count)
{
    *stream >> *count;
    return stream->status() == QDataStream::Ok && *count <= stream->device()->bytesAvailable();
}

bool readList(QDataStream *stream, QVariant *value, int depth)
{
    quint32 count = 0;
    if (!readCount(stream, &count))
        return false;
    QVariantList list;
    for (quint32 i = 0; i < count; ++i) {
        QVariant element;
        if (!readValue(stream, &element, depth + 1))
            return false;
        list.append(element);
    }
    *value = list;
    return true;
}

bool readMap(QDataStream *stream, QVariant *value, int depth)
{
    quint32 count = 0;
    if (!readCount(stream, &count))
        return false;
    QVariantMap map;
    for (quint32 i = 0; i < count; ++i) {
        QString key;
        QVariant element;
        *stream >> key;
        if (!readValue(stream, &element, depth + 1))
            return false;
        map.insert(key, element);
    }
    *value = map;
    return true;
}

bool readStringList(QDataStream *stream, QVariant *value)
{
    quint32 count = 0;
    if (!readCount(stream, &count))
        return false;
    QStringList list;
    for (quint32 i = 0; i < count && stream->status() == QDataStream::Ok; ++i) {
        QString text;
        *stream >> text;
        list.append(text);
    }
    *value = list;
    return stream->status() == QDataStream::Ok;
}

template<typename T>
bool readPlain(QDataStream *stream, QVariant *value)
{
    T plain{};
    *stream >> plain;
    *value = QVariant::fromValue(plain);
    return stream->status() == QDataStream::Ok;
}

bool readValue(QDataStream *stream, QVariant *value, int depth)
{
    quint8 tag = TagNothing;
    *stream >> tag;
    if (stream->status() != QDataStream::Ok || depth > ZrValueCodec::maxDepth)
        return false;
    switch (tag) {
    case TagNothing:
        *value = QVariant();
        return true;
    case TagBool:
        return readPlain<bool>(stream, value);
    case TagInt:
        return readPlain<qint32>(stream, value);
    case TagUInt:
        return readPlain<quint32>(stream, value);
    case TagLongLong:
        return readPlain<qint64>(stream, value);
    case TagULongLong:
        return readPlain<quint64>(stream, value);
    case TagDouble:
        return readPlain<double>(stream, value);
    case TagString:
        return readPlain<QString>(stream, value);
    case TagBytes:
        return readPlain<QByteArray>(stream, value);
    case TagDate:
        return readPlain<QDate>(stream, value);
    case TagTime:
        return readPlain<QTime>(stream, value);
    case TagDateTime:
        return readPlain<QDateTime>(stream, value);
    case TagList:
        return readList(stream, value, depth);
    case TagMap:
        return readMap(stream, value, depth);
    case TagStringList:
        return readStringList(stream, value);
    default:
        return false;
    }
}
} // namespace

QByteArray ZrValueCodec::write(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    setUp(&stream);
    writeValue(&stream, value, 0);
    return bytes;
}

bool ZrValueCodec::read(const QByteArray &bytes, QVariant *value)
{
    QDataStream stream(bytes);
    setUp(&stream);
    QVariant read;
    if (!readValue(&stream, &read, 0) || !stream.atEnd())
        return false;
    *value = read;
    return true;
}
