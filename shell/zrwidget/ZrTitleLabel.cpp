#include "ZrTitleLabel.h"

#include "ZrPlainText.h"

#include <QtCore/QEvent>
#include <QtWidgets/QStylePainter>

ZrTitleLabel::ZrTitleLabel(QWidget *parent)
    : QLabel(parent)
{
    ZrPlainText::setCaption(this, QString());
}

void ZrTitleLabel::setTitle(const QString &title)
{
    ZrPlainText::setCaption(this, title);
}

bool ZrTitleLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip)
        ZrPlainText::setToolTip(this, isCut() ? text() : QString());
    return QLabel::event(event);
}

void ZrTitleLabel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event); // not the label's own: it paints the text and cuts it anywhere
    QStylePainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    painter.drawItemText(place, int(alignment()) | Qt::TextSingleLine, palette(), isEnabled(), shown,
                         foregroundRole());
}

bool ZrTitleLabel::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}
