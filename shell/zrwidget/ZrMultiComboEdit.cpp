#include "ZrMultiComboEdit.h"

#include "ZrElidedLine.h"

#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>

#include <limits>

namespace {
constexpr int MarginPx = 2; // what the base leaves free on either side of its text
}

ZrMultiComboEdit::ZrMultiComboEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setMaxLength(std::numeric_limits<int>::max());
    setCursor(Qt::ArrowCursor);
}

void ZrMultiComboEdit::setShownText(const QString &text)
{
    // The mode changes while the text is short, since that lays out as well.
    const bool isLong = text.size() > longestLaidOut;
    // A screen reader gets nothing of a text that isn't echoed.
    setAccessibleDescription(isLong ? text.left(longestLaidOut) : QString());
    if (isLong) {
        if (echoMode() == Normal)
            setText(QString());
        setEchoMode(NoEcho);
        setText(text);
    } else {
        setText(text);
        setEchoMode(Normal);
    }
    setCursorPosition(0);
}

void ZrMultiComboEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    // The base selects all for who comes by the keyboard, to be typed over; nothing can be typed here.
    deselect();
    setCursorPosition(0);
}

void ZrMultiComboEdit::paintEvent(QPaintEvent *event)
{
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    const QRect contents = style()
                               ->subElementRect(QStyle::SE_LineEditContents, &panel, this)
                               .marginsRemoved(textMargins())
                               .adjusted(MarginPx, 0, -MarginPx, 0);
    const bool isKeptBack = echoMode() != Normal;
    const bool fits = !isKeptBack && fontMetrics().horizontalAdvance(text()) <= contents.width();
    if (fits || (!isKeptBack && hasSelectedText())) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, panel);
    const int alignment =
        int(QStyle::visualAlignment(layoutDirection(), this->alignment())) | Qt::TextShowMnemonic;
    painter.drawItemText(contents, alignment, palette(), isEnabled(),
                         ZrElidedLine::of(text(), fontMetrics(), contents.width()), QPalette::Text);
}
