#include "FilterScene.h"
#include "FreezeTableView.h"
#include "ZrHeaderView_p.h"
#include "ZrPluginBaseWidget.h"
#include "ZrQuietPlatform.h"
#include "ZrTableView_p.h"
#include "ZrTestMain.h"

#include <QtCore/QLoggingCategory>
#include <QtWidgets/QLineEdit>

#include <functional>

namespace {
constexpr int Rounds = 10000;

class Plugin : public ZrPluginBaseWidget
{
public:
    using ZrPluginBaseWidget::ZrPluginBaseWidget;
    void initPlugin() override {}
};

using Hook = std::function<void(FilterScene *, const std::function<void()> &)>;
} // namespace

Q_DECLARE_METATYPE(Hook)

/// Grids, plugins and heads that go while the popup of a filter button is open, or from what it tells.
class tst_ZrFilterLifetime : public QObject
{
    Q_OBJECT
private slots:
    void gridGoesWhileThePopupIsOpen();
    void mainWindowGoesWhileThePopupIsOpen();
    void pluginGoesWhileThePopupIsOpen();
    void gridGoesFromASlotOfItsFilter_data();
    void gridGoesFromASlotOfItsFilter();
    void pluginGoesFromASlotOfItsFilter();
    void sideTableGoesFromASlotOfItsFilter();
    void headIsReplacedFromASlotOfItsFilter();
    void popupGoesFromASlotOfTheFilter();
    void tenThousandTimes();

private:
    static void endBy(const Hook &hook, FilterScene *scene, const std::function<void()> &end);
};

void tst_ZrFilterLifetime::gridGoesWhileThePopupIsOpen()
{
    FilterScene s;
    s.press(FilterScene::Text);
    const QPointer<ZrDialog> popup = s.popup();
    const QPointer<ZrViewFilterWidget> panel = s.panel();
    delete s.grid;
    QVERIFY(!popup);
    QVERIFY(!panel);
    // The press that would have closed the popup.
    QTest::mouseClick(&s.desk.mainWindow, Qt::LeftButton);
}

void tst_ZrFilterLifetime::mainWindowGoesWhileThePopupIsOpen()
{
    auto *const window = new QWidget;
    FilterScene s(9, window);
    window->show();
    s.press(FilterScene::Text);
    const QPointer<ZrDialog> popup = s.popup();
    QVERIFY(popup->isVisible());
    delete window;
    QVERIFY(!s.grid);
    QVERIFY(!popup);
}

void tst_ZrFilterLifetime::pluginGoesWhileThePopupIsOpen()
{
    const std::unique_ptr<QWidget> place = std::make_unique<QWidget>();
    auto *const plugin = new Plugin(place.get());
    FilterScene s(9, plugin);
    place->show();
    s.press(FilterScene::Text);
    const QPointer<ZrDialog> popup = s.popup();
    QVERIFY(popup->isVisible());
    delete plugin;
    QVERIFY(!s.grid);
    QVERIFY(!popup);
}

void tst_ZrFilterLifetime::gridGoesFromASlotOfItsFilter_data()
{
    QTest::addColumn<Hook>("hook");
    QTest::newRow("a column's filter") << Hook([](FilterScene *s, const std::function<void()> &end) {
        connect(s->head(), &ZrHeaderView::signalFilterChanged, end);
    });
    QTest::newRow("the head's filters") << Hook([](FilterScene *s, const std::function<void()> &end) {
        connect(s->head(), &ZrHeaderView::signalFilterListChanged, end);
    });
    QTest::newRow("the view's filters") << Hook([](FilterScene *s, const std::function<void()> &end) {
        connect(s->grid.data(), &ZrTableView::signalFilterListChanged, end);
    });
}

// As the user does it: the toolkit's and the list's own code stand below the slot and go on after it.
void tst_ZrFilterLifetime::endBy(const Hook &hook, FilterScene *scene, const std::function<void()> &end)
{
    const QPointer<ZrDialog> popup = scene->popup();
    hook(scene, end);
    scene->clickBox(1);
    QVERIFY(!scene->grid);
    QVERIFY(!popup || popup->isHidden());
    QTRY_VERIFY(!popup);
}

void tst_ZrFilterLifetime::gridGoesFromASlotOfItsFilter()
{
    QFETCH(Hook, hook);
    FilterScene s;
    s.press(FilterScene::Text);
    endBy(hook, &s, [&s] { delete s.grid; });
    FilterScene byText;
    byText.press(FilterScene::Text);
    hook(&byText, [&byText] { delete byText.grid; });
    const QPointer<ZrDialog> popup = byText.popup();
    byText.clickText(1);
    QVERIFY(!byText.grid);
    QTRY_VERIFY(!popup);
}

void tst_ZrFilterLifetime::pluginGoesFromASlotOfItsFilter()
{
    const std::unique_ptr<QWidget> place = std::make_unique<QWidget>();
    auto *const plugin = new Plugin(place.get());
    FilterScene s(9, plugin);
    place->show();
    s.press(FilterScene::Text);
    endBy(
        [](FilterScene *scene, const std::function<void()> &end) {
            connect(scene->grid.data(), &ZrTableView::signalFilterListChanged, end);
        },
        &s, [plugin] { delete plugin; });
}

void tst_ZrFilterLifetime::sideTableGoesFromASlotOfItsFilter()
{
    FilterScene s;
    s.grid->setFrozenColumns(1, true, 1);
    QCoreApplication::processEvents();
    auto *const left =
        qobject_cast<ZrHeaderView *>(s.grid->getTableView()->frozenTable(1)->horizontalHeader());
    s.press(FilterScene::Key, left);
    connect(left, &ZrHeaderView::signalFilterChanged, s.grid.data(),
            [&s] { s.grid->setFrozenColumns(1, false, 0); });
    s.clickBox(1);
    QCOMPARE(s.shown(), QStringList({"k0"}));
    QTRY_VERIFY(!s.popup());
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
}

void tst_ZrFilterLifetime::headIsReplacedFromASlotOfItsFilter()
{
    FilterScene s;
    s.press(FilterScene::Text);
    connect(s.head(), &ZrHeaderView::signalFilterChanged, s.grid.data(),
            [&s] { s.grid->setZrTableHorizontalHeader(new ZrHeaderView(Qt::Horizontal)); });
    const QPointer<ZrDialog> popup = s.popup();
    s.clickBox(1);
    QTRY_VERIFY(!popup);
    QCOMPARE(s.shown().size(), 3);
}

void tst_ZrFilterLifetime::popupGoesFromASlotOfTheFilter()
{
    FilterScene s;
    s.press(FilterScene::Text);
    connect(s.grid.data(), &ZrTableView::signalFilterListChanged, s.popup(), &QObject::deleteLater);
    const QPointer<ZrDialog> popup = s.popup();
    s.clickBox(1);
    QTRY_VERIFY(!popup);
    s.press(FilterScene::Text);
    QVERIFY(s.isOpen());
    QCOMPARE(s.listed(), QStringList({"Select all", "*a", "b", "c"}));
}

// Without skins, whose sheets would take most of the time, and without the lines that each part writes.
void tst_ZrFilterLifetime::tenThousandTimes()
{
    ZrQuietPlatform::install();
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QWidget window;
    HeadList heads{{{QStringLiteral("Head_DisplayRole"), QStringLiteral("C0")}}};
    int ended = 0;
    for (int round = 0; round < Rounds; ++round) {
        QPointer<ZrTableView> grid = new ZrTableView(&window);
        grid->setHeadList(heads);
        grid->setKeyColumn({0});
        grid->setViewFilterable(true);
        grid->addRecordData({{0, FilterScene::cell(QStringLiteral("k0"))}});
        ZrHeaderView *const head = grid->getZrTableHorizontalHeader();
        grid->getPrivate()->openFilter(head, 0, QRect(0, 0, 16, 16));
        const QPointer<ZrDialog> popup = head->getPrivate()->filterDialog;
        QVERIFY(popup);
        // In turn from outside, and from a slot of a tick.
        if (round % 2 == 0) {
            delete grid;
        } else {
            connect(grid.data(), &ZrTableView::signalFilterListChanged, [&grid] { delete grid; });
            head->getPrivate()->filterWidget->slotSignalRowCheckStateChanged(1, 1);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        // Each widget that goes looks through all events that are still to come.
        QCoreApplication::processEvents();
        ended += !grid && !popup ? 1 : 0;
    }
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(ended, Rounds);
}

ZR_TEST_MAIN(tst_ZrFilterLifetime)
#include "tst_zrfilterlifetime.moc"
