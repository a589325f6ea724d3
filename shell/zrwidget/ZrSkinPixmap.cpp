#include "ZrSkinPixmap.h"

#include "zrcore/ZrCore.h"

#include <QtCore/QCache>
#include <QtCore/QCoreApplication>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

namespace {

// Larger than any sensible mark of a grid. Keeps a wrong file from taking the memory of the process.
constexpr int largestSourcePx = 2048;
constexpr int largestTargetPx = 1024;
// A table shows a dozen small pictures; the bound is for skins and pixel ratios that come and go.
constexpr int storeBytes = 4 * 1024 * 1024;

struct PictureKey
{
    QString skinId;
    QString path;
    QSize pixels;

    bool operator==(const PictureKey &other) const
    {
        return pixels == other.pixels && path == other.path && skinId == other.skinId;
    }
};

uint qHash(const PictureKey &key, uint seed = 0)
{
    return ::qHash(key.path, seed) ^ ::qHash(key.skinId, seed) ^
           uint(key.pixels.width() * 31 + key.pixels.height());
}

/// The store, tied to one life of the host's core: a test or a demo may start the host again.
class PictureStore
{
public:
    QCache<PictureKey, QPixmap> pictures{storeBytes};

    void follow(ZrCore *core)
    {
        if (m_core == core)
            return;
        QObject::disconnect(m_connection);
        pictures.clear();
        m_core = core;
        m_connection = QObject::connect(core, &ZrCore::signalSkinChanged, [this] { pictures.clear(); });
    }

    void forget()
    {
        QObject::disconnect(m_connection);
        m_core.clear();
        pictures.clear();
    }

private:
    QPointer<ZrCore> m_core;
    QMetaObject::Connection m_connection;
};

PictureStore &store();

// Pixmaps must not outlive the application object.
void emptyStore()
{
    store().forget();
}

PictureStore &store()
{
    static PictureStore theStore;
    // Post routines run once for each application object, so the registration is repeated for the next.
    static QPointer<QCoreApplication> registeredFor;
    if (registeredFor != QCoreApplication::instance()) {
        registeredFor = QCoreApplication::instance();
        qAddPostRoutine(emptyStore);
    }
    return theStore;
}

QPixmap read(const QString &file, const QSize &pixels)
{
    if (file.isEmpty() || pixels.isEmpty())
        return QPixmap();
    QImageReader reader(file);
    const QSize source = reader.size();
    if (source.width() > largestSourcePx || source.height() > largestSourcePx)
        return QPixmap();
    // Drawings are rendered at the size asked for, so that they stay sharp; the reader scales the others
    // after.
    if (reader.format().startsWith("svg"))
        reader.setScaledSize(pixels);
    QImage image = reader.read();
    if (!image.isNull() && image.size() != pixels)
        image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return QPixmap::fromImage(image);
}

} // namespace

QString ZrSkinPixmap::fileName(const QString &skinId, const QString &path)
{
    const QChar slash = QLatin1Char('/');
    const QString unified = QString(path).replace(QLatin1Char('\\'), slash);
    const bool climbs = unified.split(slash).contains(QStringLiteral(".."));
    const bool folderUnclear = skinId.isEmpty() || skinId.contains(slash) ||
                               skinId.contains(QLatin1Char('\\')) || skinId == QLatin1String(".") ||
                               skinId == QLatin1String("..");
    if (path.isEmpty() || climbs || folderUnclear)
        return QString();
    // A leading slash stays below the folder: the texts are joined, not resolved.
    return QStringLiteral("ZRSkin:%1/%2").arg(skinId, unified);
}

QPixmap ZrSkinPixmap::get(const QString &path, const QSize &size, qreal devicePixelRatio)
{
    const QSize pixels =
        (QSizeF(size) * devicePixelRatio).toSize().boundedTo(QSize(largestTargetPx, largestTargetPx));
    ZrCore *const core = ZrCore::instance();
    PictureStore &known = store();
    known.follow(core);
    const PictureKey key{core->getCurrentSkinId(), path, pixels};
    if (const QPixmap *const kept = known.pictures.object(key))
        return *kept;
    auto *const picture = new QPixmap(read(fileName(key.skinId, path), pixels));
    picture->setDevicePixelRatio(devicePixelRatio);
    const QPixmap result = *picture;
    // The store owns the picture from here, and may drop it at once when it is too large to keep.
    known.pictures.insert(key, picture, qMax(1, pixels.width() * pixels.height() * 4));
    return result;
}

void ZrSkinPixmap::draw(QPainter *painter, const QRect &rect, const QUrl &url)
{
    draw(painter, rect, url.path());
}

void ZrSkinPixmap::draw(QPainter *painter, const QRect &rect, const QString &path)
{
    if (path.isEmpty() || !rect.isValid())
        return;
    const QPixmap picture = get(path, rect.size(), painter->device()->devicePixelRatioF());
    if (!picture.isNull())
        painter->drawPixmap(rect, picture);
}
