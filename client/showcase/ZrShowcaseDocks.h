#pragma once

#include "ZrShowcasePages.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QDockWidget>

class QMainWindow;
class QMenu;

/// The docks of the showcase: one for each page, behind another dock, made when it is first asked for.
///
/// Shape:     docks are called "showcase-" and the page's id. Without a dock in front they stand behind each
///            other.
/// Ownership: a child of the window, which it borrows together with the dock in front.
/// Threads:   GUI thread only.
/// Errors:    an unknown id opens nothing and gives null.
class ZrShowcaseDocks : public QObject
{
    Q_OBJECT
public:
    ZrShowcaseDocks(QMainWindow *window, QDockWidget *front);

    void setFront(QDockWidget *front) { m_front = front; }
    /// Brings the page's dock to the front, made when it is missing, shown when it was closed.
    QDockWidget *open(const QString &id);
    QStringList ids() const;
    /// An entry for each page, pages of one family together. The caller's.
    QMenu *makeMenu(QWidget *parent);

private:
    QDockWidget *make(const ZrShowcaseEntry &entry);
    QDockWidget *front() const;

    QMainWindow *const m_window;   // not owned: our parent
    QPointer<QDockWidget> m_front; // not owned
    const QList<ZrShowcaseEntry> m_entries;
};
