#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtWidgets/QWidget>

class ZrDialog;
class ZrPluginBaseWidget;

/// What a dialog hosts: a plugin or any other widget, and what the dialog asks of it.
///
/// Shape:     empty, or one widget; a widget that isn't a plugin may always be closed and has nothing to
///            refresh.
/// Units:     logical px.
/// Ownership: the widget is borrowed and may go at any time, which leaves this empty.
/// Threads:   GUI thread only.
/// Errors:    a plugin without a usable width counts with the size that it has.
class ZRWIDGET_PRIVATE_EXPORT ZrDialogContent
{
public:
    QWidget *widget() const { return m_widget; }
    /// Takes the place of the widget before; the filter sees the events of it and of all that is below it.
    void replace(QWidget *widget, QObject *filter);
    /// A plugin's signals end, resize and extend the dialog from now on.
    void connectTo(ZrDialog *dialog) const;

    /// The size that the widget shall have: what a plugin tells of itself, or else what it has.
    QSize wantedSize() const;
    /// Asks a plugin; its reason isn't shown.
    bool mayClose() const;
    void refresh() const;

private:
    ZrPluginBaseWidget *plugin() const;
    static void watch(QWidget *widget, QObject *filter, bool on);

    QPointer<QWidget> m_widget;
};
