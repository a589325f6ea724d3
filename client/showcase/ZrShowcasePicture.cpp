#include "ZrShowcasePicture.h"

#include "ZrShowcaseStage.h"

#include <QtCore/QDebug>

namespace {
QStringList sheetsAround(const QWidget *widget)
{
    QStringList sheets;
    for (; widget; widget = widget->parentWidget())
        sheets.prepend(widget->styleSheet());
    return sheets;
}
} // namespace

ZrShowcasePicture::ZrShowcasePicture(const ZrShowcasePage::Maker &make, ZrShowcasePage::State state,
                                     QWidget *parent)
    : QLabel(parent)
    , m_make(make)
    , m_state(state)
{
}

void ZrShowcasePicture::take()
{
    QWidget *const widget = m_make();
    if (!widget) {
        qWarning() << "ZrShowcasePicture::take" << accessibleName() << "is null";
        return;
    }
    ZrShowcaseStage stage(widget, sheetsAround(this));
    stage.enter(m_state);
    setPixmap(stage.picture(devicePixelRatioF()));
}
