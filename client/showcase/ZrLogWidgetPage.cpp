#include "ZrLogWidget.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr QSize WidgetSize(336, 168);
constexpr int ManyLines = 40;

ZrLogWidget *atRest()
{
    auto *const widget = new ZrLogWidget;
    widget->setFixedSize(WidgetSize);
    return widget;
}

ZrLogWidget *withLog(const QStringList &lines)
{
    ZrLogWidget *const widget = atRest();
    for (const QString &line : lines)
        widget->appendLog(line);
    widget->showLog(true);
    return widget;
}

ZrLogWidget *usual()
{
    return withLog({ZrShowcase::tr("09:15:00 Connecting to the data service"),
                    ZrShowcase::tr("09:15:01 Securities are loaded"),
                    ZrShowcase::tr("09:15:02 Accounts are loaded")});
}

ZrLogWidget *disabled()
{
    ZrLogWidget *const widget = usual();
    widget->setEnabled(false);
    return widget;
}

ZrLogWidget *withManyLines()
{
    QStringList lines;
    for (int i = 1; i <= ManyLines; ++i)
        lines.append(ZrShowcase::tr("Line %1").arg(i));
    return withLog(lines);
}

/// Moves while its button is down.
QWidget *live()
{
    auto *const sample = new QWidget;
    ZrLogWidget *const widget = atRest();
    auto *const button = new QPushButton(ZrShowcase::tr("Move"));
    button->setCheckable(true);
    auto *const layout = new QVBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    layout->addWidget(button, 0, Qt::AlignLeft);
    QObject::connect(button, &QPushButton::toggled, widget, [widget](bool down) {
        if (down)
            widget->startLogger();
        else
            widget->stopLogger();
    });
    return sample;
}
} // namespace

ZrShowcasePage *zrMakeLogWidgetPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("log-widget"), QStringLiteral("ZrLogWidget"),
        ZrShowcase::tr(
            "A moving picture for a time of waiting, with a log over it for who wants to know more."),
        parent);
    page->beginRow(ZrShowcase::tr("Picture"));
    page->addSample(ZrShowcase::tr("At rest"), atRest());
    page->addSample(ZrShowcase::tr("Try it"), live());
    page->beginRow(ZrShowcase::tr("Log"));
    page->addSample(ZrShowcase::tr("Read-only log"), usual());
    page->addPicture(
        ZrShowcase::tr("Focus"), [] { return usual(); }, ZrShowcasePage::State::Focus);
    page->addPicture(
        ZrShowcase::tr("Hover"), [] { return usual(); }, ZrShowcasePage::State::Hover);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), withLog({}));
    page->addSample(ZrShowcase::tr("Chinese"), withLog({QStringLiteral("09:15:00 正在连接数据服务"),
                                                        QStringLiteral("09:15:01 证券信息已加载")}));
    page->addSample(ZrShowcase::tr("Error"),
                    withLog({ZrShowcase::tr("09:15:03 Error: the data service does not answer")}));
    page->addSample(ZrShowcase::tr("Many lines"), withManyLines());
    page->addSample(ZrShowcase::tr("Long text"), withLog({QString(300, QLatin1Char('W'))}));
    return page;
}
