#include "ZrHelpMark.h"

#include "zrcore/ZrCore.h"
#include "ZrSkinPixmap.h"

#include <QtGui/QPainter>

namespace {
constexpr int picturePx = 16;
constexpr int sidePx = 24; // room around the picture, so that it can be hit
} // namespace

ZrHelpMark::ZrHelpMark(QWidget *parent)
    : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Return belongs to the buttons that answer the question.
    setAutoDefault(false);
    setAccessibleName(tr("Help"));
    setToolTip(tr("Help"));
    connect(ZrCore::instance(), &ZrCore::signalSkinChanged, this, QOverload<>::of(&QWidget::update));
}

QSize ZrHelpMark::sizeHint() const
{
    return {sidePx, sidePx};
}

void ZrHelpMark::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event); // what the style sheet says of hover, press and focus
    QRect place(0, 0, picturePx, picturePx);
    place.moveCenter(rect().center());
    QPainter painter(this);
    ZrSkinPixmap::draw(&painter, place, QStringLiteral("/images/master/widget/help_pad.png"));
}
