#include "ZrPluginSeal.h"

#include <QtCore/QCryptographicHash>

namespace {
const char mark[] = "\nzrwidget-seal-1:";
constexpr int markSize = int(sizeof mark) - 1;
constexpr int hashSize = 64;
constexpr int lineSize = markSize + hashSize + 1;
} // namespace

QByteArray ZrPluginSeal::hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray ZrPluginSeal::lineFor(const QByteArray &content)
{
    return mark + hashOf(content) + '\n';
}

ZrPluginSeal ZrPluginSeal::read(const QByteArray &file)
{
    ZrPluginSeal seal;
    const int size = file.size() - lineSize;
    // A file that lost or gained some bytes has its seal at another place.
    if (!file.right(2 * lineSize).contains(mark)) {
        seal.content = file;
        return seal;
    }
    seal.content = file.left(size);
    seal.state = size >= 0 && file.mid(size) == lineFor(seal.content) ? Whole : Broken;
    return seal;
}
