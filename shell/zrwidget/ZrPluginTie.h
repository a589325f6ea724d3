#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

class ZrPresenterClass;

/// What a presenter asks of the plugin that it's made for: to be known there.
///
/// A plugin widget's private object implements this and names it in Q_INTERFACES. Presenters are also built
/// where there are no widgets, so that they can't ask the plugin widget itself.
///
/// Ownership: the plugin's.
/// Threads:   GUI thread only.
/// Errors:    none.
class ZRWIDGET_EXPORT ZrPluginTie
{
public:
    virtual ~ZrPluginTie();

    /// The tie of `plugin` or of its private object; null for an object without one.
    static ZrPluginTie *of(QObject *plugin);

    /// The presenter is nearly constructed: its signals may be connected, its virtual operations not yet be
    /// called.
    virtual void tiePresenter(ZrPresenterClass *made) = 0;

protected:
    ZrPluginTie() = default;

private:
    Q_DISABLE_COPY(ZrPluginTie)
};

Q_DECLARE_INTERFACE(ZrPluginTie, "zrwidget.ZrPluginTie/1.0")
