#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QLineEdit;
class QTimer;
class QTreeWidget;

/// The bare slots of an earlier code search, a field with a tree as its list. Plugins that still look the
/// class up by its meta object find it; ZrSearchBox is what new code uses.
///
/// Ownership: field and popup are borrowed and may end first; the timer is our child.
/// Threads:   GUI thread only.
/// Errors:    without field or popup the slots do what is left to do.
class ZRWIDGET_PRIVATE_EXPORT ZRSearch : public QObject
{
    Q_OBJECT
public:
    ZRSearch(QLineEdit *editor, QTreeWidget *popup, QObject *parent = nullptr);
    ~ZRSearch() override;

    QTimer *timer() const { return m_timer; }

public slots:
    /// Takes the first column of the popup's current item into the field and closes the popup.
    void doneCompletion();
    void preventSuggest();
    /// Suggests nothing: no back end answers a half-typed code any more.
    void autoSuggest();
    /// The answer that never comes now.
    void slotRspCodeSearchs();

private:
    Q_DISABLE_COPY(ZRSearch)
    QPointer<QLineEdit> m_editor;
    QPointer<QTreeWidget> m_popup;
    QTimer *const m_timer; // our child
};
