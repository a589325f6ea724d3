#include "ZrToastDialog.h"

#include "zrdefine/Constants.h"
#include "ZrPlainText.h"
#include "ZrSkinSheet.h"

#include <QtCore/QDebug>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace {
constexpr QSize smallestPx(300, 40);
constexpr int widestPx = 480; // then the text wraps
constexpr QSize iconPx(14, 14);
} // namespace

class ZrToastDialog::Private
{
public:
    int durationMs = 3000;
    int msgLevel = -1;
    QLabel *errorIcon = nullptr; // the toast's children
    QLabel *textLabel = nullptr;
    std::unique_ptr<ZrSkinSheet> sheet; // of the level
};

ZrToastDialog::ZrToastDialog(QWidget *parent)
    : QDialog(parent)
    , d(new Private)
{
    setObjectName(QStringLiteral("ZrToastDialog"));
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);
    // A notice must not catch the keys of an order that is being typed.
    setAttribute(Qt::WA_ShowWithoutActivating);
    createParts();
    setMinimumSize(smallestPx);
}

ZrToastDialog::~ZrToastDialog() = default;

void ZrToastDialog::createParts()
{
    auto *const frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("mainFrame"));
    auto *const outer = new QHBoxLayout(this);
    outer->setSpacing(0);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);
    d->errorIcon = new QLabel(frame);
    d->errorIcon->setObjectName(QStringLiteral("errorIcon"));
    d->errorIcon->setFixedSize(iconPx);
    d->textLabel = new QLabel(frame);
    d->textLabel->setObjectName(QStringLiteral("textLabel"));
    ZrPlainText::setText(d->textLabel, QString());
    auto *const inner = new QHBoxLayout(frame);
    inner->setSpacing(10);
    inner->setContentsMargins(12, 3, 12, 3);
    inner->addWidget(d->errorIcon);
    inner->addWidget(d->textLabel, 1);
}

void ZrToastDialog::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrToastDialog::SetDuration(int ms)
{
    d->durationMs = ms;
}

int ZrToastDialog::msgLevel() const
{
    return d->msgLevel;
}

void ZrToastDialog::setMsgLevel(int level)
{
    if (level == d->msgLevel)
        return;
    d->msgLevel = level;
    d->errorIcon->setAccessibleName(level == LevelTip ? tr("Notice") : tr("Error"));
    const QString file = level == LevelTip ? QStringLiteral("zrwidget/ZrToastDialogTip.css")
                                           : QStringLiteral("zrwidget/ZrToastDialog.css");
    d->sheet.reset(); // first, so that the sheet of the level before is loaded no more
    d->sheet = std::make_unique<ZrSkinSheet>(this, Constants::SKIN_SYSTEM + file);
    style()->unpolish(this);
    style()->polish(this);
}

void ZrToastDialog::ShowToastMessage(const QString &text, int level)
{
    setMsgLevel(level);
    ZrPlainText::setText(d->textLabel, text);
    setWindowTitle(d->errorIcon->accessibleName());
    setAccessibleDescription(d->textLabel->text());
    qInfo() << "ZrToastDialog::ShowToastMessage" << level << text;
    fitText();
    centreOverParent();
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    QTimer::singleShot(qMax(0, d->durationMs), this, &QWidget::close);
}

// As wide as the text needs without wrapping, within bounds, and as high as it then needs.
void ZrToastDialog::fitText()
{
    ensurePolished();
    d->textLabel->ensurePolished();
    d->textLabel->setWordWrap(false);
    const int unwrappedPx = freshLayout()->totalSizeHint().width();
    d->textLabel->setWordWrap(true);
    const int widthPx = qBound(smallestPx.width(), unwrappedPx, widestPx);
    resize(widthPx, qMax(smallestPx.height(), freshLayout()->totalHeightForWidth(widthPx)));
}

// A layout and the frame in it remember the text before.
QLayout *ZrToastDialog::freshLayout()
{
    QWidget *const frame = d->textLabel->parentWidget();
    frame->layout()->invalidate();
    frame->updateGeometry();
    layout()->invalidate();
    return layout();
}

void ZrToastDialog::centreOverParent()
{
    const QWidget *const parent = parentWidget();
    if (!parent)
        return;
    QRect place = rect();
    place.moveCenter(parent->mapToGlobal(parent->rect().center()));
    move(place.topLeft());
}
