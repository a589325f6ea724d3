#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

class QComboBox;
class QKeyEvent;
class ZrMultiComboList;

/// Keyboard and wheel of a ZrMultiComboBox, where the base means a choice of one row.
///
/// Shape:     closed, an arrow, a page key, Space or F4 opens. Open, Space ticks the current row; Enter,
///            Escape, F4, and Alt with an arrow close; all else moves in the list as in every list. The wheel
///            over the closed box belongs to what the box stands in.
/// Ownership: a child of the box; box and list are borrowed.
/// Threads:   GUI thread only.
/// Errors:    none.
class ZRWIDGET_PRIVATE_EXPORT ZrMultiComboKeys : public QObject
{
    Q_OBJECT
public:
    /// To be made after the box has taken the list as its view: the base listens to its view too, and who
    /// comes last is asked first.
    ZrMultiComboKeys(QComboBox *box, ZrMultiComboList *list);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Meaning { None, Open, Close, Tick };

    Meaning meaningOf(const QKeyEvent *event) const;
    bool keyPress(const QKeyEvent *event);

    QComboBox *const m_box;         // not owned: our parent
    ZrMultiComboList *const m_list; // not owned
};
