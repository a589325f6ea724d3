#include "ZrShowcaseStage.h"

#include "ZrShowcaseGrid.h"

#include <QtGui/QHoverEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGraphicsProxyWidget>

#include <algorithm>

namespace {
// As wide as in a cell of a page.
QSize sizeOf(const QWidget *widget)
{
    const bool fills = widget->sizePolicy().expandingDirections().testFlag(Qt::Horizontal);
    QSize size = widget->sizeHint().expandedTo(widget->minimumSize());
    if (fills)
        size.setWidth(qMax(size.width(), ZrShowcaseGrid::LeastPx));
    return size.boundedTo(widget->maximumSize());
}

// What takes the focus inside it when it does not take any itself.
QWidget *focusTaker(QWidget *widget)
{
    if (widget->focusPolicy() != Qt::NoFocus)
        return widget;
    const QList<QWidget *> inner = widget->findChildren<QWidget *>();
    const auto found = std::find_if(inner.cbegin(), inner.cend(), [](const QWidget *child) {
        return child->focusPolicy() != Qt::NoFocus && child->isEnabled() && child->isVisible();
    });
    return found == inner.cend() ? widget : *found;
}
} // namespace

ZrShowcaseStage::ZrShowcaseStage(QWidget *widget, const QStringList &sheets)
    : m_widget(widget)
{
    auto *const floor = new QWidget;
    floor->setStyleSheet(sheets.join(QLatin1Char('\n')));
    floor->setAttribute(Qt::WA_KeyboardFocusChange); // marks of focus that only the keyboard's user sees
    widget->setParent(floor);
    widget->ensurePolished();
    widget->resize(sizeOf(widget));
    widget->show();
    floor->resize(widget->size());
    m_scene.addWidget(floor);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&m_scene, &activate);
}

void ZrShowcaseStage::enter(ZrShowcasePage::State state)
{
    picture(1); // some parts can be hit only once they were painted
    switch (state) {
    case ZrShowcasePage::State::Hover:
        hover();
        break;
    case ZrShowcasePage::State::Focus:
        focus();
        break;
    case ZrShowcasePage::State::Pressed:
        hover();
        press();
        break;
    }
}

// The pointer stands over what is at the centre and over all that this stands in.
void ZrShowcaseStage::hover()
{
    const QPoint centre = m_widget->rect().center();
    QList<QWidget *> under;
    for (QWidget *widget = m_widget->childAt(centre); widget && widget != m_widget;
         widget = widget->parentWidget())
        under.prepend(widget);
    under.prepend(m_widget);
    for (QWidget *const widget : qAsConst(under)) {
        const QPointF at = widget->mapFrom(m_widget, centre);
        widget->setAttribute(Qt::WA_UnderMouse);
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(widget, &enter);
        for (const QEvent::Type type : {QEvent::HoverEnter, QEvent::HoverMove}) {
            QHoverEvent event(type, at, QPointF(-1, -1));
            if (widget->testAttribute(Qt::WA_Hover))
                QCoreApplication::sendEvent(widget, &event);
        }
    }
}

void ZrShowcaseStage::focus()
{
    focusTaker(m_widget)->setFocus(Qt::TabFocusReason);
}

void ZrShowcaseStage::press()
{
    if (auto *const button = qobject_cast<QAbstractButton *>(m_widget)) {
        button->setDown(true);
        return;
    }
    const QPointF at = m_widget->rect().center();
    QMouseEvent event(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_widget, &event);
}

QPixmap ZrShowcaseStage::picture(qreal ratio) const
{
    QPixmap pixmap((QSizeF(m_widget->size()) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    m_widget->render(&pixmap, QPoint(), QRegion(), QWidget::DrawChildren);
    return pixmap;
}
