#include "SheetScene.h"

#include "FreezeTableView.h"
#include "ZrAlgoParamSettingHorizontalViewDeletage.h"
#include "ZrAlgoParamSettingWidget.h"
#include "ZrAlgoParamSettingWidget_p.h"
#include "ZrAutoBuildSubWidgetObject.h"
#include "ZrAutoBuildWidget.h"
#include "ZrParamBasicTable.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTabWidget>

namespace {
using Rows = QMap<QString, QList<QVariantMap>>;

const char *const Basic = R"("basic": [
    {"id": "Name", "name": "Name", "editor": "line", "required": true},
    {"id": "Qty", "name": "Qty", "editor": "line", "type": "int", "max": 100},
    {"id": "Side", "name": "Side", "editor": "combo",
     "options": [{"text": "Buy", "value": "1"}, {"text": "Sell", "value": "2"}],
     "dependsOn": {"parameter": "Name", "cases": [
        {"value": "none", "options": [{"text": "Neither", "value": "0"}]}]}}])";

QByteArray view(const QByteArray &id, const QByteArray &more = QByteArray())
{
    return R"({"id": ")" + id + R"(", "name": ")" + id + R"( & co")" + more + R"(, "columns": [
        {"id": "Code", "name": "Code", "editor": "line", "key": true, "addsRow": true},
        {"id": "Qty", "name": "Qty", "editor": "line", "type": "int", "max": 100, "editableWhileRunning": true},
        {"id": "Note", "editor": "line"}]})";
}

QByteArray sheetOf(const QByteArray &interface, const QByteArray &views)
{
    return R"({"strategy": {"id": "s"}, "interface": {)" + interface + "}, " + Basic + R"(, "initial": [)" +
           views + "]}";
}

class Scene
{
public:
    explicit Scene(const QByteArray &description, int mode = 1)
    {
        widget.resize(900, 500);
        widget.setAutoBuildWidgetDetails(sheet::write(m_folder, description), mode);
        widget.show();
        QApplication::setActiveWindow(&widget);
    }

    ZrTableView *view(const QString &id = "v") const { return widget.getInitialParamViewWidget().value(id); }
    template<typename Editor>
    Editor *editor(const QString &id) const
    {
        const ZrAlgoParamSettingWidgetPrivate *const d = widget.getPrivate();
        const auto *const editors =
            d->basicForm ? d->basicForm->getAutoBuildSubWidgetObject() : d->basicTable->editors();
        return qobject_cast<Editor *>(editors->getSubWidgetMap().value(id));
    }
    QPoint place(int row, int column) const
    {
        return view()->getTableView()->visualRect(view()->index(row, column)).center();
    }
    void click(int row, int column) const
    {
        QTest::mouseClick(view()->getTableView()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          place(row, column));
    }
    void doubleClick(int row, int column) const
    {
        click(row, column);
        QTest::mouseDClick(view()->getTableView()->viewport(), Qt::LeftButton, Qt::NoModifier,
                           place(row, column));
    }
    QWidget *openEditor(int row, int column) const
    {
        return view()->getTableView()->indexWidget(view()->index(row, column));
    }
    QStringList codes() const
    {
        QStringList list;
        for (const RecordData &row : view()->getViewData())
            list.append(row.value(0).value(ITEM_USERROLE).toString());
        return list;
    }

    ZrAlgoParamSettingWidget widget;

private:
    QTemporaryDir m_folder;
};
} // namespace

class TestAlgoParamSettingWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void theLayoutIsAsTold_data();
    void theLayoutIsAsTold();
    void anUnreadableDescriptionGivesAnEmptySheet();
    void basicParametersAreAFormOrATable();
    void aTableHasItsGreatestWidth();
    void oneTableStandsAlone();
    void severalTablesStandInTabsById();
    void whatIsHiddenIsNotBuilt();
    void aSecondBuildReplacesTheFirst();
    void basicValuesComeBackFromFormAndTable_data();
    void basicValuesComeBackFromFormAndTable();
    void aFaultyBasicValueIsTold_data();
    void aFaultyBasicValueIsTold();
    void aFaultyRowIsTold();
    void anEmptyTableThatMustNotBeIsTold();
    void unvalidatedRowsComeWithoutAMessage();
    void unknownTablesAreNotFilled();
    void aSheetClosedUnderItsMessageIsNoMatter();
    void theDeletePictureClearsABlankRowAndRemovesOthers();
    void theDeletePictureDoesNothingInOtherModes_data();
    void theDeletePictureDoesNothingInOtherModes();
    void aDoubleClickOpensAnEditorAsTheModeAllows_data();
    void aDoubleClickOpensAnEditorAsTheModeAllows();
    void oneEditorIsOpenAtATime();
    void aTypedRowIsFollowedByABlankOne();
    void anEditorOfTheTableTellsItsRow();
    void theSizeIsFollowed();

private:
    FormHost m_host;
};

void TestAlgoParamSettingWidget::initTestCase()
{
    QVERIFY(m_host.isReady());
}

void TestAlgoParamSettingWidget::theLayoutIsAsTold_data()
{
    QTest::addColumn<QByteArray>("layout");
    QTest::addColumn<bool>("isVertical");
    QTest::newRow("vertical") << QByteArray("vertical") << true;
    QTest::newRow("horizontal") << QByteArray("horizontal") << false;
}

void TestAlgoParamSettingWidget::theLayoutIsAsTold()
{
    const QuietPlatform quiet;
    QFETCH(QByteArray, layout);
    QFETCH(bool, isVertical);
    const Scene scene(sheetOf("\"layout\": \"" + layout + '"', view("v")));
    QCOMPARE(bool(qobject_cast<QVBoxLayout *>(scene.widget.layout())), isVertical);
    QCOMPARE(bool(qobject_cast<QHBoxLayout *>(scene.widget.layout())), !isVertical);
    QCOMPARE(scene.widget.layout()->spacing(), 6);
    QCOMPARE(scene.widget.layout()->contentsMargins(), QMargins());
    QCOMPARE(scene.widget.layout()->count(), 3);
    QSpacerItem *const spacer = scene.widget.layout()->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
}

void TestAlgoParamSettingWidget::anUnreadableDescriptionGivesAnEmptySheet()
{
    const QuietPlatform quiet;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no JSON"));
    const Scene scene("nothing");
    QVERIFY(!scene.widget.layout());
    QVERIFY(scene.widget.getInitialParamViewWidget().isEmpty());
    QVariantMap values = {{"old", 1}};
    QCOMPARE(scene.widget.getInitialBasicParamData(values), -2);
    QCOMPARE(values, (QVariantMap{{"old", 1}}));
    Rows rows;
    QCOMPARE(scene.widget.getInitialParamData(rows, true), 0);
    QVERIFY(rows.isEmpty());
}

void TestAlgoParamSettingWidget::basicParametersAreAFormOrATable()
{
    const QuietPlatform quiet;
    const Scene form(sheetOf("", ""));
    QVERIFY(form.widget.getPrivate()->basicForm);
    QVERIFY(!form.widget.getPrivate()->basicTable);
    const Scene table(sheetOf("\"basicAs\": \"table\"", ""));
    QVERIFY(!table.widget.getPrivate()->basicForm);
    QVERIFY(table.widget.getPrivate()->basicTable);
    QCOMPARE(table.widget.getPrivate()->basicTable->view()->getHeadList().size(), 2);
    const Scene described(sheetOf(R"("basicAs": "table", "showDescriptions": true)", ""));
    QCOMPARE(described.widget.getPrivate()->basicTable->view()->getHeadList().size(), 3);
}

void TestAlgoParamSettingWidget::aTableHasItsGreatestWidth()
{
    const QuietPlatform quiet;
    const Scene wide(sheetOf("\"basicAs\": \"table\"", ""));
    QCOMPARE(wide.widget.getPrivate()->basicTable->view()->maximumWidth(), QWIDGETSIZE_MAX);
    const Scene narrow(sheetOf(R"("basicAs": "table", "basicWidth": 300)", ""));
    QCOMPARE(narrow.widget.getPrivate()->basicTable->view()->maximumWidth(), 300);
}

void TestAlgoParamSettingWidget::oneTableStandsAlone()
{
    const QuietPlatform quiet;
    const Scene scene(sheetOf("", view("v")));
    QVERIFY(!scene.widget.getPrivate()->tabWidget);
    QVERIFY(!scene.widget.findChild<QTabWidget *>());
    QCOMPARE(scene.widget.getInitialParamViewWidget().keys(), QStringList("v"));
    QCOMPARE(scene.widget.layout()->itemAt(1)->widget(), scene.view());
}

void TestAlgoParamSettingWidget::severalTablesStandInTabsById()
{
    const QuietPlatform quiet;
    const Scene scene(sheetOf("", view("w") + ',' + view("v")));
    const QTabWidget *const tabs = scene.widget.getPrivate()->tabWidget;
    QVERIFY(tabs);
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->widget(0), scene.view("v"));
    QCOMPARE(tabs->widget(1), scene.view("w"));
    // An ampersand of a name is no shortcut.
    QCOMPARE(tabs->tabText(0), QString("v && co"));
}

void TestAlgoParamSettingWidget::whatIsHiddenIsNotBuilt()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf(R"("showBasic": false, "showInitial": false)", view("v")));
    QVERIFY(scene.widget.layout());
    QCOMPARE(scene.widget.layout()->count(), 0);
    QVariantMap values;
    scene.widget.setInitialBasicParamData({{"Name", "x"}});
    QCOMPARE(scene.widget.getInitialBasicParamData(values), -2);
    QVERIFY(scene.widget.getInitialParamViewWidget().isEmpty());
}

void TestAlgoParamSettingWidget::aSecondBuildReplacesTheFirst()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("", view("w") + ',' + view("v")));
    QTemporaryDir folder;
    const QPointer<ZrTableView> first = scene.view();
    scene.widget.setAutoBuildWidgetDetails(sheet::write(folder, sheetOf("\"basicAs\": \"table\"", view("v"))),
                                           3);
    QVERIFY(!first);
    QVERIFY(!scene.widget.findChild<QTabWidget *>());
    QVERIFY(!scene.widget.findChild<ZrAutoBuildWidget *>());
    QCOMPARE(scene.widget.findChildren<ZrTableView *>().size(), 2);
    QCOMPARE(scene.widget.getPrivate()->mode, 3);
}

void TestAlgoParamSettingWidget::basicValuesComeBackFromFormAndTable_data()
{
    QTest::addColumn<QByteArray>("face");
    QTest::newRow("form") << QByteArray("form");
    QTest::newRow("table") << QByteArray("table");
}

void TestAlgoParamSettingWidget::basicValuesComeBackFromFormAndTable()
{
    const QuietPlatform quiet;
    QFETCH(QByteArray, face);
    Scene scene(sheetOf("\"basicAs\": \"" + face + '"', ""));
    const QVariantMap given = {{"Name", "n"}, {"Qty", 100}, {"Side", "2"}};
    scene.widget.setInitialBasicParamData(given);
    QVariantMap values = {{"old", 1}};
    QCOMPARE(scene.widget.getInitialBasicParamData(values), 0);
    QCOMPARE(values, given);
}

void TestAlgoParamSettingWidget::aFaultyBasicValueIsTold_data()
{
    QTest::addColumn<QByteArray>("face");
    QTest::addColumn<QVariantMap>("given");
    QTest::addColumn<QString>("text");
    for (const char *face : {"form", "table"}) {
        QTest::addRow("%s, required and empty", face)
            << QByteArray(face) << QVariantMap{{"Qty", 5}} << "Name不可为空！ ";
        QTest::addRow("%s, above the greatest", face)
            << QByteArray(face) << QVariantMap{{"Name", "n"}, {"Qty", 101}} << "Qty不可大于100";
    }
}

void TestAlgoParamSettingWidget::aFaultyBasicValueIsTold()
{
    const QuietPlatform quiet;
    QFETCH(QByteArray, face);
    QFETCH(QVariantMap, given);
    QFETCH(QString, text);
    Scene scene(sheetOf("\"basicAs\": \"" + face + '"', ""));
    scene.widget.setInitialBasicParamData(given);
    const MessageAnswer answer;
    QVariantMap values = {{"old", 1}};
    QCOMPARE(scene.widget.getInitialBasicParamData(values), -1);
    QCOMPARE(answer.count(), 1);
    QCOMPARE(answer.title(), QString("提醒"));
    QCOMPARE(answer.text(), text);
    QCOMPARE(values, (QVariantMap{{"old", 1}}));
}

void TestAlgoParamSettingWidget::aFaultyRowIsTold()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("", view("v")));
    scene.widget.setInitialParamData({{"v", {{{"Code", "1"}, {"Qty", 100}}, {{"Code", "2"}, {"Qty", 101}}}}});
    const MessageAnswer answer;
    Rows rows;
    QCOMPARE(scene.widget.getInitialParamData(rows, true), -1);
    QCOMPARE(answer.count(), 1);
    QCOMPARE(answer.title(), QString("提醒"));
    QCOMPARE(answer.text(), QString("Qty不可大于100"));
    QVERIFY(rows.isEmpty());
}

void TestAlgoParamSettingWidget::anEmptyTableThatMustNotBeIsTold()
{
    const QuietPlatform quiet;
    const Scene scene(sheetOf("", view("v") + ',' + view("w", R"(, "required": true)")));
    const MessageAnswer answer;
    Rows rows;
    QCOMPARE(scene.widget.getInitialParamData(rows, true), -1);
    QCOMPARE(answer.text(), QString("w & co不可为空！ "));
    QCOMPARE(rows.keys(), QStringList("v")); // the one before it was good
}

void TestAlgoParamSettingWidget::unvalidatedRowsComeWithoutAMessage()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("", view("v", R"(, "required": true)")));
    const MessageAnswer answer;
    Rows rows;
    QCOMPARE(scene.widget.getInitialParamData(rows, false), 0);
    QCOMPARE(rows, (Rows{{"v", {}}}));
    const QList<QVariantMap> given = {{{"Code", "1"}, {"Qty", "101"}, {"Note", ""}}};
    scene.widget.setInitialParamData({{"v", given}});
    QCOMPARE(scene.widget.getInitialParamData(rows, false), 0);
    QCOMPARE(rows, (Rows{{"v", given}}));
    QVERIFY(!answer.wasAsked());
}

void TestAlgoParamSettingWidget::unknownTablesAreNotFilled()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("", view("v")));
    scene.widget.setInitialParamData({{"gone", {{{"Code", "1"}}}}});
    QCOMPARE(scene.codes(), QStringList(" "));
}

void TestAlgoParamSettingWidget::aSheetClosedUnderItsMessageIsNoMatter()
{
    const QuietPlatform quiet;
    QTemporaryDir folder;
    auto *const widget = new ZrAlgoParamSettingWidget;
    widget->setAutoBuildWidgetDetails(sheet::write(folder, sheetOf("", "")), 1);
    widget->show();
    QTimer closer;
    connect(&closer, &QTimer::timeout, &closer, [&closer, widget] {
        if (!QApplication::activeModalWidget())
            return;
        closer.stop();
        delete widget;
    });
    closer.start(0);
    QVariantMap values;
    QCOMPARE(widget->getInitialBasicParamData(values), -1);
    QVERIFY(!closer.isActive());
}

void TestAlgoParamSettingWidget::theDeletePictureClearsABlankRowAndRemovesOthers()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("", view("v")));
    scene.widget.setInitialParamData({{"v", {{{"Code", "1"}}, {{"Code", "2"}}}}});
    scene.click(0, 3);
    QCOMPARE(scene.codes(), (QStringList{"2", " "}));
    scene.click(1, 3);
    QCOMPARE(scene.codes(), (QStringList{"2", " "}));
    scene.click(0, 1); // another column
    QCOMPARE(scene.codes(), (QStringList{"2", " "}));
    scene.click(0, 3);
    QCOMPARE(scene.codes(), QStringList(" "));
}

void TestAlgoParamSettingWidget::theDeletePictureDoesNothingInOtherModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("running") << 2;
    QTest::newRow("read only") << 3;
}

void TestAlgoParamSettingWidget::theDeletePictureDoesNothingInOtherModes()
{
    const QuietPlatform quiet;
    QFETCH(int, mode);
    Scene scene(sheetOf("", view("v")), mode);
    scene.widget.setInitialParamData({{"v", {{{"Code", "1"}}}}});
    scene.click(0, 3);
    scene.click(1, 3);
    QCOMPARE(scene.codes(), (QStringList{"1", " "}));
}

void TestAlgoParamSettingWidget::aDoubleClickOpensAnEditorAsTheModeAllows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("expected");
    QTest::newRow("new, plain") << 1 << 0 << true;
    QTest::newRow("new, editable while running") << 1 << 1 << true;
    QTest::newRow("running, plain") << 2 << 0 << false;
    QTest::newRow("running, editable") << 2 << 1 << true;
    QTest::newRow("read only, plain") << 3 << 0 << false;
    QTest::newRow("read only, editable while running") << 3 << 1 << false;
    QTest::newRow("unknown mode") << 4 << 1 << false;
}

void TestAlgoParamSettingWidget::aDoubleClickOpensAnEditorAsTheModeAllows()
{
    const QuietPlatform quiet;
    QFETCH(int, mode);
    QFETCH(int, column);
    QFETCH(bool, expected);
    Scene scene(sheetOf("", view("v")), mode);
    scene.widget.setInitialParamData({{"v", {{{"Code", "1"}, {"Qty", "7"}}}}});
    scene.doubleClick(0, column);
    auto *const editor = qobject_cast<QLineEdit *>(scene.openEditor(0, column));
    QCOMPARE(bool(editor), expected);
    QCOMPARE(scene.widget.getPrivate()->editIndex("v").isValid(), expected);
    if (editor)
        QVERIFY(editor->hasFocus());
}

void TestAlgoParamSettingWidget::oneEditorIsOpenAtATime()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("", view("v")));
    scene.widget.setInitialParamData({{"v", {{{"Code", "1"}, {"Qty", "7"}}}}});
    scene.doubleClick(0, 0);
    QVERIFY(scene.openEditor(0, 0));
    scene.doubleClick(0, 1);
    QVERIFY(scene.openEditor(0, 1));
    QVERIFY(!scene.openEditor(0, 0));
    scene.click(1, 2);
    QVERIFY(!scene.openEditor(0, 1));
    QVERIFY(!scene.widget.getPrivate()->editIndex("v").isValid());
}

void TestAlgoParamSettingWidget::aTypedRowIsFollowedByABlankOne()
{
    const QuietPlatform quiet;
    const Scene scene(sheetOf("", view("v")));
    scene.doubleClick(0, 0);
    QWidget *const editor = scene.openEditor(0, 0);
    QVERIFY(editor);
    QTest::keyClicks(editor, "600001");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(scene.codes(), (QStringList{"600001", " "}));
    Rows rows;
    QCOMPARE(scene.widget.getInitialParamData(rows, true), 0);
    QCOMPARE(rows.value("v").size(), 1);
    QCOMPARE(rows.value("v").at(0).value("Code"), QVariant("600001"));
}

void TestAlgoParamSettingWidget::anEditorOfTheTableTellsItsRow()
{
    const QuietPlatform quiet;
    const Scene scene(sheetOf("\"basicAs\": \"table\"", ""));
    auto *const name = scene.editor<QLineEdit>("Name");
    auto *const side = scene.editor<QComboBox>("Side");
    QCOMPARE(side->count(), 2);
    name->setFocus();
    QTest::keyClicks(name, "none");
    QTest::keyClick(name, Qt::Key_Return);
    const ZrTableView *const table = scene.widget.getPrivate()->basicTable->view();
    QCOMPARE(table->getRowDataByKey("Name").value(1).value(ITEM_USERROLE), QVariant("none"));
    QCOMPARE(side->count(), 1);
    QVERIFY(scene.editor<QLineEdit>("Qty")->hasFocus());
}

void TestAlgoParamSettingWidget::theSizeIsFollowed()
{
    const QuietPlatform quiet;
    Scene scene(sheetOf("\"basicAs\": \"table\"", view("v")));
    auto *const name = scene.editor<QLineEdit>("Name");
    name->setText("typed");
    scene.widget.resize(1400, 600);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ZrTableView *const table = scene.widget.getPrivate()->basicTable->view();
    QCOMPARE(scene.editor<QLineEdit>("Name"), name);
    QCOMPARE(table->indexWidget(0, 1), name);
    QCOMPARE(name->text(), QString("typed"));
    QCOMPARE(table->getTableView()->columnWidth(0), 700);
    QCOMPARE(scene.view()->getTableView()->columnWidth(0), 350);
}

ZR_TEST_MAIN(TestAlgoParamSettingWidget)
#include "tst_zralgoparamsettingwidget.moc"
