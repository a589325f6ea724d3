#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QTextEdit>

/// A message to be read: plain text in the middle of its place, scrolled where it is longer.
///
/// Shape:     read-only; can be selected and copied by mouse and by keyboard.
/// Units:     logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none. A text beyond 4,000 characters or 500 lines is cut and says so; a line without any place
/// to
///            break is cut after 1,000.
class ZRWIDGET_PRIVATE_EXPORT ZrMessageText : public QTextEdit
{
    Q_OBJECT
public:
    explicit ZrMessageText(QWidget *parent = nullptr);

    void setMessage(const QString &text);
    /// Width of the message on one line, also of what isn't shown of it, as far as that makes a difference to
    /// a window. Line ends count as the font draws them.
    int textWidthPx() const;
    int lineHeightPx() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void centre();
    void polish() const;

    QString m_measured; // the message, or enough of it to be wider than any box
};
