#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QWidget>

/// A row of buttons of which one can be checked.
///
/// Shape:     a QHBoxLayout without margins and an exclusive QButtonGroup, in step but for clear().
/// Units:     5 logical px between buttons.
/// Ownership: buttons become children of the row by the layout; the group borrows them.
/// Threads:   GUI thread only.
/// Errors:    a null button is ignored.
class ZRWIDGET_EXPORT ZrButtonGroupWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ZrButtonGroupWidget(QWidget *parent = nullptr);
    ~ZrButtonGroupWidget() override;

    /// Puts the button at the end of the row and into the group, which numbers it by itself (-2, -3, ...).
    /// One that is in the row already moves to the end. With another kind of layout in place of the row's
    /// own, the button goes into the group only.
    void addButton(QAbstractButton *button);
    QList<QAbstractButton *> buttons() const;
    /// Null when none is checked.
    QAbstractButton *checkedButton() const;
    /// Empties the group. The buttons stay where they are and live on; their owner hides or deletes them.
    void clear();

private:
    QButtonGroup m_group;
};
