#include "CheckBoxInMultiBox.h"

#include "ZrPlainText.h"
#include "ZrPlainTip.h"

#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

namespace {
/// The text as a style draws it: one line, no longer than the place for it, no ampersand lost.
QString shownText(const QString &text, const QStyleOptionButton &option, int widthPx)
{
    // The bound keeps measuring cheap: no row is wide enough to show more.
    const int most = qMax(1, widthPx);
    const QString line = ZrPlainText::caption(text, {most, 1, most});
    return option.fontMetrics.elidedText(line, Qt::ElideRight, widthPx, Qt::TextShowMnemonic);
}
} // namespace

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
    // The base reads "A&B" as "AB".
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
    option.text = shownText(text(), option, contents.width());
    painter.drawControl(QStyle::CE_CheckBox, option);
}
