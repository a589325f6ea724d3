#pragma once

#include "zrcore/zrcore_global.h"

#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QVariant>

class IZrSkin;
class Id;
class QWidget;

/// The client's core: main window, settings, skins, process-wide values, plugin objects.
///
/// Ownership: the host's; instance() is never null and callers don't test it.
/// Threads:   GUI thread only.
/// Errors:    reads of something unknown give an invalid variant, an empty text or null.
class ZRCORE_EXPORT ZrCore : public QObject
{
    Q_OBJECT
public:
    static ZrCore *instance();

    /// Loads the sheet that `cssPath` names below the current skin and hands its text to
    /// view->loadSkin, now and at each later change of skin, as long as the view lives. Called by
    /// every widget in its constructor. A null view is ignored; a sheet that can't be read gives
    /// the view an invalid variant.
    void addStyle2View(IZrSkin *view, const QString &cssPath);
    /// Identifier of the current skin; callers read it at each use so that pictures follow it.
    QString getCurrentSkinId() const;

    /// The top-level window, parent of modal messages with no better owner; null before there is one.
    QWidget *mainWindow() const;
    /// Brings a free-floating window to the front; null is ignored.
    void raiseWindow(QWidget *window);

    /// Reads a setting. `key` is a plugin instance ID or a view's own key, `group` a constant,
    /// `file` empty for the client's own file. An unset one is a variant with an empty toString().
    QVariant settings(const QString &key, const QString &group, const QString &file,
                      QSettings::Scope scope) const;
    /// Writes what settings() reads under the same four coordinates.
    void saveSetting(const QString &key, const QVariant &value, const QString &group, const QString &file,
                     QSettings::Scope scope);

    /// A process-wide value; an unset one is a variant whose toInt() is 0.
    QVariant getCommonInfo(QString key) const;
    void setCommonInfo(QString key, QVariant value);

    /// Told once for each plugin widget made, with the time that making it took, in ms.
    void newPluginCreated(const QString &pluginInstanceID, int elapsedMs);
    /// Makes the plugin object registered under `id`; null if there is none or the id is null. The
    /// caller owns the object.
    QObject *createCustomObject(const Id &id);

signals:
    void signalSkinChanged(const QString &skinId);

private:
    ZrCore();
    ~ZrCore() override;
    Q_DISABLE_COPY(ZrCore)
    class Private;
    Private *d;
};
