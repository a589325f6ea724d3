#include "CheckBoxInMultiBox.h"

#include "ZrElidedLine.h"
#include "ZrPlainTip.h"

#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

CheckBoxInMultiBox::CheckBoxInMultiBox(QWidget *parent)
    : QCheckBox(parent)
{
}

CheckBoxInMultiBox::CheckBoxInMultiBox(const QString &text, QWidget *parent)
    : QCheckBox(parent)
{
    setText(text);
    // The base makes one of an ampersand.
    setShortcut(QKeySequence());
    // The base would say "AB" for "A&B". A name of its own costs each of thousands of boxes, so only then.
    if (text.contains(QLatin1Char('&')))
        setAccessibleName(text);
}

QSize CheckBoxInMultiBox::sizeHint() const
{
    const QWidget *const parent = parentWidget();
    return parent ? QSize(parent->width(), height()) : QSize(-1, -1);
}

bool CheckBoxInMultiBox::hitButton(const QPoint &pos) const
{
    return QRect(QPoint(0, 0), sizeHint()).contains(pos);
}

bool CheckBoxInMultiBox::event(QEvent *event)
{
    return ZrPlainTip::show(this, event) || QCheckBox::event(event);
}

void CheckBoxInMultiBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    option.text = ZrElidedLine::of(text(), option.fontMetrics, contents.width());
    painter.drawControl(QStyle::CE_CheckBox, option);
}
