#include "ZrPluginMeta.h"

#include <QtCore/QCborMap>
#include <QtCore/QCborValue>

namespace {
const char signature[] = "QTMETADATA !";
constexpr int signatureSize = int(sizeof signature) - 1;
constexpr int headSize = signatureSize + 4; // format, major, minor, requirements
constexpr int knownFormat = 0;
enum Key { IidKey = 2, ClassNameKey = 3, OwnKey = 4 };
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
    QCborParserError error;
    // The toolkit's reader stops at a depth of its own.
    const QCborValue value = QCborValue::fromCbor(section.mid(start + headSize), &error);
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
