#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// The folder with one folder for each skin.
///
/// Shape:     <root>/<skin id>/...; a skin's ID is its folder's name and is only taken from the list
///            of folders, never used as a path unchecked.
/// Threads:   GUI thread only.
class ZrSkinShelf
{
public:
    /// Names the root and registers it under "ZRSkin:".
    void setRoot(const QString &root);
    QString root() const { return m_root; }
    QStringList skinIds() const;
    /// False when there is no such skin.
    bool choose(const QString &skinId);
    QString current() const { return m_current; }
    /// The text of a sheet below the current skin; invalid when it can't be read or lies elsewhere.
    QVariant sheet(const QString &cssPath) const;

private:
    QString m_root;
    QString m_current;
};
