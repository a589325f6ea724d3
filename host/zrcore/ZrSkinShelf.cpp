#include "ZrSkinShelf.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace {
constexpr qint64 maxSheetBytes = 4 * 1024 * 1024;
}

void ZrSkinShelf::setRoot(const QString &root)
{
    m_root = root;
    QDir::setSearchPaths(QStringLiteral("ZRSkin"), root.isEmpty() ? QStringList() : QStringList{root});
}

QStringList ZrSkinShelf::skinIds() const
{
    return m_root.isEmpty() ? QStringList()
                            : QDir(m_root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

bool ZrSkinShelf::choose(const QString &skinId)
{
    if (!skinIds().contains(skinId))
        return false;
    m_current = skinId;
    return true;
}

QVariant ZrSkinShelf::sheet(const QString &cssPath) const
{
    if (m_current.isEmpty() || cssPath.isEmpty())
        return QVariant();
    const QDir skin(QDir(m_root).filePath(m_current));
    const QString path = QDir::cleanPath(skin.absolutePath() + QLatin1Char('/') + cssPath);
    // A path with ".." could name any file of the user's, and its text would become a style sheet.
    if (!path.startsWith(skin.absolutePath() + QLatin1Char('/')))
        return QVariant();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maxSheetBytes)
        return QVariant();
    return QString::fromUtf8(file.readAll());
}
