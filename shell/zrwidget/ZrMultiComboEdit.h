#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QLineEdit>

/// The read-only editor of a ZrMultiComboBox: shows the joined texts of thousands of rows at no more cost
/// than those of two.
///
/// Shape:     what doesn't fit ends in an ellipsis. text() is always the whole text. The base lays a text out
///            whole at each change, milliseconds for tens of thousands of characters of which thirty are
///            seen; so a text beyond longestLaidOut is kept from it: echoMode() is NoEcho then, and nothing
///            can be selected with the mouse; screen readers get its beginning as the description.
/// Units:     longestLaidOut in characters (UTF-16 units).
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none.
class ZRWIDGET_PRIVATE_EXPORT ZrMultiComboEdit : public QLineEdit
{
    Q_OBJECT
public:
    static constexpr int longestLaidOut = 1000;

    explicit ZrMultiComboEdit(QWidget *parent = nullptr);

    /// Instead of setText; the beginning comes into sight.
    void setShownText(const QString &text);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZrMultiComboEdit)
};
