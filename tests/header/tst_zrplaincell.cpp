#include "ZrItemModelDeletage.h"
#include "ZrPlainCell.h"
#include "ZrTableModel.h"
#include "ZrTestMain.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QPixmap>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOptionViewItem>
#include <QtWidgets/QTableView>

namespace {

/// Both ways to fill an option, side by side.
class OpenDelegate : public ZrItemModelDeletage
{
public:
    QStyleOptionViewItem filled(const QModelIndex &index) const
    {
        QStyleOptionViewItem option;
        initStyleOption(&option, index);
        return option;
    }

    QStyleOptionViewItem filledByToolkit(const QModelIndex &index) const
    {
        QStyleOptionViewItem option;
        QStyledItemDelegate::initStyleOption(&option, index);
        return option;
    }
};

/// Answers otherwise than its base.
class ShoutingModel : public ZrTableModel
{
public:
    using ZrTableModel::ZrTableModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant("LOUD") : ZrTableModel::data(index, role);
    }
};

void fill(ZrTableModel *model, const ItemRoleMap &cell)
{
    model->setKeyColumn({0});
    model->setHeaderData({{{"Head_ColumnIndex", 0}}, {{"Head_ColumnIndex", 1}}, {{"Head_ColumnIndex", 2}}});
    model->addRecordData({{0, {{"256", "key"}}}, {1, cell}});
}

} // namespace

class tst_ZrPlainCell : public QObject
{
    Q_OBJECT
private slots:
    void anOptionIsWhatTheToolkitWouldFill_data();
    void anOptionIsWhatTheToolkitWouldFill();
    void onlyTheTablesOwnModelIsRead();
    void outsideTheRowsThereIsNoCell();
    void theCheckColumnIsNoPlainCell();
};

void tst_ZrPlainCell::anOptionIsWhatTheToolkitWouldFill_data()
{
    QTest::addColumn<ItemRoleMap>("cell");
    QTest::addColumn<bool>("plain");
    QTest::newRow("text") << ItemRoleMap{{"0", "12.50"}} << true;
    QTest::newRow("text and raw value") << ItemRoleMap{{"0", "12.50"}, {"256", 12.5}} << true;
    QTest::newRow("number shown") << ItemRoleMap{{"0", 1234567.25}} << true;
    QTest::newRow("raw value alone") << ItemRoleMap{{"256", 12.5}} << true;
    QTest::newRow("no roles") << ItemRoleMap{} << true;
    QTest::newRow("null text") << ItemRoleMap{{"0", QString()}} << true;
    QTest::newRow("empty text") << ItemRoleMap{{"0", QString("")}} << true;
    QTest::newRow("tip") << ItemRoleMap{{"0", "x"}, {"3", "tip"}} << true;
    QTest::newRow("a role of the caller") << ItemRoleMap{{"0", "x"}, {"4711", 1}} << true;
    QTest::newRow("colour") << ItemRoleMap{{"0", "x"}, {"9", QBrush(Qt::red)}} << false;
    QTest::newRow("background") << ItemRoleMap{{"0", "x"}, {"8", QBrush(Qt::blue)}} << false;
    QTest::newRow("font") << ItemRoleMap{{"0", "x"}, {"6", QFont("Sans", 31)}} << false;
    QTest::newRow("picture") << ItemRoleMap{{"0", "x"}, {"1", QPixmap(3, 3)}} << false;
    QTest::newRow("check state") << ItemRoleMap{{"0", "x"}, {"10", 2}} << false;
    QTest::newRow("size") << ItemRoleMap{{"0", "x"}, {"13", QSize(9, 9)}} << false;
}

void tst_ZrPlainCell::anOptionIsWhatTheToolkitWouldFill()
{
    QFETCH(ItemRoleMap, cell);
    QFETCH(bool, plain);
    QTableView owner; // whose head the columns are told to
    ZrTableModel model(&owner);
    fill(&model, cell);
    model.setColumnTextAlignment(1, int(Qt::AlignRight | Qt::AlignVCenter));
    OpenDelegate delegate;
    for (int column = 0; column < 3; ++column) {
        const QModelIndex index = model.index(0, column);
        QCOMPARE(ZrPlainCell().read(index), plain || column != 1);
        const QStyleOptionViewItem own = delegate.filled(index);
        const QStyleOptionViewItem base = delegate.filledByToolkit(index);
        QCOMPARE(own.text, base.text);
        QCOMPARE(own.features, base.features);
        QCOMPARE(own.displayAlignment, base.displayAlignment);
        QCOMPARE(own.backgroundBrush, base.backgroundBrush);
        QCOMPARE(own.font, base.font);
        QCOMPARE(own.palette, base.palette);
        QCOMPARE(own.checkState, base.checkState);
        QCOMPARE(own.decorationSize, base.decorationSize);
        QCOMPARE(own.styleObject, base.styleObject);
        QCOMPARE(own.index, base.index);
    }
}

void tst_ZrPlainCell::onlyTheTablesOwnModelIsRead()
{
    QTableView owner; // whose head the columns are told to
    ShoutingModel shouting(&owner);
    fill(&shouting, {{"0", "quiet"}});
    QVERIFY(!ZrPlainCell().read(shouting.index(0, 1)));
    QCOMPARE(OpenDelegate().filled(shouting.index(0, 1)).text, QString("LOUD"));

    ZrTableModel model(&owner);
    fill(&model, {{"0", "quiet"}});
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    QVERIFY(!ZrPlainCell().read(proxy.index(0, 1)));
    QCOMPARE(OpenDelegate().filled(proxy.index(0, 1)).text, QString("quiet"));
}

void tst_ZrPlainCell::outsideTheRowsThereIsNoCell()
{
    QTableView owner; // whose head the columns are told to
    ZrTableModel model(&owner);
    fill(&model, {{"0", "x"}});
    QVERIFY(!ZrPlainCell().read(QModelIndex()));
    const QModelIndex stale = model.index(0, 1);
    model.deleteRow(0);
    QVERIFY(!ZrPlainCell().read(stale));
}

void tst_ZrPlainCell::theCheckColumnIsNoPlainCell()
{
    QTableView owner; // whose head the columns are told to
    ZrTableModel model(&owner);
    fill(&model, {{"0", "x"}});
    model.setCheckBoxShow(true);
    QVERIFY(!ZrPlainCell().read(model.index(0, 0)));
    QVERIFY(ZrPlainCell().read(model.index(0, 2)));
}

ZR_TEST_MAIN(tst_ZrPlainCell)
#include "tst_zrplaincell.moc"
