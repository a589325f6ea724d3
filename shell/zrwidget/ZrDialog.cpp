#include "ZrDialog.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrDialog_p.h"
#include "ZrMessageBox.h"
#include "ZrPlainText.h"
#include "ZrShadowFrame.h"
#include "ZrTitleLabel.h"
#include "ZrWindowPlace.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QPushButton>

namespace {
constexpr QSize firstSize(420, 162);
constexpr int leastWidthPx = 200;
constexpr int bothButtons = 3;
} // namespace

ZrDialog::ZrDialog(const QString &title, bool closeOnCloseButton, QWidget *parent, int buttons,
                   bool showTitle, bool hasShadow, int positionMode)
    : QDialog(parent)
    , d(new ZrDialogPrivate(this))
{
    d->title = title;
    d->closeOnCloseButton = closeOnCloseButton;
    d->buttons = buttons;
    d->showTitle = showTitle;
    d->hasShadow = hasShadow;
    d->positionMode = positionMode;
    setObjectName(QStringLiteral("ZrDialog"));
    setWindowTitle(ZrPlainText::beginning(title, ZrPlainText::captionBound));
    d->createParts();
    connectParts();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    resize(firstSize);
    setMinimumWidth(leastWidthPx);
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/ZrDialog.css"));
    d->adjustGeometryByScreen();
    qDebug() << "ZrDialog::ZrDialog" << title << " dialog inited";
}

// What is in the dialog is destroyed after its own part of it, and may tell its end by a signal that we take.
ZrDialog::~ZrDialog()
{
    const auto below = findChildren<QObject *>();
    for (const QObject *const each : below)
        disconnect(each, nullptr, this, nullptr);
}

// By hand: the slots' names are the interface's, and a content may have parts of the same names.
void ZrDialog::connectParts()
{
    connect(d->buttonClose, &QPushButton::clicked, this, &ZrDialog::on_pushButton_close_clicked);
    connect(d->buttonFresh, &QPushButton::clicked, this, &ZrDialog::on_pushButton_fresh_clicked);
    connect(d->foot.confirm, &QPushButton::clicked, this, &ZrDialog::on_pushButton_ok_clicked);
    connect(d->foot.cancel, &QPushButton::clicked, this, &ZrDialog::on_pushButton_cancel_clicked);
}

void ZrDialog::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrDialog::addWidget(QWidget *widget)
{
    if (!widget)
        return;
    d->setContent(widget);
    slotPluginWidgetSizeChanged();
}

void ZrDialog::setTitle(const QString &title)
{
    d->title = title;
    d->head.label->setTitle(title);
    setWindowTitle(ZrPlainText::beginning(title, ZrPlainText::captionBound));
}

void ZrDialog::setTitleHeight(int heightPx)
{
    d->head.frame->setFixedHeight(heightPx);
}

void ZrDialog::setResizeFlag(bool resizable)
{
    d->setResizable(resizable);
}

void ZrDialog::setAutoResizeByCenterWidget(bool follow)
{
    d->autoResizeByCenterWidget = follow;
}

void ZrDialog::setCloseConfirmTip(const QString &tip)
{
    m_closeConfirmTip = tip;
}

void ZrDialog::setDefaultFocusButton(int button)
{
    d->defaultFocusButton = button;
}

void ZrDialog::setEscBtnEnable(bool enable)
{
    d->escEnabled = enable;
}

void ZrDialog::setMarginPropety(int marginPx)
{
    if (d->frameShadow)
        ZrDialogParts::setMargin(this, marginPx);
}

void ZrDialog::setRadiusPropety(int radius)
{
    if (d->frameShadow)
        ZrDialogParts::setRadius(this, radius);
}

bool ZrDialog::eventFilter(QObject *watched, QEvent *event)
{
    return d->watch(watched, event) || QDialog::eventFilter(watched, event);
}

void ZrDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // As part of another window a dialog is a picture of itself and leaves the focus where it is.
    if (isWindow())
        d->focusDefault();
}

// What has the focus may lie beside the content: one of the buttons, or a part that was added later.
void ZrDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !d->escEnabled)
        return;
    QDialog::keyPressEvent(event);
}

void ZrDialog::doAccepted()
{
    const QPointer<ZrDialog> self(this); // a plugin may close or delete what it is in while it's asked
    if (d->content.mayClose() && self)
        done(1);
}

void ZrDialog::doRejected()
{
    done(0);
}

void ZrDialog::slotClosePluginWidget()
{
    qDebug() << "ZrDialog::slotClosePluginWidget" << d->title << " closed because of plugin close";
    close();
}

void ZrDialog::slotPluginDialogExecReturn(int iCode)
{
    if (iCode == 0 || iCode == 1)
        done(iCode);
}

void ZrDialog::slotPluginWidgetSizeChanged()
{
    d->resizeByCenterWidget();
    d->adjustGeometryByScreen();
}

void ZrDialog::slotAddPluginDialogTitleWidget(QWidget *widget)
{
    if (!widget)
        return;
    d->addToTitle(widget);
    slotPluginWidgetSizeChanged();
}

bool ZrDialog::mayCloseByButton()
{
    if (m_closeConfirmTip.isEmpty())
        return true;
    // Not on the stack: who deletes the dialog while it asks deletes the box with it.
    const QPointer<ZrMessageBox> box =
        new ZrMessageBox(tr("是否关闭"), m_closeConfirmTip, bothButtons, this, ZrWindowPlace::OverMainWindow);
    const int answer = box->exec();
    delete box;
    return answer != 0;
}

// Asks neither a plugin nor doRejected(): plugins put their own question into the tip.
void ZrDialog::on_pushButton_close_clicked()
{
    const QPointer<ZrDialog> self(this);
    if (!mayCloseByButton() || !self)
        return;
    const QString title = d->title; // the dialog may be gone after it is closed
    if (d->closeOnCloseButton)
        close();
    else
        hide();
    qDebug() << "ZrDialog::on_pushButton_close_clicked" << title << " closed because of close btn";
}

void ZrDialog::on_pushButton_fresh_clicked()
{
    d->content.refresh();
}

void ZrDialog::on_pushButton_ok_clicked()
{
    qDebug() << "ZrDialog::on_pushButton_ok_clicked" << d->title;
    doAccepted();
}

void ZrDialog::on_pushButton_cancel_clicked()
{
    qDebug() << "ZrDialog::on_pushButton_cancel_clicked" << d->title;
    doRejected();
}
