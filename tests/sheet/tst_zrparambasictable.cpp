#include "SheetScene.h"

#include "ZrAutoBuildSubWidgetObject.h"
#include "ZrHeaderView.h"
#include "ZrParamBasicTable.h"
#include "ZrRoleKeys.h"
#include "ZrSearchBox.h"
#include "ZrTableView.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace Security = Vexlor_Fields::Security;

namespace {
QVariantMap line(const QString &id, const QString &type = Constants::VALUETYPE_STRING)
{
    return form::record(id, Constants::WIDGETTYPE_LINEEDIT, type,
                        {{Constants::STRATEGYPARAM_PARAMDESC, id + " text"}});
}

/// "kind" offers "a", and "b" too when "side" is "2".
QVariantMap dependent()
{
    const QVariantList both = form::options({{"A", "a"}, {"B", "b"}});
    return form::joined(
        form::record("kind", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_STRING,
                     {{Constants::STRATEGYPARAM_OPTIONS, form::options({{"A", "a"}})}}),
        form::link("side", {form::linkCase("2", {{Constants::STRATEGYPARAM_OPTIONS, both}})}));
}

QVariantMap securityRecord()
{
    return form::record(Security::symbol, Constants::WIDGETTYPE_ZRSEARCHBOX, Constants::VALUETYPE_STRING,
                        {{Constants::STRATEGYPARAM_OPTIONS, "Stock/Fund"}});
}

class Scene
{
public:
    explicit Scene(const QList<QVariantMap> &records, bool showsDescriptions = true)
        : table(records, showsDescriptions, &window)
    {
        window.resize(600, 300);
        table.view()->resize(600, 300);
        window.show();
        QApplication::setActiveWindow(&window);
    }
    template<typename Editor>
    Editor *editor(const QString &id) const
    {
        return qobject_cast<Editor *>(table.editors()->getSubWidgetMap().value(id));
    }
    QVariant stored(int row) const { return table.view()->index(row, 1).data(Qt::UserRole); }
    QVariant shown(int row) const { return table.view()->index(row, 1).data(Qt::DisplayRole); }

    QWidget window;
    ZrParamBasicTable table;
};
} // namespace

class TestParamBasicTable : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aRowForEachParameterWithItsEditor();
    void withoutDescriptionsThereAreTwoColumns();
    void editorsSurviveAResetOfTheRows();
    void theFocusSurvivesAResetOfTheRows();
    void aFitWidensTheColumnsAndKeepsTheEditors();
    void valuesReachRowsAndEditors();
    void aLinkedValueComesBeforeTheChoice();
    void aSecurityGivesWhatTheValuesLack();
    void anEditedValueReachesItsRowAlone();
    void whatDependsOnAnEditedValueIsRebuilt();
    void aPickedSecurityFillsAndEmptiesItsFields();
    void anUnknownEditorLeavesItsRowWithoutOne();

private:
    FormHost m_host;
};

void TestParamBasicTable::initTestCase()
{
    QVERIFY(m_host.isReady());
}

void TestParamBasicTable::aRowForEachParameterWithItsEditor()
{
    const QuietPlatform quiet;
    const Scene scene({line("b"), line("a")});
    ZrTableView *const view = scene.table.view();
    QCOMPARE(view->getRowCount(), 2);
    QCOMPARE(view->getKeyColumn(), QList<int>{0});
    const HeadList heads = view->getHeadList();
    QCOMPARE(heads.size(), 3);
    const QStringList texts = {"参数名", "参数值", "参数描述"};
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(heads.at(column).value(HEAD_DISPLAYROLE).toString(), texts.at(column));
        QCOMPARE(heads.at(column).value(HEAD_USERROLE), QVariant(column));
    }
    const RecordData row = view->getRowData(0);
    QCOMPARE(row.value(0).value(ITEM_DISPLAYROLE), QVariant("b name"));
    QCOMPARE(row.value(0).value(ITEM_USERROLE), QVariant("b"));
    QCOMPARE(row.value(2).value(ITEM_DISPLAYROLE), QVariant("b text"));
    QCOMPARE(row.value(2).value(ITEM_USERROLE), QVariant("b text"));
    QCOMPARE(view->indexWidget(0, 1), scene.editor<QWidget>("b"));
    QCOMPARE(view->indexWidget(1, 1), scene.editor<QWidget>("a"));
    QVERIFY(scene.editor<QLineEdit>("a")->isVisible());
    const int left = int(Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(view->index(0, 0).data(Qt::TextAlignmentRole).toInt(), left);
    QCOMPARE(view->index(0, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
    QCOMPARE(view->index(0, 2).data(Qt::TextAlignmentRole).toInt(), left);
}

void TestParamBasicTable::withoutDescriptionsThereAreTwoColumns()
{
    const QuietPlatform quiet;
    const Scene scene({line("a")}, false);
    QCOMPARE(scene.table.view()->getHeadList().size(), 2);
    QVERIFY(!scene.table.view()->getRowData(0).contains(2));
}

void TestParamBasicTable::editorsSurviveAResetOfTheRows()
{
    const QuietPlatform quiet;
    Scene scene({line("a"), line("b")});
    const QPointer<QLineEdit> a = scene.editor<QLineEdit>("a");
    const QPointer<QLineEdit> b = scene.editor<QLineEdit>("b");
    a->setText("typed");
    ZrTableView *const view = scene.table.view();
    RecordDataList rows = view->getViewData();
    std::swap(rows[0], rows[1]);
    view->updateRecordDataList(rows);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(a && b);
    QCOMPARE(view->indexWidget(0, 1), b.data());
    QCOMPARE(view->indexWidget(1, 1), a.data());
    QCOMPARE(a->text(), QString("typed"));
    QVERIFY(a->isVisible());
    view->setColumnDefaultWidth(170);
    view->getZrTableModel()->update();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(a);
    QCOMPARE(view->indexWidget(1, 1), a.data());
}

void TestParamBasicTable::theFocusSurvivesAResetOfTheRows()
{
    const QuietPlatform quiet;
    Scene scene({line("a"), line("b")});
    auto *const editor = scene.editor<QLineEdit>("b");
    editor->setFocus();
    QVERIFY(editor->hasFocus());
    scene.table.view()->updateRecordDataList(scene.table.view()->getViewData());
    QVERIFY(editor->hasFocus());
    scene.table.fit(900);
    QVERIFY(editor->hasFocus());
}

void TestParamBasicTable::aFitWidensTheColumnsAndKeepsTheEditors()
{
    const QuietPlatform quiet;
    Scene scene({line("a")});
    ZrTableView *const view = scene.table.view();
    const int usualPx = view->getZrTableHorizontalHeader()->defaultSectionSize();
    scene.table.fit(3 * usualPx); // no wider than usual
    QCOMPARE(view->getZrTableHorizontalHeader()->defaultSectionSize(), usualPx);
    scene.table.fit(3 * usualPx + 30);
    QCOMPARE(view->getZrTableHorizontalHeader()->defaultSectionSize(), usualPx + 10);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(view->indexWidget(0, 1), scene.editor<QWidget>("a"));
    QVERIFY(scene.editor<QWidget>("a"));
}

void TestParamBasicTable::valuesReachRowsAndEditors()
{
    const QuietPlatform quiet;
    Scene scene(
        {line(Vexlor_Fields::UserAccount::SymbolPost), line("b", Constants::VALUETYPE_INT), line("c")});
    scene.table.fill({{Vexlor_Fields::UserAccount::SymbolPost, "SH"}, {"b", 7}, {"c", QVariant()}}, 3);
    QCOMPARE(scene.stored(0), QVariant("SH"));
    QCOMPARE(scene.shown(0), QVariant("Shanghai"));
    QCOMPARE(scene.stored(1), QVariant(7));
    QCOMPARE(scene.shown(1), QVariant("7"));
    QVERIFY(!scene.stored(2).isValid());
    QCOMPARE(scene.editor<QLineEdit>("b")->text(), QString("7"));
    QVERIFY(scene.editor<QLineEdit>("b")->isReadOnly());
    QVERIFY(!scene.editor<QLineEdit>("c")->isReadOnly());
}

void TestParamBasicTable::aLinkedValueComesBeforeTheChoice()
{
    const QuietPlatform quiet;
    Scene scene({dependent(), line("side")});
    scene.table.fill({{"kind", "b"}, {"side", "2"}}, 1);
    QCOMPARE(scene.editor<QComboBox>("kind")->count(), 2);
    QCOMPARE(scene.editor<QComboBox>("kind")->currentData().toString(), QString("b"));
}

void TestParamBasicTable::aSecurityGivesWhatTheValuesLack()
{
    const QuietPlatform quiet;
    Scene scene({securityRecord(), line(Security::chineseName), line("c")});
    scene.table.fill({{Security::symbol, "600001.SH"}}, 1);
    QCOMPARE(scene.stored(1), QVariant("north bank"));
    QCOMPARE(scene.editor<QLineEdit>(Security::chineseName)->text(), QString("north bank"));
    scene.table.fill({{Security::symbol, "600001.SH"}, {Security::chineseName, "mine"}}, 1);
    QCOMPARE(scene.stored(1), QVariant("mine"));
    QVERIFY(!scene.stored(2).isValid());
}

void TestParamBasicTable::anEditedValueReachesItsRowAlone()
{
    const QuietPlatform quiet;
    Scene scene({dependent(), line("b", Constants::VALUETYPE_INT)});
    scene.editor<QLineEdit>("b")->setText("12");
    scene.editor<QComboBox>("kind")->setCurrentIndex(0);
    scene.table.paramChanged("b", 1);
    QCOMPARE(scene.stored(1), QVariant(12));
    QCOMPARE(scene.shown(1), QVariant("12"));
    QVERIFY(!scene.stored(0).isValid());
    scene.table.paramChanged("kind", 1);
    QCOMPARE(scene.stored(0), QVariant("a"));
    QCOMPARE(scene.shown(0), QVariant("A"));
    scene.table.paramChanged("unknown", 1);
    QCOMPARE(scene.stored(1), QVariant(12));
}

void TestParamBasicTable::whatDependsOnAnEditedValueIsRebuilt()
{
    const QuietPlatform quiet;
    Scene scene({line("side"), dependent()});
    QCOMPARE(scene.editor<QComboBox>("kind")->count(), 1);
    scene.editor<QLineEdit>("side")->setText("2");
    scene.table.paramChanged("side", 1);
    QCOMPARE(scene.editor<QComboBox>("kind")->count(), 2);
    scene.editor<QLineEdit>("side")->setText("1");
    scene.table.paramChanged("side", 1);
    QCOMPARE(scene.editor<QComboBox>("kind")->count(), 1);
}

void TestParamBasicTable::aPickedSecurityFillsAndEmptiesItsFields()
{
    const QuietPlatform quiet;
    Scene scene({securityRecord(), line(Security::chineseName), line("c")});
    scene.editor<QLineEdit>("c")->setText("kept");
    scene.editor<ZrSearchBox>(Security::symbol)->setSymbol("600001.SH");
    scene.table.paramChanged(Security::symbol, 1);
    QCOMPARE(scene.stored(0), QVariant("600001.SH"));
    QCOMPARE(scene.editor<QLineEdit>(Security::chineseName)->text(), QString("north bank"));
    QCOMPARE(scene.shown(1), QVariant("north bank"));
    scene.editor<ZrSearchBox>(Security::symbol)->setSymbol(QString());
    scene.table.paramChanged(Security::symbol, 1);
    QCOMPARE(scene.editor<QLineEdit>(Security::chineseName)->text(), QString());
    QCOMPARE(scene.stored(1), QVariant(""));
    QCOMPARE(scene.editor<QLineEdit>("c")->text(), QString("kept"));
}

void TestParamBasicTable::anUnknownEditorLeavesItsRowWithoutOne()
{
    const QuietPlatform quiet;
    Scene scene({form::record("a", "slider", Constants::VALUETYPE_INT), line("b")});
    QCOMPARE(scene.table.view()->getRowCount(), 2);
    QVERIFY(!scene.table.view()->indexWidget(0, 1));
    scene.table.fill({{"a", 5}}, 1);
    QCOMPARE(scene.stored(0), QVariant(5));
    scene.table.paramChanged("a", 1);
    QVERIFY(!scene.stored(0).isValid());
}

ZR_TEST_MAIN(TestParamBasicTable)
#include "tst_zrparambasictable.moc"
