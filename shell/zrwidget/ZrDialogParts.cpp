#include "ZrDialogParts.h"

#include "ZrPlainText.h"
#include "ZrShadowFrame.h"
#include "ZrTitleLabel.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

namespace {

constexpr int titleEndPx = 10; // between a long title and the window's edge or a mark
constexpr int unboundedPx = 0xffffff;
constexpr int widestButtonTextPx = 140; // two such buttons fit into the narrowest dialog

QHBoxLayout *makeRow(const QString &name, const ZrDialogParts::Row &space, QWidget *on = nullptr)
{
    auto *const row = new QHBoxLayout(on);
    row->setObjectName(name);
    row->setSpacing(space.spacingPx);
    row->setContentsMargins(space.margins);
    return row;
}

QString buttonRow()
{
    return QStringLiteral("horizontalLayout_2");
}

ZrDialogParts::Buttons fillButtons(QHBoxLayout *row, QWidget *owner, const QString &confirmName,
                                   const QString &cancelName)
{
    auto *const confirm = new QPushButton(owner);
    confirm->setObjectName(confirmName);
    auto *const cancel = new QPushButton(owner);
    cancel->setObjectName(cancelName);
    row->addSpacerItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addWidget(confirm);
    row->addWidget(cancel);
    return {row, confirm, cancel};
}

QMargins evenMargins(int px)
{
    return {px, px, px, px};
}

} // namespace

QVBoxLayout *ZrDialogParts::column(const QString &name, QWidget *on)
{
    auto *const column = new QVBoxLayout(on);
    column->setObjectName(name);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    return column;
}

ZrShadowFrame *ZrDialogParts::addMainFrame(QWidget *window, const QString &layoutName)
{
    auto *const frame = new ZrShadowFrame(window);
    frame->setObjectName(QStringLiteral("frame_main"));
    column(layoutName, window)->addWidget(frame);
    column(QStringLiteral("verticalLayout_3"), frame)->setContentsMargins(evenMargins(frame->margin()));
    return frame;
}

QFrame *ZrDialogParts::addPlainFrame(QWidget *window, const QString &layoutName)
{
    auto *const frame = new QFrame(window);
    frame->setObjectName(QStringLiteral("frame_main"));
    column(layoutName, window)->addWidget(frame);
    column(QStringLiteral("verticalLayout_3"), frame);
    return frame;
}

ZrDialogParts::Title ZrDialogParts::addTitle(QBoxLayout *below, const QString &text, const Row &space)
{
    auto *const frame = new QFrame(below->parentWidget());
    frame->setObjectName(QStringLiteral("frame_title"));
    frame->setMinimumSize(0, TitleHeightPx);
    frame->setMaximumSize(unboundedPx, TitleHeightPx);
    auto *const label = new ZrTitleLabel(frame);
    label->setObjectName(QStringLiteral("label_title"));
    label->setTitle(text);
    label->setContentsMargins(0, 0, titleEndPx, 0);
    QHBoxLayout *const row = makeRow(QStringLiteral("horizontalLayout"), space, frame);
    row->addWidget(label, 1);
    below->addWidget(frame);
    return {frame, row, label};
}

void ZrDialogParts::addTitleSpace(const Title &title)
{
    title.row->addSpacerItem(new QSpacerItem(737, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    // With the stretch the space yields first: two parts without one share a shortage, and the text would be
    // cut beside free room.
    title.row->setStretch(title.row->indexOf(title.label), 0);
    title.row->setStretch(title.row->count() - 1, 1);
}

QPushButton *ZrDialogParts::addTitleButton(const Title &title, const QString &objectName, const QString &name)
{
    auto *const button = new QPushButton(title.frame);
    button->setObjectName(objectName);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setFocusPolicy(Qt::NoFocus);
    // Return would otherwise press the first button of the window, which is one of these.
    button->setAutoDefault(false);
    title.row->addWidget(button);
    return button;
}

QFrame *ZrDialogParts::addWork(QBoxLayout *below)
{
    auto *const frame = new QFrame(below->parentWidget());
    frame->setObjectName(QStringLiteral("frame_work"));
    below->addWidget(frame, 1);
    return frame;
}

ZrDialogParts::Buttons ZrDialogParts::addButtons(QBoxLayout *below, const QString &confirmName,
                                                 const QString &cancelName, const Row &space)
{
    QHBoxLayout *const row = makeRow(buttonRow(), space);
    below->addLayout(row);
    return fillButtons(row, below->parentWidget(), confirmName, cancelName);
}

ZrDialogParts::Buttons ZrDialogParts::addButtons(QWidget *on, const QString &confirmName,
                                                 const QString &cancelName, const Row &space)
{
    return fillButtons(makeRow(buttonRow(), space, on), on, confirmName, cancelName);
}

void ZrDialogParts::setButtonText(QPushButton *button, const QString &text)
{
    // For the style sheet's font; the window first, or it wouldn't tell the button of the next sheet.
    button->window()->ensurePolished();
    button->ensurePolished();
    const QString line = ZrPlainText::beginning(text, ZrPlainText::captionBound);
    const QString shown = button->fontMetrics().elidedText(line, Qt::ElideRight, widestButtonTextPx);
    button->setText(ZrPlainText::caption(shown));
    ZrPlainText::setToolTip(button, shown == text ? QString() : text);
    button->setAccessibleName(shown == text ? QString() : line);
}

void ZrDialogParts::showButtons(const Buttons &buttons, int bits)
{
    buttons.confirm->setVisible(bits & 1);
    buttons.cancel->setVisible(bits & 2);
}

void ZrDialogParts::setMargin(QWidget *window, int marginPx)
{
    auto *const frame = window->findChild<ZrShadowFrame *>(QStringLiteral("frame_main"));
    if (!frame)
        return;
    frame->setMargin(marginPx);
    // One more, so that the content leaves the innermost ring free, which is the window's edge.
    frame->layout()->setContentsMargins(evenMargins(marginPx + 1));
}

void ZrDialogParts::setRadius(QWidget *window, int radius)
{
    if (auto *const frame = window->findChild<ZrShadowFrame *>(QStringLiteral("frame_main")))
        frame->setRadius(radius);
}

void ZrDialogParts::setTitleHeight(QWidget *window, int heightPx)
{
    if (auto *const frame = window->findChild<QFrame *>(QStringLiteral("frame_title")))
        frame->setFixedHeight(heightPx);
}
