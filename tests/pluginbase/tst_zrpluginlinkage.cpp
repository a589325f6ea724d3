#include "FrameScene.h"
#include "PluginKit.h"
#include "zrdefine/Constants.h"
#include "ZrLinkageCombox.h"
#include "ZrPluginLinkage.h"
#include "ZrPluginPresenter.h"
#include "ZrTestMain.h"

namespace {
constexpr int symbols = 1;
constexpr int accounts = 2;
const QString pid = QStringLiteral("menu#plugin#_1");
using Groups = QList<int>;
} // namespace

/// The linkage by itself; its combo box is connected as the plugin's private object does it.
class TestZrPluginLinkage : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void withoutPresenterNothingHappens();
    void theComboHoldsTheColours();
    void itsLabelIsThatOfTheFirstType();
    void aGroupIsJoined_data();
    void aGroupIsJoined();
    void withoutEnableTheComboIsHiddenAndThePluginLinked();
    void withoutEnableAndGroupNothingIsLinked();
    void aSecondCallOfATypeDoesNothing();
    void aSecondTypeReusesTheComboAndTakesTheGroup();
    void anUnknownGroupCountsAsNone();
    void theMenuIsThatOfThePresenter();
    void unsubscribeLeavesOneType();
    void unsubscribeOfZeroLeavesAll();
    void unsubscribeOfAnUnknownTypeDoesNothing();
    void unsubscribeWhileUnlinkedTellsNobody();
    void stateWithoutComboDoesNothing();
    void stateShowsAndChangesTheGroup();
    void hiddenStateKeepsThePluginLinked();
    void stateOfNoGroupLooksUnlinkedAndStaysLinked();
    void otherNegativeStatesOnlyShow();
    void theUsersChoiceLinksAllTypes();
    void noChoiceChangesNothing();
    void aDeadComboIsMadeAnewForTheNextType();
    void aClosedComboIsForgotten();
    void aTitleThatRefusesTheComboLeavesTheRest();
    void aPresenterThatGoesLeavesTheGroup();

private:
    void take(ZrLinkageCombox *combo);

    FrameScene scene;
    std::unique_ptr<QWidget> plugin;
    std::unique_ptr<ZrPluginPresenter> seat;
    std::unique_ptr<ZrPluginLinkage> linkage;
    std::unique_ptr<LinkWitness> witness;
    PresenterProbe *presenter = nullptr;
};

void TestZrPluginLinkage::init()
{
    QVERIFY(scene.startOwn(QString()));
    scene.host.setDictionary(Constants::LinkageType, {{QStringLiteral("1"), QStringLiteral("Security")},
                                                      {QStringLiteral("2"), QStringLiteral("Account")}});
    plugin = std::make_unique<QWidget>();
    seat = std::make_unique<ZrPluginPresenter>();
    linkage = std::make_unique<ZrPluginLinkage>(plugin.get(), seat.get());
    connect(linkage.get(), &ZrPluginLinkage::comboMade, this, &TestZrPluginLinkage::take);
    witness = std::make_unique<LinkWitness>();
    presenter = new PresenterProbe(pid, IMessageInterface::SharedThread);
    seat->set(presenter);
}

void TestZrPluginLinkage::cleanup()
{
    if (presenter)
        QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    witness.reset();
    linkage.reset();
    seat.reset();
    plugin.reset();
    scene.host.stop();
}

void TestZrPluginLinkage::take(ZrLinkageCombox *combo)
{
    connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), linkage.get(),
            [this, combo](int index) { linkage->choose(combo, index); });
}

void TestZrPluginLinkage::withoutPresenterNothingHappens()
{
    ZrPluginPresenter none;
    ZrPluginLinkage alone(plugin.get(), &none);
    alone.subscribe(symbols, true, 2);
    alone.setState(true, 1);
    alone.unsubscribe(0);
    QVERIFY(alone.types().isEmpty());
    QVERIFY(!alone.combo());
    QCOMPARE(alone.group(), -1);
    QVERIFY(!alone.isVisible());
}

void TestZrPluginLinkage::theComboHoldsTheColours()
{
    linkage->subscribe(symbols, true, 0);
    ZrLinkageCombox *const combo = linkage->combo();
    QVERIFY(combo);
    QCOMPARE(combo->parentWidget(), plugin.get());
    QVERIFY(combo->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(combo->count(), 5);
    const QStringList colours{QStringLiteral("255,127,39,150"), QStringLiteral("255,242,0,150"),
                              QStringLiteral("0,162,232,150"), QStringLiteral("63,72,204,150"),
                              QStringLiteral("163,73,164,150")};
    for (int group = 0; group < 5; ++group) {
        QCOMPARE(combo->itemData(group).toString(), colours.at(group));
        const QColor colour = combo->itemData(group, Qt::BackgroundRole).value<QColor>();
        QCOMPARE(colour, ZrPluginLinkage::groupColors().at(group));
        QCOMPARE(colour.alpha(), 150);
        QCOMPARE(combo->itemText(group), QStringLiteral("Security"));
    }
    QVERIFY(combo->styleSheet().contains(colours.at(0)));
}

void TestZrPluginLinkage::itsLabelIsThatOfTheFirstType()
{
    linkage->subscribe(accounts, true, 0);
    linkage->subscribe(symbols, true, 1);
    QCOMPARE(linkage->combo()->currentText(), QStringLiteral("Account"));
}

void TestZrPluginLinkage::aGroupIsJoined_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<Groups>("expected");
    QTest::newRow("first, where the combo stands already") << 0 << Groups{0};
    QTest::newRow("third") << 2 << Groups{2};
    QTest::newRow("last") << 4 << Groups{4};
    QTest::newRow("none") << -1 << Groups();
    QTest::newRow("below none") << -5 << Groups();
}

void TestZrPluginLinkage::aGroupIsJoined()
{
    QFETCH(int, group);
    QFETCH(Groups, expected);
    linkage->subscribe(symbols, true, group);
    plugin->show();
    QCOMPARE(linkage->types(), QList<int>{symbols});
    QCOMPARE(linkage->group(), group);
    QCOMPARE(linkage->combo()->currentIndex(), qMax(-1, group));
    QCOMPARE(linkage->combo()->isHidden(), group < 0);
    QCOMPARE(witness->groupsOf(presenter, symbols), expected);
    QVERIFY(witness->groupsOf(presenter, accounts).isEmpty());
}

void TestZrPluginLinkage::withoutEnableTheComboIsHiddenAndThePluginLinked()
{
    linkage->subscribe(symbols, false, 0);
    QVERIFY(linkage->combo()->isHidden());
    QCOMPARE(linkage->group(), 0);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{0});
}

void TestZrPluginLinkage::withoutEnableAndGroupNothingIsLinked()
{
    linkage->subscribe(symbols, false, -1);
    QVERIFY(linkage->combo()->isHidden());
    QCOMPARE(linkage->group(), -1);
    QVERIFY(witness->groupsOf(presenter, symbols).isEmpty());
}

void TestZrPluginLinkage::aSecondCallOfATypeDoesNothing()
{
    linkage->subscribe(symbols, true, 2);
    linkage->subscribe(symbols, true, 3);
    QCOMPARE(linkage->types(), QList<int>{symbols});
    QCOMPARE(linkage->group(), 2);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{2});
}

void TestZrPluginLinkage::aSecondTypeReusesTheComboAndTakesTheGroup()
{
    linkage->subscribe(symbols, true, 2);
    ZrLinkageCombox *const combo = linkage->combo();
    linkage->subscribe(accounts, true, 3);
    QCOMPARE(linkage->combo(), combo);
    QCOMPARE(linkage->types(), (QList<int>{symbols, accounts}));
    QCOMPARE(linkage->group(), 3);
    // The combo's change took the first type along.
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{3});
    QCOMPARE(witness->groupsOf(presenter, accounts), Groups{3});
}

void TestZrPluginLinkage::anUnknownGroupCountsAsNone()
{
    QTest::ignoreMessage(QtWarningMsg, "ZrPluginLinkage no such group 5");
    linkage->subscribe(symbols, true, 5);
    QCOMPARE(linkage->group(), -1);
    QVERIFY(witness->groupsOf(presenter, symbols).isEmpty());
    linkage->setState(true, 1);
    QTest::ignoreMessage(QtWarningMsg, "ZrPluginLinkage no such group 1000");
    linkage->setState(true, 1000);
    QCOMPARE(linkage->group(), 1);
    QTest::ignoreMessage(QtWarningMsg, "ZrPluginLinkage no such group 5");
    linkage->combo()->addItem(QStringLiteral("another's"));
    linkage->combo()->setCurrentIndex(5);
    QCOMPARE(linkage->group(), 1);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{1});
}

void TestZrPluginLinkage::theMenuIsThatOfThePresenter()
{
    auto *const other =
        new PresenterProbe(QStringLiteral("other#plugin#_1"), IMessageInterface::SharedThread);
    seat->set(other);
    linkage->subscribe(symbols, true, 1);
    QVERIFY(witness->groupsOf(other, symbols).isEmpty());
    LinkWitness otherMenu(QStringLiteral("other"));
    QCOMPARE(otherMenu.groupsOf(other, symbols), Groups{1});
    QVERIFY(Probe::isGoneAfterDeleteLater(other));
}

void TestZrPluginLinkage::unsubscribeLeavesOneType()
{
    linkage->subscribe(symbols, true, 2);
    linkage->subscribe(accounts, true, 2);
    plugin->show();
    linkage->unsubscribe(symbols);
    QCOMPARE(linkage->types(), QList<int>{accounts});
    QVERIFY(witness->groupsOf(presenter, symbols).isEmpty());
    QCOMPARE(witness->groupsOf(presenter, accounts), Groups{2});
    QVERIFY(linkage->isVisible());
    linkage->unsubscribe(accounts);
    QVERIFY(witness->groupsOf(presenter, accounts).isEmpty());
    QVERIFY(linkage->combo()->isHidden());
    QVERIFY(!linkage->isVisible());
}

void TestZrPluginLinkage::unsubscribeOfZeroLeavesAll()
{
    linkage->subscribe(symbols, true, 2);
    linkage->subscribe(accounts, true, 4);
    linkage->unsubscribe(0);
    QVERIFY(linkage->types().isEmpty());
    QVERIFY(linkage->combo()->isHidden());
    QVERIFY(witness->groupsOf(presenter, symbols).isEmpty());
    QVERIFY(witness->groupsOf(presenter, accounts).isEmpty());
    QCOMPARE(linkage->group(), 4);
    linkage->unsubscribe(0);
}

void TestZrPluginLinkage::unsubscribeOfAnUnknownTypeDoesNothing()
{
    linkage->subscribe(symbols, true, 2);
    plugin->show();
    linkage->unsubscribe(accounts);
    QCOMPARE(linkage->types(), QList<int>{symbols});
    QVERIFY(!linkage->combo()->isHidden());
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{2});
}

void TestZrPluginLinkage::unsubscribeWhileUnlinkedTellsNobody()
{
    linkage->subscribe(symbols, true, 2);
    linkage->setState(true, -1);
    linkage->unsubscribe(symbols);
    QVERIFY(linkage->types().isEmpty());
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{2});
}

void TestZrPluginLinkage::stateWithoutComboDoesNothing()
{
    linkage->setState(true, 2);
    QCOMPARE(linkage->group(), -1);
    QVERIFY(!linkage->isVisible());
}

void TestZrPluginLinkage::stateShowsAndChangesTheGroup()
{
    linkage->subscribe(symbols, false, -1);
    plugin->show();
    linkage->setState(true, 3);
    QVERIFY(linkage->isVisible());
    QCOMPARE(linkage->group(), 3);
    QCOMPARE(linkage->combo()->currentIndex(), 3);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{3});
}

void TestZrPluginLinkage::hiddenStateKeepsThePluginLinked()
{
    linkage->subscribe(symbols, true, 1);
    linkage->setState(false, 2);
    QVERIFY(linkage->combo()->isHidden());
    QCOMPARE(linkage->group(), 2);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{2});
}

void TestZrPluginLinkage::stateOfNoGroupLooksUnlinkedAndStaysLinked()
{
    linkage->subscribe(symbols, true, 1);
    linkage->setState(true, -1);
    QVERIFY(linkage->combo()->isHidden());
    QCOMPARE(linkage->group(), -1);
    QCOMPARE(linkage->combo()->currentIndex(), 1);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{1});
}

void TestZrPluginLinkage::otherNegativeStatesOnlyShow()
{
    linkage->subscribe(symbols, true, 1);
    linkage->setState(false, -2);
    QVERIFY(linkage->combo()->isHidden());
    QCOMPARE(linkage->group(), 1);
    linkage->setState(true, -2);
    QVERIFY(!linkage->combo()->isHidden());
    QCOMPARE(linkage->group(), 1);
}

void TestZrPluginLinkage::theUsersChoiceLinksAllTypes()
{
    linkage->subscribe(symbols, true, 0);
    linkage->subscribe(accounts, true, 0);
    linkage->combo()->setCurrentIndex(4);
    QCOMPARE(linkage->group(), 4);
    QVERIFY(linkage->combo()->styleSheet().contains(QStringLiteral("163,73,164,150")));
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{4});
    QCOMPARE(witness->groupsOf(presenter, accounts), Groups{4});
}

void TestZrPluginLinkage::noChoiceChangesNothing()
{
    linkage->subscribe(symbols, true, 3);
    linkage->combo()->setCurrentIndex(-1);
    linkage->choose(nullptr, 1);
    QCOMPARE(linkage->group(), 3);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{3});
}

void TestZrPluginLinkage::aDeadComboIsMadeAnewForTheNextType()
{
    linkage->subscribe(symbols, true, 3);
    delete linkage->combo();
    QVERIFY(!linkage->combo());
    QVERIFY(!linkage->isVisible());
    linkage->setState(true, 1);
    QCOMPARE(linkage->group(), 3);
    linkage->subscribe(accounts, true, 2);
    QVERIFY(linkage->combo());
    QCOMPARE(linkage->combo()->currentText(), QStringLiteral("Account"));
    delete linkage->combo();
    linkage->unsubscribe(0);
    QVERIFY(witness->groupsOf(presenter, accounts).isEmpty());
}

void TestZrPluginLinkage::aClosedComboIsForgotten()
{
    linkage->subscribe(symbols, true, 3);
    linkage->combo()->close();
    QTRY_VERIFY(!linkage->combo());
}

void TestZrPluginLinkage::aTitleThatRefusesTheComboLeavesTheRest()
{
    disconnect(linkage.get(), &ZrPluginLinkage::comboMade, this, nullptr);
    connect(linkage.get(), &ZrPluginLinkage::comboMade, this, [](ZrLinkageCombox *combo) { delete combo; });
    linkage->subscribe(symbols, true, 3);
    QVERIFY(!linkage->combo());
    QCOMPARE(linkage->group(), 3);
    QCOMPARE(witness->groupsOf(presenter, symbols), Groups{3});
}

void TestZrPluginLinkage::aPresenterThatGoesLeavesTheGroup()
{
    linkage->subscribe(symbols, true, 3);
    QVERIFY(Probe::isGoneAfterDeleteLater(presenter));
    presenter = nullptr;
    linkage->combo()->setCurrentIndex(1);
    linkage->setState(true, 2);
    linkage->unsubscribe(0);
    QCOMPARE(linkage->group(), 1);
    QCOMPARE(linkage->types(), QList<int>{symbols});
}

ZR_TEST_MAIN(TestZrPluginLinkage)
#include "tst_zrpluginlinkage.moc"
