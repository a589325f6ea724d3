#pragma once

#include "zrcore/zrcore_global.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>

class QObject;
class QWidget;

/// The side of the core that the host itself steers.
///
/// Ownership: the process's; the main window is borrowed and may die at any time.
/// Threads:   GUI thread only.
/// Errors:    an unknown skin is refused with a warning.
class ZRCORE_EXPORT ZrCoreHost
{
public:
    static ZrCoreHost &instance();

    /// Where settings lie; empty for the user's configuration folder.
    void setConfigFolder(const QString &folder);
    QString configFolder() const;
    /// What "ZRData:" stands for.
    void setDataFolder(const QString &folder);
    /// What "ZRSkin:" stands for: the folder of the skins' folders.
    void setSkinRoot(const QString &root);
    QStringList skinIds() const;
    /// Puts on a skin: first every view gets its sheets, then signalSkinChanged tells, so that who
    /// listens to it finds the views in their new clothes. The current one, or an unknown one, changes
    /// nothing.
    bool setSkin(const QString &skinId);
    /// How many views wear the skin.
    int skinnedViewCount() const;

    void setMainWindow(QWidget *window);
    void setObjectMaker(const QString &pluginId, std::function<QObject *()> maker);
    /// Where plugin files lie; see ZrCorePlugin.
    void setPluginFolder(const QString &folder);
    QStringList pluginIds() const;

    /// The plugins made so far, in order, each with the time it took in ms; the oldest go beyond 10,000.
    QList<QPair<QString, int>> pluginsCreated() const;
    void syncSettings();
    /// Back to how a process begins. Living views stay known.
    void reset();

private:
    friend class ZrCore;
    ZrCoreHost();
    ~ZrCoreHost();
    Q_DISABLE_COPY(ZrCoreHost)
    class Private;
    const std::unique_ptr<Private> d;
};
