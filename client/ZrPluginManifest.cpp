#include "ZrPluginManifest.h"

#include <QtCore/QFile>
#include <QtCore/QList>

#include <algorithm>

namespace {
constexpr int hashSize = 64;
constexpr int nameStart = hashSize + 2;

bool isHash(const QByteArray &text)
{
    return text.size() == hashSize && std::all_of(text.cbegin(), text.cend(), [](char sign) {
               return (sign >= '0' && sign <= '9') || (sign >= 'a' && sign <= 'f') ||
                      (sign >= 'A' && sign <= 'F');
           });
}
} // namespace

QString ZrPluginManifest::read(const QString &path)
{
    *this = ZrPluginManifest();
    m_isOn = true; // also when it can't be read: then it allows nothing
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("the plugin manifest %1 cannot be read.").arg(path);
    const QByteArray text = file.read(maxBytes + 1);
    if (text.size() > maxBytes)
        return QStringLiteral("the plugin manifest %1 holds more than %2 bytes.").arg(path).arg(maxBytes);
    const QList<QByteArray> lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (!readLine(lines.at(i))) {
            m_hashes.clear();
            return QStringLiteral("line %1 of the plugin manifest %2 is no hash with a file name.")
                .arg(i + 1)
                .arg(path);
        }
    }
    return QString();
}

bool ZrPluginManifest::readLine(const QByteArray &line)
{
    const QByteArray whole = line.endsWith('\r') ? line.chopped(1) : line;
    if (whole.isEmpty() || whole.startsWith('#'))
        return true;
    const bool isSplit = whole.size() > nameStart && whole.at(hashSize) == ' ' &&
                         (whole.at(hashSize + 1) == ' ' || whole.at(hashSize + 1) == '*');
    QString name = QString::fromUtf8(whole.mid(nameStart));
    if (name.startsWith(QLatin1String("./"))) // of "sha256sum ./*.so"
        name.remove(0, 2);
    if (!isSplit || !isHash(whole.left(hashSize)) || name.isEmpty() || name.contains(QLatin1Char('/')))
        return false;
    const QByteArray hash = whole.left(hashSize).toLower();
    // Two hashes for one name leave open which was approved.
    if (m_hashes.value(name, hash) != hash)
        return false;
    m_hashes.insert(name, hash);
    return true;
}

bool ZrPluginManifest::allows(const QString &fileName, const QByteArray &sha256) const
{
    return !sha256.isEmpty() && m_hashes.value(fileName) == sha256;
}
