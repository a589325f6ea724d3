#include "FilterScene.h"
#include "FreezeTableView.h"
#include "ZrPluginBaseWidget.h"
#include "ZrPluginBaseWidget_p.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"
#include "ZrTableView_p.h"
#include "ZrTestMain.h"

#include <QtCore/QTranslator>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <limits>

using Groups = QList<QList<QVariantMap>>;

namespace {
constexpr int HeightPx = 150;
constexpr int BesidePx = 60;

ItemRoleMap cell(const QString &text)
{
    return {{ITEM_DISPLAYROLE, text}, {ITEM_USERROLE, text}};
}

QList<ItemRoleMap> cells(const QStringList &texts)
{
    QList<ItemRoleMap> list;
    for (const QString &text : texts)
        list.append(cell(text));
    return list;
}

/// A panel in a dialog of its own, as the head puts it.
class PanelScene
{
public:
    explicit PanelScene(const QStringList &texts = {"a", "b", "c"}, QWidget *parent = nullptr)
        : dialog(std::make_unique<ZrDialog>(QString(), false, parent ? parent : &desk.mainWindow, 0, false,
                                            false, 0))
        , panel(new ZrViewFilterWidget(dialog.get()))
        , list(panel->findChild<ZrTableView *>())
        , search(panel->findChild<QLineEdit *>())
    {
        dialog->addWidget(panel);
        fill(texts);
    }

    void fill(const QStringList &texts, const Groups &filter = {})
    {
        panel->updateFilterData(7, QVariant::String, cells(texts), filter, {});
        dialog->setFixedSize(panel->size());
    }

    void open()
    {
        desk.mainWindow.show();
        // As a window manager does when a window goes; the platform without windows doesn't.
        desk.mainWindow.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.mainWindow));
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        dialog->activateWindow();
        panel->setFocus();
        QTRY_VERIFY(search->hasFocus());
    }

    QStringList listed() const
    {
        QStringList texts;
        const RecordDataList rows = list->getViewCurrentDisplayData();
        for (const RecordData &row : rows)
            texts.append((ZrFilterChoices::isTicked(row) ? "*" : "") +
                         row.value(0).value(ITEM_DISPLAYROLE).toString());
        return texts;
    }

    void click(int row, int viewColumn)
    {
        QTableView *const table = list->getTableView();
        const QModelIndex index = table->model()->index(row, viewColumn);
        table->scrollTo(index);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                          table->visualRect(index).center());
    }

    DialogScene desk;
    std::unique_ptr<ZrDialog> dialog;
    ZrViewFilterWidget *panel;
    ZrTableView *list;
    QLineEdit *search;
};

class Plugin : public ZrPluginBaseWidget
{
public:
    using ZrPluginBaseWidget::ZrPluginBaseWidget;
    void initPlugin() override {}
};
} // namespace

class tst_ZrViewFilterWidget : public QObject
{
    Q_OBJECT
private slots:
    void panelIsComposedAsPromised();
    void listStaysOutOfThePluginsSettings();
    void columnsHiddenInANamelessGridStayInTheList();
    void listShowsHeadRowAndChoices();
    void withoutChoicesTheHeadRowIsTicked();
    void refillingForgetsSearchAndTicks();
    void widthFollowsTheWidestText_data();
    void widthFollowsTheWidestText();
    void widthKeepsWithinItsBound();
    void clickTicksOnce_data();
    void clickTicksOnce();
    void headRowTicksAllAndUnticksAll();
    void lastChoiceTicksTheHeadRow();
    void searchHidesAndUnticksNothing();
    void headRowTicksHiddenChoicesToo();
    void typingUnticksTheHeadRow();
    void choiceNamedLikeTheHeadRowIsNotShownTwice();
    void markupIsShownAsText();
    void pressOutsideHidesTheDialogAndActs();
    void pressInsideLeavesTheDialog();
    void pressOnAWidgetMadeLaterHidesTheDialog();
    void pressOnTheMainWindowItselfHidesTheDialog();
    void aHiddenPanelWatchesNothing();
    void otherEventsHideNothing();
    void escapeHidesTheDialog();
    void keysWalkThroughTheListAndTick();
    void languageOfTheHeadRowIsThatOfItsFilling();
    void panelTellsItsEnd();
    void skinChangesThePanel();
};

void tst_ZrViewFilterWidget::panelIsComposedAsPromised()
{
    PanelScene s;
    QVERIFY(s.panel->inherits("QFrame"));
    QVERIFY(qobject_cast<IZrSkin *>(s.panel));
    QVERIFY(s.panel->qt_metacast("com.orbenlake.Plugin.ISkin"));
    QVERIFY(s.panel->qt_metacast("IZrSkin"));
    QCOMPARE(s.panel->layout()->spacing(), 2);
    QCOMPARE(s.panel->layout()->contentsMargins(), QMargins(2, 2, 2, 2));
    QCOMPARE(s.panel->layout()->itemAt(0)->widget(), s.search);
    QCOMPARE(s.panel->layout()->itemAt(1)->widget(), s.list);
    QCOMPARE(s.search->placeholderText(), QString("Search box"));
    QCOMPARE(s.search->accessibleName(), QString("Search box"));
    QVERIFY(!s.list->getTableView()->accessibleName().isEmpty());
    QVERIFY(s.list->getZrTableHorizontalHeader()->isHidden());
    QVERIFY(s.list->getZrTableModel()->isCheckBoxShow());
    QCOMPARE(s.list->getZrTableModel()->columnCount(), 2);
    QCOMPARE(s.list->getKeyColumn(), QList<int>{0});
    QCOMPARE(s.list->getTableView()->selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!s.list->getZrTableHorizontalHeader()->isSortbale());
    QCOMPARE(s.list->index(0, 0).data(Qt::TextAlignmentRole).toInt(), 129);
    QCOMPARE(s.panel->column(), 7);
    QVERIFY(!s.panel->isTelling());
}

void tst_ZrViewFilterWidget::listStaysOutOfThePluginsSettings()
{
    DialogScene desk;
    Plugin plugin(&desk.mainWindow);
    ZrTableView grid(&plugin);
    HeadList heads{{{HEAD_DISPLAYROLE, "C0"}}};
    grid.setHeadList(heads);
    const ZrViewFilterWidget panel(&plugin);
    const auto *const list = panel.findChild<ZrTableView *>();
    QVERIFY(!list->getPrivate()->plugin);
    // What the user hides in the grids of the plugin, both without a caption.
    plugin.findChild<ZrPluginBaseWidgetPrivate *>()->setPluginViewColumnVisiableProperity({{QString(), {0}}});
    QVERIFY(grid.getTableView()->isColumnHidden(0));
    QVERIFY(!list->getTableView()->isColumnHidden(0));
    QVERIFY(!list->getTableView()->isColumnHidden(1));
}

void tst_ZrViewFilterWidget::columnsHiddenInANamelessGridStayInTheList()
{
    DialogScene desk;
    Plugin plugin(&desk.mainWindow);
    auto *const registry = plugin.findChild<ZrPluginBaseWidgetPrivate *>();
    registry->setPluginViewColumnVisiableProperity({{QString(), {0}}});
    const ZrViewFilterWidget panel(&plugin);
    QVERIFY(!panel.findChild<ZrTableView *>()->getTableView()->isColumnHidden(1));
}

void tst_ZrViewFilterWidget::listShowsHeadRowAndChoices()
{
    PanelScene s;
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "b", "c"}));
    s.panel->updateFilterData(1, QVariant::String, cells({"a", "b"}), {}, {});
    s.panel->slotSignalRowCheckStateChanged(1, 1);
    s.fill({"a", "b"}, s.panel->getFilterConditionList());
    QCOMPARE(s.listed(), QStringList({"Select all", "*a", "b"}));
    s.fill({"a"}, s.panel->getFilterConditionList());
    QCOMPARE(s.listed(), QStringList({"*Select all", "*a"}));
}

void tst_ZrViewFilterWidget::withoutChoicesTheHeadRowIsTicked()
{
    PanelScene s;
    s.fill({});
    QCOMPARE(s.listed(), QStringList({"*Select all"}));
    QCOMPARE(s.panel->size(), QSize(110, HeightPx));
}

void tst_ZrViewFilterWidget::refillingForgetsSearchAndTicks()
{
    PanelScene s;
    s.panel->slotSignalRowCheckStateChanged(1, 1);
    s.search->setText("b");
    s.panel->slotSearchTextChanged();
    s.fill({"x", "y"});
    QCOMPARE(s.search->text(), QString());
    QCOMPARE(s.listed(), QStringList({"Select all", "x", "y"}));
    QVERIFY(s.panel->getFilterConditionList().isEmpty());
}

void tst_ZrViewFilterWidget::widthFollowsTheWidestText_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("short: the least width") << QStringList({"a", "b"});
    QTest::newRow("wide") << QStringList({"a", QString(30, QLatin1Char('W')), "b"});
    QTest::newRow("Chinese") << QStringList({QString::fromUtf8("工商银行股份有限公司")});
}

void tst_ZrViewFilterWidget::widthFollowsTheWidestText()
{
    QFETCH(QStringList, texts);
    PanelScene s(texts);
    int widest = 50;
    for (const QString &text : texts)
        widest = qMax(widest, s.panel->fontMetrics().horizontalAdvance(text));
    QCOMPARE(s.panel->size(), QSize(widest + BesidePx, HeightPx));
    QCOMPARE(s.panel->minimumSize(), s.panel->maximumSize());
    QCOMPARE(s.list->getZrTableModel()->getModelPrivate()->columnWidths.value(0), widest);
}

void tst_ZrViewFilterWidget::widthKeepsWithinItsBound()
{
    PanelScene s;
    s.panel->setMostWidth(300);
    s.fill({DialogScene::withoutBlank(), "a"});
    QCOMPARE(s.panel->width(), 300);
    s.panel->setMostWidth(20);
    s.fill({DialogScene::withoutBlank()});
    QCOMPARE(s.panel->width(), 110);
    s.panel->setMostWidth(std::numeric_limits<int>::max());
    s.fill({"a"});
    QCOMPARE(s.panel->width(), 110);
}

void tst_ZrViewFilterWidget::clickTicksOnce_data()
{
    QTest::addColumn<int>("viewColumn");
    QTest::newRow("on the check box") << 0;
    QTest::newRow("on the text") << 1;
}

void tst_ZrViewFilterWidget::clickTicksOnce()
{
    QFETCH(int, viewColumn);
    PanelScene s;
    s.open();
    QSignalSpy changed(s.panel, &ZrViewFilterWidget::signalFilterStatusChanged);
    s.click(2, viewColumn);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "*b", "c"}));
    QCOMPARE(s.panel->getFilterConditionList().size(), 1);
    s.click(2, viewColumn);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "b", "c"}));
    QVERIFY(s.panel->getFilterConditionList().isEmpty());
}

void tst_ZrViewFilterWidget::headRowTicksAllAndUnticksAll()
{
    for (const int viewColumn : {0, 1}) {
        PanelScene s;
        s.open();
        QSignalSpy changed(s.panel, &ZrViewFilterWidget::signalFilterStatusChanged);
        s.click(0, viewColumn);
        QCOMPARE(s.listed(), QStringList({"*Select all", "*a", "*b", "*c"}));
        QCOMPARE(s.panel->getFilterConditionList().size(), 3);
        s.click(0, viewColumn);
        QCOMPARE(s.listed(), QStringList({"Select all", "a", "b", "c"}));
        QCOMPARE(changed.count(), 2);
    }
}

void tst_ZrViewFilterWidget::lastChoiceTicksTheHeadRow()
{
    PanelScene s;
    s.open();
    s.click(1, 0);
    s.click(2, 1);
    QCOMPARE(s.listed().first(), QString("Select all"));
    s.click(3, 0);
    QCOMPARE(s.listed(), QStringList({"*Select all", "*a", "*b", "*c"}));
    s.click(1, 1);
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "*b", "*c"}));
}

void tst_ZrViewFilterWidget::searchHidesAndUnticksNothing()
{
    PanelScene s({"Bank", "sand", "Anhui"});
    s.open();
    s.click(1, 0);
    QTest::keyClicks(s.search, "an");
    QCOMPARE(s.listed(), QStringList({"Select all", "*Bank", "sand"}));
    QTest::keyClicks(s.search, "k");
    QCOMPARE(s.listed(), QStringList({"Select all", "*Bank"}));
    s.search->clear(); // by hand: not edited by the user
    QCOMPARE(s.listed(), QStringList({"Select all", "*Bank"}));
    QTest::keyClicks(s.search, "x");
    QCOMPARE(s.listed(), QStringList({"Select all"}));
    QTest::keyClick(s.search, Qt::Key_Backspace);
    QCOMPARE(s.listed(), QStringList({"Select all", "*Bank", "sand", "Anhui"}));
}

void tst_ZrViewFilterWidget::headRowTicksHiddenChoicesToo()
{
    PanelScene s({"Bank", "sand", "Anhui"});
    s.open();
    QTest::keyClicks(s.search, "an");
    s.click(0, 0);
    QCOMPARE(s.listed(), QStringList({"*Select all", "*Bank", "*sand"}));
    QCOMPARE(s.panel->getFilterConditionList().size(), 3);
}

void tst_ZrViewFilterWidget::typingUnticksTheHeadRow()
{
    PanelScene s;
    s.open();
    s.click(0, 0);
    QTest::keyClicks(s.search, "a");
    QCOMPARE(s.listed(), QStringList({"Select all", "*a"}));
    QTest::keyClick(s.search, Qt::Key_Backspace);
    QCOMPARE(s.listed(), QStringList({"Select all", "*a", "*b", "*c"}));
    s.click(1, 0);
    s.click(1, 0);
    QCOMPARE(s.listed().first(), QString("*Select all"));
}

void tst_ZrViewFilterWidget::choiceNamedLikeTheHeadRowIsNotShownTwice()
{
    PanelScene s({"Select all", "b"});
    QCOMPARE(s.listed(), QStringList({"Select all", "b"}));
}

void tst_ZrViewFilterWidget::markupIsShownAsText()
{
    PanelScene s({DialogScene::markup()});
    s.open();
    QCOMPARE(s.list->index(1, 0).data().toString(), DialogScene::markup());
    const QString tip = s.list->index(1, 0).data(Qt::ToolTipRole).toString();
    QVERIFY(!Qt::mightBeRichText(tip) || !tip.contains("<img"));
}

void tst_ZrViewFilterWidget::pressOutsideHidesTheDialogAndActs()
{
    PanelScene s;
    QLineEdit other(&s.desk.mainWindow);
    s.open();
    other.show();
    QTest::mousePress(&other, Qt::LeftButton);
    QVERIFY(s.dialog->isHidden());
    QTRY_VERIFY(s.desk.mainWindow.focusWidget() == &other);
    QTest::mouseRelease(&other, Qt::LeftButton);
}

void tst_ZrViewFilterWidget::pressInsideLeavesTheDialog()
{
    PanelScene s;
    s.open();
    QTest::mouseClick(s.search, Qt::LeftButton);
    QTest::mouseClick(s.panel, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QTest::mouseClick(s.list->getTableView()->viewport(), Qt::LeftButton);
    QTest::mouseClick(s.dialog.get(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
    QVERIFY(s.dialog->isVisible());
    // A menu of a part is a window of its own.
    QMenu menu(s.search);
    QTest::mousePress(&menu, Qt::LeftButton);
    QVERIFY(s.dialog->isVisible());
}

void tst_ZrViewFilterWidget::pressOnAWidgetMadeLaterHidesTheDialog()
{
    PanelScene s;
    s.open();
    QWidget late(&s.desk.mainWindow);
    late.show();
    QTest::mousePress(&late, Qt::RightButton);
    QVERIFY(s.dialog->isHidden());
}

void tst_ZrViewFilterWidget::pressOnTheMainWindowItselfHidesTheDialog()
{
    PanelScene s;
    s.open();
    QTest::mousePress(&s.desk.mainWindow, Qt::LeftButton, Qt::NoModifier, QPoint(790, 590));
    QVERIFY(s.dialog->isHidden());
}

void tst_ZrViewFilterWidget::aHiddenPanelWatchesNothing()
{
    PanelScene s;
    s.open();
    s.dialog->hide();
    ZrDialog other(QString(), false, &s.desk.mainWindow, 0, false, false, 0);
    other.show();
    QTest::mousePress(&s.desk.mainWindow, Qt::LeftButton);
    QVERIFY(other.isVisible());
    s.dialog->show();
    QTest::mousePress(&s.desk.mainWindow, Qt::LeftButton);
    QVERIFY(s.dialog->isHidden());
}

void tst_ZrViewFilterWidget::otherEventsHideNothing()
{
    PanelScene s;
    s.open();
    QTest::mouseMove(&s.desk.mainWindow, QPoint(5, 5));
    QTest::mouseRelease(&s.desk.mainWindow, Qt::LeftButton);
    QTest::keyClick(&s.desk.mainWindow, Qt::Key_A);
    QVERIFY(s.dialog->isVisible());
}

void tst_ZrViewFilterWidget::escapeHidesTheDialog()
{
    PanelScene s;
    s.open();
    QTest::keyClick(s.search, Qt::Key_Escape);
    QVERIFY(s.dialog->isHidden());
    s.open();
    s.list->getTableView()->setFocus();
    QTest::keyClick(s.list->getTableView(), Qt::Key_Escape);
    QVERIFY(s.dialog->isHidden());
}

void tst_ZrViewFilterWidget::keysWalkThroughTheListAndTick()
{
    PanelScene s;
    s.open();
    QTest::keyClick(s.search, Qt::Key_Down);
    FreezeTableView *const table = s.list->getTableView();
    QVERIFY(table->hasFocus());
    QCOMPARE(table->currentIndex().row(), 0);
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Space);
    QCOMPARE(s.listed(), QStringList({"Select all", "a", "*b", "c"}));
    QCOMPARE(table->currentIndex().row(), 2);
    QTest::keyClick(table, Qt::Key_Up);
    QTest::keyClick(table, Qt::Key_Up);
    QTest::keyClick(table, Qt::Key_Space);
    QCOMPARE(s.listed(), QStringList({"*Select all", "*a", "*b", "*c"}));
}

void tst_ZrViewFilterWidget::languageOfTheHeadRowIsThatOfItsFilling()
{
    PanelScene s;
    s.open();
    // Another language comes while the panel is open: the row that stands there is still the head row.
    class Chinese : public QTranslator
    {
    public:
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return qstrcmp(source, "Select all") == 0 ? QString::fromUtf8("全选") : QString();
        }
        bool isEmpty() const override { return false; }
    } chinese;
    QCoreApplication::installTranslator(&chinese);
    s.click(0, 0);
    QCOMPARE(s.listed(), QStringList({"*Select all", "*a", "*b", "*c"}));
    s.fill({"a"});
    QCOMPARE(s.listed(), QStringList({QString::fromUtf8("全选"), "a"}));
    QCoreApplication::removeTranslator(&chinese);
}

void tst_ZrViewFilterWidget::panelTellsItsEnd()
{
    PanelScene s;
    QTest::ignoreMessage(QtDebugMsg, "~ZrViewFilterWidget");
    delete s.panel;
}

void tst_ZrViewFilterWidget::skinChangesThePanel()
{
    PanelScene s;
    s.open();
    const QImage dark = s.dialog->grab().toImage();
    QVERIFY(s.desk.host.setSkin("light"));
    QVERIFY(s.dialog->grab().toImage() != dark);
    const QString sheet = s.panel->styleSheet();
    s.panel->loadSkin(QVariant());
    QCOMPARE(s.panel->styleSheet(), sheet);
}

ZR_TEST_MAIN(tst_ZrViewFilterWidget)
#include "tst_zrviewfilterwidget.moc"
