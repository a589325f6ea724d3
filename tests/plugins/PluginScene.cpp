#include "PluginScene.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstring>
#include <link.h>

namespace {
const QByteArray signature("QTMETADATA !");
constexpr int headSize = 16; // signature and toolkit
constexpr int sealSize = 82;
} // namespace

QByteArray PluginScene::file(const QString &name)
{
    QFile file(QStringLiteral(ZR_PLUGIN_FILES "/lib%1.so").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray PluginScene::content(const QByteArray &file)
{
    return file.chopped(sealSize);
}

QByteArray PluginScene::sha256(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray PluginScene::sealed(const QByteArray &content)
{
    return content + "\nzrwidget-seal-1:" + sha256(content) + '\n';
}

QByteArray PluginScene::patched(const QByteArray &content, const QByteArray &from, const QByteArray &to)
{
    const int place = content.indexOf(from);
    if (place < 0 || from.size() != to.size())
        return QByteArray();
    QByteArray result = content;
    return result.replace(place, from.size(), to);
}

QByteArray PluginScene::withMeta(const QByteArray &content, const QByteArray &map)
{
    const int place = content.indexOf(signature);
    if (place < 0)
        return QByteArray();
    QByteArray result = content + content.mid(place, headSize) + map;
    ElfW(Ehdr) head;
    std::memcpy(&head, content.constData(), sizeof head);
    for (int i = 0; i < head.e_shnum; ++i) {
        char *const at = result.data() + head.e_shoff + size_t(i) * sizeof(ElfW(Shdr));
        ElfW(Shdr) section;
        std::memcpy(&section, at, sizeof section);
        if (section.sh_offset != size_t(place))
            continue;
        section.sh_offset = size_t(content.size());
        section.sh_size = size_t(headSize + map.size());
        std::memcpy(at, &section, sizeof section);
        return result;
    }
    return QByteArray();
}

QByteArray PluginScene::damaged(const QByteArray &file, QRandomGenerator *random)
{
    QByteArray result = file;
    const auto place = [&] { return random->bounded(result.size()); };
    while (result == file) {
        const int span = 1 + random->bounded(4096);
        switch (random->bounded(6)) {
        case 0:
            result.truncate(place());
            break;
        case 1: // single bits
            for (int i = 1 + random->bounded(64); i > 0; --i) {
                const int at = place();
                result[at] = char(result.at(at) ^ (1 << random->bounded(8)));
            }
            break;
        case 2: // in the head and the tables behind it, where it hurts most
            for (int i = 1 + random->bounded(16); i > 0; --i)
                result[random->bounded(512)] = char(random->bounded(256));
            break;
        case 3: // a block that was never written
            for (int i = place(), end = qMin(result.size(), i + span); i < end; ++i)
                result[i] = '\0';
            break;
        case 4:
            result.remove(place(), span);
            break;
        default:
            result.insert(place(), QByteArray(span, char(random->bounded(256))));
        }
    }
    return result;
}

bool PluginScene::write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}
