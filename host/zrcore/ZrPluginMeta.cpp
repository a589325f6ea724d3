#include "ZrPluginMeta.h"

#include <QtCore/QCborMap>
#include <QtCore/QCborStreamReader>
#include <QtCore/QCborValue>

namespace {
const char signature[] = "QTMETADATA !";
constexpr int signatureSize = int(sizeof signature) - 1;
constexpr int headSize = signatureSize + 4; // format, major, minor, requirements
constexpr int knownFormat = 0;
enum Key { IidKey = 2, ClassNameKey = 3, OwnKey = 4 };

/// Walks the map before the toolkit reads it: that makes room for as many elements as a list claims, up to a
/// million at each level, and so for gigabytes.
class Walk
{
public:
    explicit Walk(const QByteArray &bytes)
        : m_reader(bytes)
        , m_most(quint64(bytes.size()))
    {
    }

    bool isBounded() { return m_reader.isMap() && container(0); }

private:
    static constexpr int maxDepth = 32;

    bool container(int depth);
    bool elements(int depth);
    bool text();

    QCborStreamReader m_reader;
    const quint64 m_most; // each element takes a byte at least
    quint64 m_claimed = 0;
};

bool Walk::container(int depth)
{
    if (depth == maxDepth)
        return false;
    if (m_reader.isLengthKnown()) {
        if (m_reader.length() > m_most)
            return false;
        m_claimed += m_reader.length() * (m_reader.isMap() ? 2 : 1);
        if (m_claimed > m_most)
            return false;
    }
    return m_reader.enterContainer() && elements(depth) && m_reader.leaveContainer();
}

bool Walk::elements(int depth)
{
    while (m_reader.lastError() == QCborError::NoError && m_reader.hasNext()) {
        const bool isText = m_reader.isString() || m_reader.isByteArray();
        const bool isGood = m_reader.isContainer() ? container(depth + 1) : isText ? text() : m_reader.next();
        if (!isGood)
            return false;
    }
    return m_reader.lastError() == QCborError::NoError;
}

bool Walk::text()
{
    const bool isString = m_reader.isString();
    for (;;) {
        const qint64 size = m_reader.currentStringChunkSize();
        if (size > qint64(m_most))
            return false;
        const auto status = isString ? m_reader.readString().status : m_reader.readByteArray().status;
        if (status != QCborStreamReader::Ok)
            return status == QCborStreamReader::EndOfString;
    }
}
} // namespace

bool ZrPluginMeta::read(const QByteArray &section, ZrPluginMeta *meta)
{
    *meta = ZrPluginMeta();
    const int start = section.indexOf(signature);
    if (start < 0 || section.size() - start <= headSize || section.size() > maxBytes ||
        section.at(start + signatureSize) != knownFormat)
        return false;
    meta->toolkitMajor = uchar(section.at(start + signatureSize + 1));
    meta->toolkitMinor = uchar(section.at(start + signatureSize + 2));
    const QByteArray bytes = section.mid(start + headSize);
    if (!Walk(bytes).isBounded())
        return false;
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(bytes, &error);
    if (error.error != QCborError::NoError || !value.isMap())
        return false;
    const QCborMap map = value.toMap();
    meta->iid = map.value(qint64(IidKey)).toString();
    meta->className = map.value(qint64(ClassNameKey)).toString();
    meta->own = map.value(qint64(OwnKey)).toMap().toJsonObject();
    return true;
}

bool ZrPluginMeta::fitsToolkit() const
{
    return toolkitMajor == QT_VERSION_MAJOR && toolkitMinor <= QT_VERSION_MINOR;
}
