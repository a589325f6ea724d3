#include "ZrMessageBox.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"
#include "ZrDialogKeys.h"
#include "ZrDialogParts.h"
#include "ZrHelpMark.h"
#include "ZrMessageText.h"
#include "ZrPlainText.h"
#include "ZrShadowFrame.h"
#include "ZrTitleLabel.h"
#include "ZrWindowDrag.h"
#include "ZrWindowPlace.h"

#include <QtCore/QDebug>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

namespace {

constexpr int cancelButton = 2;

constexpr int textWidthPx = 400;     // of a box that isn't long
constexpr int lowestTextPx = 100;    // so that a short text doesn't look lost
constexpr int highestTextPx = 200;   // a longer text makes the box wider
constexpr int widestTextPx = 600;    // and then scrolls
constexpr int lineGapPx = 6;         // between lines
constexpr int spareLines = 2;        // words don't fill their lines
constexpr QSize aroundText(40, 100); // shadow, title, margins, buttons

QWidget *ownerFor(QWidget *parent, int positionMode)
{
    return parent || positionMode != ZrWindowPlace::OverMainWindow ? parent
                                                                   : ZrCore::instance()->mainWindow();
}

} // namespace

class ZrMessageBox::Private
{
public:
    explicit Private(ZrMessageBox *box)
        : drag(box)
    {
    }

    QString text; // whole, also when the box can't show all of it
    ZrWindowDrag drag;
    int buttonBits = 0; // 1 confirm, 2 cancel
    int defaultFocusButton = 1;
    bool escEnabled = true;
    int margin = 0; // px
    int radius = 0; // as ZrShadowFrame counts it
    int titleHeight = ZrDialogParts::TitleHeightPx;
    ZrMessageText *messageText = nullptr; // this and the following are the box's children
    ZrDialogParts::Buttons buttons{};
    ZrHelpMark *helpBtn = nullptr;
};

ZrMessageBox::ZrMessageBox(const QString &title, const QString &text, int buttons, QWidget *parent,
                           int positionMode)
    : QDialog(ownerFor(parent, positionMode))
    , d(new Private(this))
{
    d->buttonBits = buttons;
    setObjectName(QStringLiteral("ZrMessageBox"));
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setModal(true);
    createParts(title);
    connectParts();
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/zrmessagebox.css"));
    setMessageText(text);
    ZrWindowPlace::place(this, positionMode);
    focusDefault();
    installEventFilter(this);
}

ZrMessageBox::~ZrMessageBox() = default;

void ZrMessageBox::createParts(const QString &title)
{
    setWindowTitle(ZrPlainText::beginning(title, ZrPlainText::captionBound));
    const ZrShadowFrame *const main = ZrDialogParts::addMainFrame(this, QStringLiteral("verticalLayout_2"));
    d->margin = main->margin();
    d->radius = main->radius();
    auto *const column = static_cast<QBoxLayout *>(main->layout());
    const ZrDialogParts::Title head = ZrDialogParts::addTitle(column, title, {0, {10, 0, 0, 0}});
    d->helpBtn = new ZrHelpMark(head.frame);
    d->helpBtn->setObjectName(QStringLiteral("helpBtn"));
    d->helpBtn->hide();
    head.row->addWidget(d->helpBtn);
    createWork(ZrDialogParts::addWork(column));
    setTabOrder(d->messageText, d->buttons.confirm);
    setTabOrder(d->buttons.confirm, d->buttons.cancel);
    setTabOrder(d->buttons.cancel, d->helpBtn);
}

void ZrMessageBox::createWork(QFrame *work)
{
    // With the title, the shadow and the buttons' height these make up what aroundText adds to a text.
    QVBoxLayout *const outer = ZrDialogParts::column(QStringLiteral("verticalLayout_4"), work);
    outer->setContentsMargins(9, 8, 9, 9);
    QVBoxLayout *const inner = ZrDialogParts::column(QStringLiteral("verticalLayout"));
    inner->setSpacing(6);
    outer->addLayout(inner);
    d->messageText = new ZrMessageText(work);
    d->messageText->setObjectName(QStringLiteral("textEdit_message"));
    d->messageText->setAccessibleName(windowTitle().isEmpty() ? tr("Message") : windowTitle());
    auto *const textRow = new QHBoxLayout;
    textRow->setObjectName(QStringLiteral("horizontalLayout_3"));
    textRow->addWidget(d->messageText);
    inner->addLayout(textRow, 1);
    d->buttons = ZrDialogParts::addButtons(inner, QStringLiteral("pushButton_ok"),
                                           QStringLiteral("pushButton_cancel"), {6, {0, 0, 0, 0}});
    d->buttons.confirm->setText(tr("确认"));
    d->buttons.cancel->setText(tr("取消"));
    ZrDialogParts::showButtons(d->buttons, d->buttonBits);
}

// By hand: the buttons' names and the slots' names don't belong together by the toolkit's rule.
void ZrMessageBox::connectParts()
{
    connect(d->buttons.confirm, &QPushButton::clicked, this, &ZrMessageBox::on_pushButton_clicked);
    connect(d->buttons.cancel, &QPushButton::clicked, this, &ZrMessageBox::on_pushButton_cancel_clicked);
    connect(d->helpBtn, &QPushButton::clicked, this, &ZrMessageBox::signalHelpBtnClicked);
}

void ZrMessageBox::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrMessageBox::setMessageText(const QString &text)
{
    d->text = text;
    d->messageText->setMessage(text);
    resizeMsgBox();
}

void ZrMessageBox::setConfirmText(const QString &text)
{
    ZrDialogParts::setButtonText(d->buttons.confirm, text);
}

void ZrMessageBox::setCancelText(const QString &text)
{
    ZrDialogParts::setButtonText(d->buttons.cancel, text);
}

void ZrMessageBox::setDefaultFocusButton(int button)
{
    d->defaultFocusButton = button;
}

void ZrMessageBox::setEscBtnEnable(bool enable)
{
    d->escEnabled = enable;
}

void ZrMessageBox::setHelpBtnShow(bool show)
{
    d->helpBtn->setVisible(show);
}

int ZrMessageBox::margin() const
{
    return d->margin;
}

int ZrMessageBox::radius() const
{
    return d->radius;
}

int ZrMessageBox::titleheight() const
{
    return d->titleHeight;
}

// The setters take references that they don't write to: plugins are linked against them as they are.
void ZrMessageBox::setMarginPropety(int &marginPx)
{
    d->margin = marginPx;
    ZrDialogParts::setMargin(this, marginPx);
}

void ZrMessageBox::setRadiusPropety(int &radius)
{
    d->radius = radius;
    ZrDialogParts::setRadius(this, radius);
}

void ZrMessageBox::setTitleHeight(int &heightPx)
{
    d->titleHeight = heightPx;
    ZrDialogParts::setTitleHeight(this, heightPx);
}

// Whole numbers throughout: the size is part of what the users are used to.
void ZrMessageBox::resizeMsgBox()
{
    const int wholePx = d->messageText->textWidthPx();
    const int linePx = d->messageText->lineHeightPx() + lineGapPx;
    const int totalPx = (wholePx / textWidthPx + spareLines) * linePx;
    QSize text(textWidthPx, qMax(lowestTextPx, totalPx));
    if (totalPx > highestTextPx) {
        // A font of which not one line fits still needs a width.
        const int linesThatFit = qMax(1, highestTextPx / linePx);
        text = QSize(qMin(widestTextPx, wholePx / linesThatFit), highestTextPx);
    }
    resize(text + aroundText);
    qDebug() << "ZrMessageBox::resizeMsgBox" << linePx << wholePx << text << size();
}

// A box without that button gives the focus to the other one, or the keyboard would be stuck in the text.
void ZrMessageBox::focusDefault()
{
    QPushButton *const named = d->defaultFocusButton == cancelButton ? d->buttons.cancel : d->buttons.confirm;
    QPushButton *const other = named == d->buttons.cancel ? d->buttons.confirm : d->buttons.cancel;
    for (QPushButton *const button : {named, other}) {
        if (ZrDialogKeys::focusButton(this, button->objectName())) {
            button->setDefault(true); // what return means while the text has the focus
            return;
        }
    }
}

bool ZrMessageBox::eventFilter(QObject *watched, QEvent *event)
{
    switch (ZrDialogKeys::escapeOf(*event, d->escEnabled)) {
    case ZrDialogKeys::Escape::None:
        break;
    case ZrDialogKeys::Escape::Closes:
        done(0);
        return true; // the base would end the box a second time
    case ZrDialogKeys::Escape::Swallowed:
        return true;
    }
    // As part of another window a box is a picture of itself and leaves the focus where it is.
    if (event->type() == QEvent::Show && isWindow())
        focusDefault();
    return QDialog::eventFilter(watched, event);
}

void ZrMessageBox::showEvent(QShowEvent *event)
{
    raise();
    QDialog::showEvent(event);
}

void ZrMessageBox::mousePressEvent(QMouseEvent *event)
{
    if (!d->drag.press(event, ZrWindowDrag::topStrip(*this, ZrDialogParts::TitleHeightPx)))
        QDialog::mousePressEvent(event);
}

void ZrMessageBox::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->drag.move(event))
        QDialog::mouseMoveEvent(event);
}

void ZrMessageBox::mouseReleaseEvent(QMouseEvent *event)
{
    d->drag.release();
    QDialog::mouseReleaseEvent(event);
}

void ZrMessageBox::on_pushButton_clicked()
{
    done(1);
}

void ZrMessageBox::on_pushButton_cancel_clicked()
{
    done(0);
}
