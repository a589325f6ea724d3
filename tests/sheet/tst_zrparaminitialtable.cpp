#include "SheetScene.h"

#include "ZrAlgoParamSettingHorizontalViewDeletage.h"
#include "ZrHeaderView.h"
#include "ZrParamInitialTable.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

namespace {
QVariantMap column(const QString &id, bool isKey = false, const QVariantMap &more = QVariantMap())
{
    return form::joined(form::record(id, Constants::WIDGETTYPE_LINEEDIT, Constants::VALUETYPE_STRING, more),
                        {{Constants::STRATEGYPARAM_KEY, isKey}});
}

QVariantMap entry(const QVariantList &columns, bool canBeEmpty = true)
{
    return {{Constants::STRATEGYPARAM_PARAMID, "v"},
            {Constants::STRATEGYPARAM_PARAMNAME, "view"},
            {Constants::STRATEGYPARAM_CANBEEMPTY, canBeEmpty},
            {Constants::STRATEGYPARAM_INITIALPARAMVIEWPARAMLIST, columns}};
}

class Scene
{
public:
    explicit Scene(const QVariantMap &entry)
        : table(entry, nullptr, &window)
    {
        window.resize(800, 300);
        table.view()->resize(800, 300);
    }
    QString stored(int row, int column) const
    {
        return table.view()->index(row, column).data(Qt::UserRole).toString();
    }
    void write(int row, int column, const QString &value)
    {
        const QModelIndex index = table.view()->index(row, column);
        table.view()->getZrTableModel()->setData(index, value, Qt::DisplayRole);
        table.view()->getZrTableModel()->setData(index, value, Qt::UserRole);
    }
    QStringList keys() const
    {
        QStringList list;
        for (const RecordData &row : table.view()->getViewData())
            list.append(row.value(0).value(ITEM_USERROLE).toString());
        return list;
    }

    QWidget window;
    ZrParamInitialTable table;
};
} // namespace

class TestParamInitialTable : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void aNewTableHasItsHeadsAndABlankRow();
    void thereIsOneBlankRowAtTheMost();
    void aFilledTableEndsInABlankRow();
    void rowsComeBackAsTheyWereFilledIn();
    void aDroppedBlankRowIsCleared();
    void aDroppedFilledRowIsGone();
    void aRowBelowADroppedOneIsStillFound();
    void aHalfBlankRowIsClearedToo();
    void aFaultIsThatOfTheFirstRow();
    void columnsAreFittedWhenThereIsRoom();

private:
    FormHost m_host;
};

void TestParamInitialTable::initTestCase()
{
    QVERIFY(m_host.isReady());
}

void TestParamInitialTable::aNewTableHasItsHeadsAndABlankRow()
{
    const Scene scene(entry({column("a", true), column("b"), column("c", true)}));
    ZrTableView *const view = scene.table.view();
    const HeadList heads = view->getHeadList();
    QCOMPARE(heads.size(), 4);
    QCOMPARE(heads.at(1).value(HEAD_DISPLAYROLE), QVariant("b name"));
    QCOMPARE(heads.at(1).value(HEAD_USERROLE), QVariant("b"));
    QVERIFY(heads.at(3).value(HEAD_DISPLAYROLE).toString().isEmpty());
    QVERIFY(heads.at(3).value(HEAD_USERROLE).toString().isEmpty());
    QCOMPARE(view->getKeyColumn(), (QList<int>{0, 2}));
    QCOMPARE(view->getRowCount(), 1);
    QCOMPARE(scene.stored(0, 0), QString(" "));
    QCOMPARE(scene.stored(0, 2), QString(" "));
    QVERIFY(!view->getRowData(0).contains(1));
    QVERIFY(scene.table.isActionColumn(view->index(0, 3)));
    QVERIFY(!scene.table.isActionColumn(view->index(0, 2)));
    QVERIFY(scene.table.rows().isEmpty());
}

void TestParamInitialTable::thereIsOneBlankRowAtTheMost()
{
    Scene scene(entry({column("a", true), column("b")}));
    scene.table.addEmptyRow();
    QCOMPARE(scene.keys(), QStringList(" "));
}

void TestParamInitialTable::aFilledTableEndsInABlankRow()
{
    Scene scene(entry({column("a", true), column("b")}));
    scene.table.fill({{{"a", "1"}, {"b", "x"}}, {{"a", "2"}}});
    QCOMPARE(scene.keys(), (QStringList{"1", "2", " "}));
    scene.table.fill({});
    QCOMPARE(scene.keys(), QStringList(" "));
}

void TestParamInitialTable::rowsComeBackAsTheyWereFilledIn()
{
    Scene scene(entry({column("a", true), column("b")}));
    const QList<QVariantMap> rows = {{{"a", "1"}, {"b", "x"}}, {{"a", "2"}, {"b", ""}}};
    scene.table.fill(rows);
    QCOMPARE(scene.table.rows(), rows);
}

void TestParamInitialTable::aDroppedBlankRowIsCleared()
{
    Scene scene(entry({column("a", true), column("b")}));
    scene.write(0, 1, "typed");
    scene.table.dropRow(0);
    QCOMPARE(scene.keys(), QStringList(" "));
    QCOMPARE(scene.table.view()->index(0, 1).data(Qt::DisplayRole).toString(), QString());
}

void TestParamInitialTable::aDroppedFilledRowIsGone()
{
    Scene scene(entry({column("a", true), column("b")}));
    scene.table.fill({{{"a", "1"}}, {{"a", "2"}}});
    scene.table.dropRow(0);
    QCOMPARE(scene.keys(), (QStringList{"2", " "}));
}

void TestParamInitialTable::aRowBelowADroppedOneIsStillFound()
{
    Scene scene(entry({column("a", true), column("b")}));
    scene.table.fill({{{"a", "1"}}, {{"a", "2"}}, {{"a", "3"}}});
    scene.table.dropRow(1);
    QCOMPARE(scene.table.view()->getRowByKey("3"), 1);
    scene.write(2, 1, "typed");
    scene.table.dropRow(2); // the blank one, found by its key
    QCOMPARE(scene.keys(), (QStringList{"1", "3", " "}));
    QCOMPARE(scene.table.view()->index(2, 1).data(Qt::DisplayRole).toString(), QString());
    scene.table.addEmptyRow();
    QCOMPARE(scene.keys().size(), 3);
}

void TestParamInitialTable::aHalfBlankRowIsClearedToo()
{
    Scene scene(entry({column("a", true), column("b", true)}));
    scene.write(0, 0, "1");
    QVERIFY(scene.table.rows().isEmpty());
    scene.table.dropRow(0);
    QCOMPARE(scene.keys(), QStringList(" "));
    QCOMPARE(scene.stored(0, 1), QString(" "));
}

void TestParamInitialTable::aFaultIsThatOfTheFirstRow()
{
    const QVariantMap most = {{Constants::STRATEGYPARAM_MAXVALUE, 100}};
    const Scene scene(entry({column("a", true), column("b", false, most)}, false));
    QCOMPARE(scene.table.fault({}), QString("view不可为空！ "));
    QCOMPARE(scene.table.fault({{{"a", "1"}, {"b", "100"}}}), QString());
    QCOMPARE(scene.table.fault({{{"a", "1"}, {"b", "5"}}, {{"a", "2"}, {"b", "101"}}}),
             QString("b name不可大于100"));
    const Scene free(entry({column("a", true)}, true));
    QCOMPARE(free.table.fault({}), QString());
}

void TestParamInitialTable::columnsAreFittedWhenThereIsRoom()
{
    Scene scene(entry({column("a", true), column("b")}));
    ZrHeaderView *const header = scene.table.view()->getZrTableHorizontalHeader();
    const int usualPx = header->defaultSectionSize();
    scene.table.fit(3 * usualPx);
    QCOMPARE(header->defaultSectionSize(), usualPx);
    scene.table.view()->resize(3 * usualPx, 300);
    scene.table.fit(3 * usualPx + 30);
    QCOMPARE(header->defaultSectionSize(), usualPx);
    scene.table.view()->resize(3 * usualPx + 30, 300);
    scene.table.fit(3 * usualPx + 30);
    QCOMPARE(header->defaultSectionSize(), usualPx + 10);
}

ZR_TEST_MAIN(TestParamInitialTable)
#include "tst_zrparaminitialtable.moc"
