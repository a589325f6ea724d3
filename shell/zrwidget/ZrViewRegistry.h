#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <optional>

class QWidget;
class ZrViewBase;

/// What a grid asks of the plugin that it stands in: registration, and what the user chose about its columns.
///
/// The plugin's widget or a direct QObject child of it implements this and names it in Q_INTERFACES; a grid
/// finds it by walking up its parents, so that grids and the plugin frame above them can be built apart.
///
/// Units:     columns are logical numbers; a caption names a grid within its plugin.
/// Ownership: the plugin's; a grid holds a ZrViewRegistryPointer, which turns null as the registry dies. A
///            QPointer would not do: a widget deletes its children while such pointers still see it.
/// Threads:   GUI thread only.
/// Errors:    a caption without an entry gives no list.
class ZRWIDGET_EXPORT ZrViewRegistry
{
public:
    virtual ~ZrViewRegistry();

    /// The registry of `widget` or of the nearest of its parents; null when there is none.
    static ZrViewRegistry *of(QWidget *widget);

    virtual QString pluginInstanceId() const = 0;
    virtual void addPluginView(ZrViewBase *view) = 0;
    virtual void removePluginView(ZrViewBase *view) = 0;
    /// A plugin's own wish to forget the view.
    virtual void unregisterTable(ZrViewBase *view) = 0;
    virtual std::optional<QList<int>> columnVisibleProperty(const QString &caption) const = 0;
    virtual std::optional<QList<int>> columnOrderProperty(const QString &caption) const = 0;
    /// Gives the view the columns hidden by the style in force.
    virtual void resetPluginViewCurrentHideStyle(ZrViewBase *view) = 0;
    /// The user has moved a column of one of the views.
    virtual void orderChanged() = 0;

protected:
    ZrViewRegistry();

private:
    Q_DISABLE_COPY(ZrViewRegistry)
    friend class ZrViewRegistryPointer;
    const std::shared_ptr<ZrViewRegistry *> m_self; // shared with the pointers; null once we are gone
};

/// A borrowed ZrViewRegistry that turns null as the registry dies.
class ZRWIDGET_PRIVATE_EXPORT ZrViewRegistryPointer
{
public:
    ZrViewRegistryPointer() = default;
    explicit ZrViewRegistryPointer(ZrViewRegistry *registry);

    ZrViewRegistry *get() const { return m_target ? *m_target : nullptr; }
    ZrViewRegistry *operator->() const { return get(); }
    explicit operator bool() const { return get() != nullptr; }

private:
    std::shared_ptr<ZrViewRegistry *> m_target;
};

Q_DECLARE_INTERFACE(ZrViewRegistry, "zrwidget.ZrViewRegistry/1.0")
