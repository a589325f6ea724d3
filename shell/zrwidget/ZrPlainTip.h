#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

class QWidget;

/// Shows the tool tip of a widget as plain text, whatever the text: the toolkit would take one like "<b>" for
/// markup. For widgets whose toolTip() has to stay the text itself.
///
/// Shape:     installed on a widget it answers the widget's tool tip events; show() is for a widget that
///            takes them itself.
/// Ownership: a child of the widget.
/// Threads:   GUI thread only.
/// Errors:    none; without a text no tip appears.
class ZRWIDGET_PRIVATE_EXPORT ZrPlainTip : public QObject
{
    Q_OBJECT
public:
    explicit ZrPlainTip(QWidget *widget);

    /// True when the event asks for a tool tip; the widget's own is shown then.
    static bool show(QWidget *widget, QEvent *event);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *const m_widget; // not owned: our parent
};
