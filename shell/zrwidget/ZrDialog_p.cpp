#include "ZrDialog_p.h"

#include "ZrDialog.h"
#include "ZrDialogKeys.h"
#include "ZrScreenFit.h"
#include "ZrShadowFrame.h"
#include "ZrTitleLabel.h"
#include "ZrWindowEdges.h"
#include "ZrWindowPlace.h"

#include <QtCore/QDebug>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

namespace {

constexpr QSize leastSize(200, 70); // of a dialog that takes its content's size
constexpr int titleButtonsPx = 50;  // at the right of the title, where it doesn't move the dialog
constexpr int okButton = 1;
constexpr int cancelButton = 2;

} // namespace

ZrDialogPrivate::ZrDialogPrivate(ZrDialog *facade)
    : QObject(facade)
    , q(facade)
    , m_drag(facade)
    , m_resize(facade)
{
}

void ZrDialogPrivate::createParts()
{
    const QString name = QStringLiteral("verticalLayout");
    if (hasShadow)
        frameShadow = ZrDialogParts::addMainFrame(q, name);
    else
        frameMain = ZrDialogParts::addPlainFrame(q, name);
    auto *const column = static_cast<QBoxLayout *>(mainFrame()->layout());
    createTitle(column);
    frameWork = ZrDialogParts::addWork(column);
    ZrDialogParts::column(QStringLiteral("verticalLayout_2"), frameWork);
    createBottom(column);
}

void ZrDialogPrivate::createTitle(QBoxLayout *column)
{
    head = ZrDialogParts::addTitle(column, title, {6, {10, 0, 10, 0}});
    ZrDialogParts::addTitleSpace(head);
    buttonFresh =
        ZrDialogParts::addTitleButton(head, QStringLiteral("pushButton_fresh"), ZrDialog::tr("Refresh"));
    buttonFresh->hide();
    buttonClose =
        ZrDialogParts::addTitleButton(head, QStringLiteral("pushButton_close"), ZrDialog::tr("Close"));
    head.frame->setVisible(showTitle);
    // The title's own, for dialogs of a fixed size too: what is around it is watched in resizable ones only.
    head.frame->installEventFilter(q);
}

void ZrDialogPrivate::createBottom(QBoxLayout *column)
{
    bottom = new QWidget(mainFrame());
    bottom->setObjectName(QStringLiteral("bottom"));
    foot = ZrDialogParts::addButtons(bottom, QStringLiteral("pushButton_ok"),
                                     QStringLiteral("pushButton_cancel"), {6, {9, 0, 9, 9}});
    foot.confirm->setText(ZrDialog::tr("确认"));
    foot.cancel->setText(ZrDialog::tr("取消"));
    ZrDialogParts::showButtons(foot, buttons);
    bottom->setVisible(buttons & (okButton | cancelButton));
    if (buttons != 0)
        column->addWidget(bottom);
}

QFrame *ZrDialogPrivate::mainFrame() const
{
    return frameShadow ? frameShadow : frameMain;
}

void ZrDialogPrivate::setContent(QWidget *widget)
{
    qDebug() << "ZrDialog::addWidget" << content.widget() << widget;
    content.replace(widget, q);
    setResizable(resizable);
    frameWork->layout()->addWidget(widget);
    orderTabs();
    content.connectTo(q);
}

// A content joins the window's order behind the buttons, which stand below it.
void ZrDialogPrivate::orderTabs()
{
    QWidget *const last = q->previousInFocusChain();
    if (last == foot.cancel)
        return;
    QWidget::setTabOrder(last, foot.confirm);
    QWidget::setTabOrder(foot.confirm, foot.cancel);
}

void ZrDialogPrivate::setResizable(bool on)
{
    resizable = on;
    m_tracked.giveBack();
    for (QFrame *const ground : {frameWork, mainFrame()})
        ground->removeEventFilter(q);
    if (!on) {
        m_resize.release();
        m_resize.restoreCursor();
        return;
    }
    // The label too: over a part that tells nothing of the mouse the edges last seen would stay.
    const QWidgetList parts{q, head.frame, head.label, frameWork, mainFrame()};
    for (QWidget *const part : parts)
        m_tracked.track(part);
    m_tracked.trackTree(content.widget());
    for (QFrame *const ground : {frameWork, mainFrame()})
        ground->installEventFilter(q);
}

void ZrDialogPrivate::addToTitle(QWidget *widget)
{
    // A new parent takes a sheet of the widget's own out of force until it's set again.
    const QString sheet = widget->styleSheet();
    widget->setParent(head.frame);
    widget->setStyleSheet(sheet);
    head.row->removeWidget(widget);                        // if it was there before
    head.row->insertWidget(head.row->count() - 2, widget); // before the two buttons
}

void ZrDialogPrivate::resizeByCenterWidget()
{
    if (!content.widget())
        return;
    q->ensurePolished(); // the style sheet sets margins
    QSize size = content.wantedSize() + QSize(0, head.frame->height());
    // The frame's layout takes a pixel more at each side, so that the content gets two less than it had. The
    // plugins' sizes are chosen for that.
    if (frameShadow)
        size += QSize(2 * frameShadow->margin(), 2 * frameShadow->margin());
    if (buttons != 0) {
        bottom->resize(bottom->width(), bottom->sizeHint().height()); // it may not have been laid out yet
        size.rheight() += bottom->height();
    }
    inCenterResize = true;
    q->resize(size.expandedTo(leastSize));
    inCenterResize = false;
}

void ZrDialogPrivate::adjustGeometryByScreen()
{
    boundLeastHeight();
    ZrWindowPlace::fitToScreen(q);
    ZrWindowPlace::place(q, positionMode);
}

// A least size goes before a largest one, and a content that asks for more than the screen has would push the
// buttons out of it.
void ZrDialogPrivate::boundLeastHeight()
{
    const QRect screen = ZrWindowPlace::screenInUse();
    const int mostPx = ZrScreenFit::most(screen).height();
    const bool bound = !screen.isNull() && leastHeight() > mostPx;
    if (bound)
        q->setMinimumHeight(mostPx);
    else if (m_leastHeightBound)
        q->setMinimumSize(q->minimumWidth(), 0); // the layout's again
    m_leastHeightBound = bound;
}

int ZrDialogPrivate::leastHeight() const
{
    frameWork->layout()->invalidate();
    const QMargins around = mainFrame()->layout()->contentsMargins();
    return around.top() + around.bottom() + (showTitle ? head.frame->minimumHeight() : 0) +
           frameWork->layout()->totalMinimumSize().height() +
           (bottom->isHidden() ? 0 : bottom->sizeHint().height());
}

void ZrDialogPrivate::focusDefault()
{
    // Among our own: a content may have buttons of the same names.
    if (defaultFocusButton == okButton)
        ZrDialogKeys::focusButton(bottom, foot.confirm->objectName());
    else if (defaultFocusButton == cancelButton)
        ZrDialogKeys::focusButton(bottom, foot.cancel->objectName());
}

bool ZrDialogPrivate::watch(const QObject *watched, QEvent *event)
{
    const auto *const widget = qobject_cast<const QWidget *>(watched);
    // Menus, lists and dialogs that belong to the content are windows of their own.
    if (!widget || widget->window() != q)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(watched, static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        release();
        break;
    case QEvent::MouseMove:
        move(watched, static_cast<QMouseEvent *>(event));
        break;
    case QEvent::Enter:
        // The content may keep its moves to itself.
        if (resizable && !isEdgeGround(watched))
            m_resize.restoreCursor();
        break;
    case QEvent::KeyPress:
        // A child that leaves the key to its parents doesn't close the dialog by it: it's how the users take
        // back what they typed.
        return ZrDialogKeys::escapeOf(*event, escEnabled && watched == content.widget()) ==
               ZrDialogKeys::Escape::Swallowed;
    case QEvent::Resize:
        if (autoResizeByCenterWidget && !inCenterResize && watched == content.widget())
            resizeByCenterWidget();
        break;
    case QEvent::Show:
        if (watched == content.widget())
            focusDefault();
        break;
    default: // what the parts do by themselves
        break;
    }
    return false;
}

// Where the edges can be taken hold of. The content may cover all but the outermost of it.
bool ZrDialogPrivate::isEdgeGround(const QObject *watched) const
{
    return watched == frameWork || watched == mainFrame();
}

QRect ZrDialogPrivate::grip() const
{
    const QPoint inset = resizable ? QPoint(ZrWindowEdges::ReachPx, ZrWindowEdges::ReachPx) : QPoint();
    const QSize size = head.frame->size() - QSize(titleButtonsPx, inset.y());
    return QRect(head.frame->mapToGlobal(inset), size);
}

void ZrDialogPrivate::press(const QObject *watched, QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !m_drag.press(event, grip()) && isEdgeGround(watched))
        m_resize.press(*event);
}

void ZrDialogPrivate::move(const QObject *watched, QMouseEvent *event)
{
    if (!m_drag.move(event)) {
        if (!isEdgeGround(watched))
            return;
        m_resize.move(*event);
    }
    geometryBeforeMove = q->geometry();
}

void ZrDialogPrivate::release()
{
    m_drag.release();
    m_resize.release();
}
