#include "ZrMultiComboBox.h"
#include "ZrShowcase.h"
#include "ZrShowcaseGrid.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>

#include <memory>

namespace {
constexpr int RowsInSight = 6;
constexpr int ListWidthPx = ZrShowcaseGrid::LeastPx;
constexpr int EdgesPx = 6; // border and padding above and below the rows

ZrMultiComboBox *make(const QStringList &texts, const QList<int> &ticked)
{
    auto *const combo = new ZrMultiComboBox;
    combo->setFixedWidth(ZrShowcaseGrid::LeastPx);
    combo->addItems(texts);
    for (const int row : ticked)
        combo->selectIndex(row, true);
    return combo;
}

QStringList chinese()
{
    return {QStringLiteral("稳健一号"), QStringLiteral("稳健二号"), QStringLiteral("成长精选"),
            QStringLiteral("量化对冲"), QStringLiteral("货币增利"), QStringLiteral("债券优选")};
}

QStringList english()
{
    return {QStringLiteral("Balanced I"),       QStringLiteral("Balanced II"),  QStringLiteral("Growth"),
            QStringLiteral("Research & Hedge"), QStringLiteral("Money market"), QStringLiteral("Bonds")};
}

QStringList longOnes()
{
    return {QStringLiteral("Emerging markets infrastructure and energy, class B"),
            QStringLiteral("中小企业板指数增强型证券投资基金联接账户"), QStringLiteral("Growth")};
}

QStringList many()
{
    QStringList texts;
    for (int number = 1; number <= 200; ++number)
        texts.append(QStringLiteral("A%1").arg(number, 6, 10, QLatin1Char('0')));
    return texts;
}

ZrMultiComboBox *disabled()
{
    ZrMultiComboBox *const combo = make(chinese(), {0, 2});
    combo->setEnabled(false);
    return combo;
}

ZrMultiComboBox *withTextForNothing()
{
    ZrMultiComboBox *const combo = make(chinese(), {});
    combo->setNoSelectedText(ZrShowcase::tr("All portfolios"));
    return combo;
}

void disableRow(const ZrMultiComboBox *combo, int row)
{
    auto *const list = static_cast<QListWidget *>(combo->view());
    list->itemWidget(list->item(row))->setEnabled(false);
}

/// What a click on the box opens, as a picture: a popup can't stay open on a page. Ends the box.
QWidget *listOf(ZrMultiComboBox *combo, int current)
{
    const std::unique_ptr<ZrMultiComboBox> owner(combo);
    QAbstractItemView *const list = combo->view();
    list->setCurrentIndex(list->model()->index(current, 0));
    list->ensurePolished();
    list->setFixedSize(ListWidthPx, qMin(RowsInSight, combo->count()) *
                                            list->sizeHintForIndex(list->model()->index(0, 0)).height() +
                                        EdgesPx);
    auto *const picture = new QLabel;
    picture->setPixmap(list->grab());
    return picture;
}

void addField(ZrShowcasePage *page)
{
    const auto normal = []() -> QWidget * { return make(chinese(), {0, 2}); };
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Normal"), normal());
    page->addPicture(ZrShowcase::tr("Hover"), normal, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), normal, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Empty"), make(chinese(), {}));
    page->addSample(ZrShowcase::tr("A text for nothing ticked"), withTextForNothing());
}

void addTexts(ZrShowcasePage *page)
{
    page->beginRow(ZrShowcase::tr("Texts"));
    page->addSample(ZrShowcase::tr("Chinese"), make(chinese(), {1}));
    page->addSample(ZrShowcase::tr("English"), make(english(), {3}));
    page->addSample(ZrShowcase::tr("Long text"), make(longOnes(), {0, 1}));
    page->addSample(ZrShowcase::tr("Many rows"), make(many(), {0, 41, 150}));
}

void addLists(ZrShowcasePage *page)
{
    const auto add = [page](const QString &caption, const ZrShowcasePage::Maker &maker) {
        page->addPicture(caption, maker, ZrShowcasePage::State::Hover);
    };
    page->beginRow(ZrShowcase::tr("Open list"));
    add(ZrShowcase::tr("Some ticked"), [] { return listOf(make(chinese(), {0, 2}), 2); });
    add(ZrShowcase::tr("English"), [] { return listOf(make(english(), {3}), 0); });
    add(ZrShowcase::tr("Some ticked, two disabled"), [] {
        ZrMultiComboBox *const combo = make(chinese(), {0, 2});
        disableRow(combo, 2);
        disableRow(combo, 3);
        return listOf(combo, 1);
    });
    add(ZrShowcase::tr("Long text"), [] { return listOf(make(longOnes(), {0}), 1); });
    add(ZrShowcase::tr("Many rows"), [] { return listOf(make(many(), {1}), 0); });
}
} // namespace

ZrShowcasePage *zrMakeMultiComboPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("multi-combo"), QStringLiteral("ZrMultiComboBox"),
        ZrShowcase::tr("A field for many choices: its list has a check box in each row, and the closed field "
                       "shows what is ticked."),
        parent);
    addField(page);
    addTexts(page);
    addLists(page);
    return page;
}
