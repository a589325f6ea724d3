#include "ZrShadowFrame.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr QSize FrameSize(160, 96);
constexpr int InnerPx = 8;

ZrShadowFrame *withMargin(int marginPx, const QString &content)
{
    auto *const frame = new ZrShadowFrame;
    frame->setMargin(marginPx);
    frame->setFixedSize(FrameSize);
    frame->setFocusPolicy(Qt::StrongFocus);
    auto *const label = new QLabel(content);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    auto *const layout = new QVBoxLayout(frame);
    const int inset = marginPx + InnerPx;
    layout->setContentsMargins(inset, inset, inset, inset);
    layout->addWidget(label);
    return frame;
}

ZrShadowFrame *plain()
{
    return withMargin(10, ZrShowcase::tr("Send the order?"));
}

ZrShadowFrame *withRadius(int radius)
{
    ZrShadowFrame *const frame = plain();
    frame->setRadius(radius);
    return frame;
}

ZrShadowFrame *selected()
{
    ZrShadowFrame *const frame = plain();
    frame->setSelected(true);
    return frame;
}

ZrShadowFrame *disabled()
{
    ZrShadowFrame *const frame = plain();
    frame->setEnabled(false);
    return frame;
}
} // namespace

ZrShowcasePage *zrMakeShadowFramePage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("shadow-frame"), QStringLiteral("ZrShadowFrame"),
        ZrShowcase::tr("The body of a frameless window: it paints the ground, the border and a soft edge."),
        parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), plain());
    page->addPicture(
        ZrShowcase::tr("Focus"), [] { return plain(); }, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Selected"), selected());
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), withMargin(10, QString()));
    page->beginRow(ZrShowcase::tr("Contents"));
    page->addSample(ZrShowcase::tr("Chinese"), withMargin(10, QStringLiteral("确认发送委托？")));
    page->addSample(ZrShowcase::tr("English"), withMargin(10, QStringLiteral("Confirm the order?")));
    page->addSample(
        ZrShowcase::tr("Long text"),
        withMargin(10, ZrShowcase::tr("The exchange has refused the order: price outside the limits.")));
    page->beginRow(ZrShowcase::tr("Margin"));
    for (const int marginPx : {1, 4, 10, 16})
        page->addSample(ZrShowcase::tr("%1 px").arg(marginPx),
                        withMargin(marginPx, ZrShowcase::tr("Send the order?")));
    page->beginRow(ZrShowcase::tr("Radius"));
    for (const int radius : {0, 6, 20, 50})
        page->addSample(QString::number(radius), withRadius(radius));
    return page;
}
