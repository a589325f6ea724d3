// A plugin file of any bytes, under a seal that says they are whole: what is read of it without running it.
#include "zrcore/ZrPluginFile.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {
void check(bool good, const char *what)
{
    if (!good)
        qt_assert(what, __FILE__, __LINE__);
}

QByteArray sealed(const QByteArray &content)
{
    return content +
           "\nzrwidget-seal-1:" + QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() +
           '\n';
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lib.so"));
    const QByteArray bytes = sealed(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    {
        QFile file(path);
        check(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the input is written");
    }
    const ZrPluginFile file = ZrPluginFile::read(path);
    check(file.reason != ZrPluginReason::Unsealed, "the seal is found behind any content");
    check((file.reason == ZrPluginReason::None) == !file.id.isEmpty(), "a usable file has an ID");
    check(file.id.size() <= ZrPluginFile::maxIdLength && file.version.size() <= ZrPluginFile::maxTextLength,
          "texts are bounded");
    return 0;
}
