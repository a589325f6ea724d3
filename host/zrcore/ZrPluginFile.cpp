#include "ZrPluginFile.h"

#include "ZrCorePlugin.h"
#include "ZrElfImage.h"
#include "ZrPluginMeta.h"
#include "ZrPluginSeal.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {
/// Reads a file step by step; the first step that fails names the reason.
class Reader
{
public:
    explicit Reader(ZrPluginFile *file)
        : m_file(file)
    {
    }

    bool readBytes();
    bool readImage();
    bool readMeta();
    bool readId();

private:
    bool refuse(ZrPluginReason reason, const QString &detail);

    ZrPluginFile *const m_file; // not owned
    QByteArray m_bytes;
    QByteArray m_metaSection;
    ZrPluginMeta m_meta;
    bool m_isSealed = false;

public:
    bool isSealed() const { return m_isSealed; }
};

bool Reader::refuse(ZrPluginReason reason, const QString &detail)
{
    m_file->reason = reason;
    m_file->detail = detail;
    return false;
}

bool Reader::readBytes()
{
    const QFileInfo info(m_file->path);
    if (!info.isFile()) // a pipe would never end
        return refuse(ZrPluginReason::Unreadable, QStringLiteral("it is no file"));
    if (info.size() > ZrPluginFile::maxBytes)
        return refuse(ZrPluginReason::Unreadable,
                      QStringLiteral("it holds more than %1 bytes").arg(ZrPluginFile::maxBytes));
    QFile file(m_file->path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(ZrPluginReason::Unreadable, file.errorString());
    // The toolkit makes room for as much as is asked for before it reads: not for the most that is allowed.
    m_bytes = file.read(info.size() + 1);
    if (m_bytes.size() != info.size() || file.error() != QFileDevice::NoError)
        return refuse(ZrPluginReason::Unreadable, QStringLiteral("it changes while it is read"));
    m_file->sha256 = ZrPluginSeal::hashOf(m_bytes);
    return true;
}

bool Reader::readImage()
{
    const ZrPluginSeal seal = ZrPluginSeal::read(m_bytes);
    if (seal.state == ZrPluginSeal::Broken)
        return refuse(ZrPluginReason::Damaged, QStringLiteral("its content is not what its seal says"));
    m_isSealed = seal.state == ZrPluginSeal::Whole;
    ZrElfImage image;
    switch (image.open(seal.content)) {
    case ZrElfImage::Good:
        break;
    case ZrElfImage::NotElf:
        return refuse(ZrPluginReason::NotAPlugin, image.errorText());
    case ZrElfImage::OtherMachine:
        return refuse(ZrPluginReason::OtherBuild, image.errorText());
    case ZrElfImage::Broken:
        return refuse(ZrPluginReason::Damaged, image.errorText());
    }
    m_metaSection = image.section(".qtmetadata");
    return !m_metaSection.isEmpty() ||
           refuse(ZrPluginReason::NotAPlugin, QStringLiteral("it holds no meta data of a plugin"));
}

bool Reader::readMeta()
{
    if (!ZrPluginMeta::read(m_metaSection, &m_meta))
        return refuse(ZrPluginReason::Damaged, QStringLiteral("its meta data can't be read"));
    m_file->iid = m_meta.iid.left(ZrPluginFile::maxTextLength);
    if (!m_meta.fitsToolkit())
        return refuse(ZrPluginReason::OtherBuild,
                      QStringLiteral("it is made with version %1.%2 of the toolkit")
                          .arg(m_meta.toolkitMajor)
                          .arg(m_meta.toolkitMinor));
    if (m_meta.iid != QLatin1String(ZrCorePlugin_iid))
        return refuse(ZrPluginReason::WrongInterface,
                      m_file->iid.isEmpty() ? QStringLiteral("it names no interface") : m_file->iid);
    return true;
}

// An ID becomes part of instance IDs and keys of settings: "#" separates there, and one that shows as nothing
// or as another one could not be told apart in a list.
bool isUsableId(const QString &id)
{
    if (id.isEmpty() || id.size() > ZrPluginFile::maxIdLength)
        return false;
    for (const QChar sign : id) {
        const bool isGood = sign.isLetterOrNumber() || sign == QLatin1Char('_') || sign == QLatin1Char('.') ||
                            sign == QLatin1Char('-');
        if (!isGood)
            return false;
    }
    return true;
}

bool Reader::readId()
{
    const auto text = [this](const char *key) {
        return m_meta.own.value(QLatin1String(key)).toString().left(ZrPluginFile::maxTextLength);
    };
    m_file->title = text("title");
    m_file->version = text("version");
    const QString id = m_meta.own.value(QLatin1String("pluginId")).toString();
    if (!isUsableId(id))
        return refuse(ZrPluginReason::NoId, id.isEmpty()
                                                ? QStringLiteral("its meta data hold no \"pluginId\"")
                                                : QStringLiteral("its \"pluginId\" is no usable ID"));
    m_file->id = id;
    return true;
}
} // namespace

ZrPluginFile ZrPluginFile::read(const QString &path)
{
    ZrPluginFile file;
    file.path = QFileInfo(path).absoluteFilePath();
    Reader reader(&file);
    if (!reader.readBytes() || !reader.readImage() || !reader.readMeta() || !reader.readId())
        return file;
    if (!reader.isSealed()) {
        file.reason = ZrPluginReason::Unsealed;
        file.detail = QStringLiteral("nothing vouches for its content");
    }
    return file;
}
