#include "ZrSearchBox.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QLabel>

#include <memory>

namespace {
constexpr int RowsInSight = 6;
constexpr int ListWidthPx = 300; // as the box opens it
constexpr int EdgesPx = 6;       // border and padding above and below the rows

/// Knows the host's securities from the first key on.
ZrSearchBox *make(const QString &symbol = QString())
{
    auto *const box = new ZrSearchBox;
    box->setErrorCodeMsgBoxOn(false);
    box->setSymbol(symbol);
    return box;
}

ZrSearchBox *typed(const QString &text)
{
    ZrSearchBox *const box = make();
    // There is nothing to list yet, so that no list opens.
    box->setText(text);
    return box;
}

ZrSearchBox *disabled()
{
    ZrSearchBox *const box = make(QStringLiteral("600519.SH"));
    box->setEnabled(false);
    return box;
}

ZrSearchBox *readOnly()
{
    ZrSearchBox *const box = make(QStringLiteral("600519.SH"));
    box->setReadOnly(true);
    return box;
}

ZrSearchBox *anywhere()
{
    ZrSearchBox *const box = make();
    box->setSearchMode(2);
    return box;
}

QString row(const QString &symbol, const QString &name)
{
    return symbol + Constants::SymbolSearch_Split + name;
}

QStringList chinese()
{
    return {row(QStringLiteral("600000.SH"), QStringLiteral("昀朔农业")),
            row(QStringLiteral("600001.SH"), QStringLiteral("珩鹭传媒")),
            row(QStringLiteral("600002.SH"), QStringLiteral("瑾潼新材")),
            row(QStringLiteral("600003.SH"), QStringLiteral("谧苒科技"))};
}

QStringList ofTwoMarkets()
{
    return {row(QStringLiteral("000001.SH"), QStringLiteral("Composite <index>")),
            row(QStringLiteral("000001.SZ"), QStringLiteral("Trust & Savings"))};
}

QStringList many()
{
    QStringList rows;
    for (int code = 0; code < 100; ++code)
        rows.append(row(QStringLiteral("6%1.SH").arg(code, 5, 10, QLatin1Char('0')),
                        QStringLiteral("Company with a name that no list has the room for %1").arg(code)));
    return rows;
}

/// What a text opens, as a picture: a popup can't stay open on a page.
QWidget *listOf(const QStringList &rows, int current)
{
    const std::unique_ptr<ZrSearchBox> box(make());
    box->setSecurityList(rows);
    QAbstractItemView *const list = box->findChild<QCompleter *>()->popup();
    const QModelIndex first = list->model()->index(0, 0);
    list->setCurrentIndex(list->model()->index(current, 0));
    list->ensurePolished();
    list->resize(ListWidthPx,
                 qMin(RowsInSight, rows.size()) * list->sizeHintForIndex(first).height() + EdgesPx);
    auto *const picture = new QLabel;
    picture->setPixmap(list->grab());
    return picture;
}

void addStates(ZrShowcasePage *page)
{
    const auto normal = []() -> QWidget * { return make(); };
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Empty"), normal());
    page->addPicture(ZrShowcase::tr("Hover"), normal, ZrShowcasePage::State::Hover);
    page->addPicture(ZrShowcase::tr("Focus"), normal, ZrShowcasePage::State::Focus);
    page->addSample(ZrShowcase::tr("Half typed"), typed(QStringLiteral("6005")));
    page->addSample(ZrShowcase::tr("Picked"), make(QStringLiteral("600519.SH")));
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->addSample(ZrShowcase::tr("Read-only"), readOnly());
    page->addSample(ZrShowcase::tr("Finds in the middle too"), anywhere());
}

void addLists(ZrShowcasePage *page)
{
    const auto add = [page](const QString &caption, const ZrShowcasePage::Maker &maker) {
        page->addPicture(caption, maker, ZrShowcasePage::State::Hover);
    };
    page->beginRow(ZrShowcase::tr("Open list"));
    add(ZrShowcase::tr("Chinese"), [] { return listOf(chinese(), 1); });
    add(ZrShowcase::tr("A code of two markets"), [] { return listOf(ofTwoMarkets(), 0); });
    add(ZrShowcase::tr("Many rows"), [] { return listOf(many(), 0); });
}
} // namespace

ZrShowcasePage *zrMakeSearchBoxPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("search-box"), QStringLiteral("ZrSearchBox"),
        ZrShowcase::tr("Finds a security by a few letters or digits of its code or search key."), parent);
    addStates(page);
    addLists(page);
    return page;
}
