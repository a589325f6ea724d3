#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QCheckBox>

class ZrMultiComboItem;

/// The check box of one row in the popup of a ZrMultiComboBox.
///
/// Shape:     as wide as its parent; a click anywhere inside toggles it, not only one on the indicator. The
///            text comes from outside: it is shown as it is on one line that ends in an ellipsis where the
///            box ends, an ampersand is no shortcut, and the tool tip is never read as markup.
/// Units:     sizes in logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none; without a parent it has no size and no place to click.
class ZRWIDGET_EXPORT CheckBoxInMultiBox : public QCheckBox
{
    Q_OBJECT
public:
    explicit CheckBoxInMultiBox(QWidget *parent = nullptr);
    explicit CheckBoxInMultiBox(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool hitButton(const QPoint &pos) const override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CheckBoxInMultiBox)
    friend class ZrMultiComboItem;
    ZrMultiComboItem *m_item = nullptr; // not owned: its row, which takes itself out here at its end
};
