#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QObject>

class QWidget;

/// The widgets that a plugin has added to its title.
///
/// Shape:     each widget once; who builds the title follows the signals.
/// Ownership: borrowed. The title takes them as its children, and a widget that dies is forgotten.
/// Threads:   GUI thread only.
/// Errors:    null, a widget added twice and one that was never added are ignored.
class ZRWIDGET_PRIVATE_EXPORT ZrPluginTitleWidgets : public QObject
{
    Q_OBJECT
public:
    explicit ZrPluginTitleWidgets(QObject *parent = nullptr);

    void add(QWidget *widget, bool right);
    /// Null removes all.
    void remove(QWidget *widget);
    QList<QWidget *> widgets() const { return m_widgets; }

signals:
    void added(QWidget *widget, bool right);
    /// Hidden, and still in the list.
    void removed(QWidget *widget);

private:
    void take(QWidget *widget);

    QList<QWidget *> m_widgets; // not owned
};
