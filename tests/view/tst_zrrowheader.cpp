#include "ZrRowHeader.h"
#include "ZrTestMain.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QTableView>

namespace {

/// A table with the head under test beside one with the toolkit's own, over one model.
struct Tables
{
    explicit Tables(int rows)
        : model(rows, 1)
    {
        ours.setVerticalHeader(new ZrRowHeader(&ours));
        for (QTableView *table : {&ours, &plain}) {
            table->setModel(&model);
            table->verticalHeader()->setMinimumSectionSize(1); // the style's own one follows the font
            table->verticalHeader()->setDefaultSectionSize(20);
        }
    }

    void append() { model.appendRow(new QStandardItem); }

    /// The first row whose place differs between the two; -1 when all agree.
    int firstDifference() const
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (ours.rowViewportPosition(row) != plain.rowViewportPosition(row) ||
                ours.rowHeight(row) != plain.rowHeight(row))
                return row;
        }
        return -1;
    }

    QStandardItemModel model;
    QTableView ours;
    QTableView plain;
};

} // namespace

class tst_ZrRowHeader : public QObject
{
    Q_OBJECT
private slots:
    void aRowThatComesForOneThatGoesMovesNothing();
    void owedRowsGoWhenTheLoopTurns();
    void newRowsAreThereAtOnce();
    void aStreamLaysTheTableOut();
    void aRowKeepsItsOwnHeightWhenRowsBeforeItGo();
    void anOwnHeightSettlesWhatIsOwed();
    void hiddenRowsMoveWithTheirRow();
    void aResetAndAnotherModelCountAnew();
    void theSameModelAgainChangesNothing();
    void rowsBelowAnotherRowAreNotOurs();
    void everySequenceEndsAtThePlacesOfThePlainHead();
};

void tst_ZrRowHeader::aRowThatComesForOneThatGoesMovesNothing()
{
    Tables tables(1000);
    tables.model.removeRow(0);
    tables.append();
    QCOMPARE(tables.ours.verticalHeader()->count(), 1000);
    QCOMPARE(tables.firstDifference(), -1);
    QCoreApplication::processEvents();
    QCOMPARE(tables.ours.verticalHeader()->count(), 1000);
    QCOMPARE(tables.firstDifference(), -1);
}

void tst_ZrRowHeader::owedRowsGoWhenTheLoopTurns()
{
    Tables tables(10);
    tables.model.removeRows(2, 3);
    QVERIFY(tables.ours.verticalHeader()->count() >= 7);
    QTRY_COMPARE(tables.ours.verticalHeader()->count(), 7);
    QCOMPARE(tables.ours.verticalHeader()->length(), 140);
    QCOMPARE(tables.firstDifference(), -1);
}

void tst_ZrRowHeader::newRowsAreThereAtOnce()
{
    Tables tables(3);
    tables.model.removeRow(0);
    tables.append();
    tables.append();
    QCOMPARE(tables.ours.verticalHeader()->count(), 4);
    QCOMPARE(tables.ours.rowViewportPosition(3), 60);
}

void tst_ZrRowHeader::aStreamLaysTheTableOut()
{
    Tables tables(10);
    QSignalSpy spy(tables.ours.verticalHeader(), &QHeaderView::sectionCountChanged);
    tables.model.removeRow(0);
    QCOMPARE(spy.count(), 1);
    tables.append();
    QCOMPARE(spy.count(), 2);
}

void tst_ZrRowHeader::aRowKeepsItsOwnHeightWhenRowsBeforeItGo()
{
    Tables tables(10);
    tables.ours.setRowHeight(5, 44);
    tables.plain.setRowHeight(5, 44);
    tables.model.removeRow(0);
    tables.append();
    QCOMPARE(tables.ours.rowHeight(4), 44);
    QCOMPARE(tables.ours.rowHeight(5), 20);
    QCOMPARE(tables.firstDifference(), -1);
}

void tst_ZrRowHeader::anOwnHeightSettlesWhatIsOwed()
{
    Tables tables(10);
    tables.model.removeRows(0, 4);
    tables.ours.setRowHeight(3, 50);
    QCOMPARE(tables.ours.verticalHeader()->count(), 6);
    tables.model.removeRow(0);
    QCOMPARE(tables.ours.rowHeight(2), 50);
    QCoreApplication::processEvents();
    QCOMPARE(tables.ours.verticalHeader()->count(), 5);
}

void tst_ZrRowHeader::hiddenRowsMoveWithTheirRow()
{
    Tables tables(6);
    tables.ours.hideRow(3);
    tables.model.removeRow(0);
    QVERIFY(tables.ours.isRowHidden(2));
    QVERIFY(!tables.ours.isRowHidden(3));
}

void tst_ZrRowHeader::aResetAndAnotherModelCountAnew()
{
    Tables tables(6);
    tables.model.removeRow(0);
    tables.model.setRowCount(0);
    QTRY_COMPARE(tables.ours.verticalHeader()->count(), 0);
    QStandardItemModel other(4, 1);
    tables.ours.setModel(&other);
    QCOMPARE(tables.ours.verticalHeader()->count(), 4);
    tables.append();
    QCOMPARE(tables.ours.verticalHeader()->count(), 4);
    other.removeRow(0);
    QTRY_COMPARE(tables.ours.verticalHeader()->count(), 3);
    tables.ours.setModel(nullptr);
    QCOMPARE(tables.ours.verticalHeader()->count(), 0);
}

void tst_ZrRowHeader::theSameModelAgainChangesNothing()
{
    Tables tables(6);
    tables.ours.setRowHeight(2, 44);
    tables.ours.verticalHeader()->setModel(&tables.model);
    QCOMPARE(tables.ours.rowHeight(2), 44);
    // It still hears of all that happens, as the plain head does.
    tables.plain.setRowHeight(2, 44);
    for (int row = 0; row < 6; ++row)
        tables.model.setItem(row, 0, new QStandardItem(QString::number(row)));
    tables.model.sort(0, Qt::DescendingOrder);
    QCOMPARE(tables.ours.rowHeight(3), 44);
    QCOMPARE(tables.firstDifference(), -1);
    tables.append();
    QCOMPARE(tables.ours.verticalHeader()->count(), 7);
}

void tst_ZrRowHeader::rowsBelowAnotherRowAreNotOurs()
{
    Tables tables(3);
    tables.model.setItem(0, 0, new QStandardItem);
    tables.model.item(0)->appendRow(new QStandardItem);
    tables.model.item(0)->removeRow(0);
    QCoreApplication::processEvents();
    QCOMPARE(tables.ours.verticalHeader()->count(), 3);
}

void tst_ZrRowHeader::everySequenceEndsAtThePlacesOfThePlainHead()
{
    QRandomGenerator random(20);
    Tables tables(40);
    for (int step = 0; step < 3000; ++step) {
        const int rows = tables.model.rowCount();
        const int kind = random.bounded(10);
        if (kind < 4 && rows > 3)
            tables.model.removeRows(random.bounded(rows - 2), 1 + random.bounded(2));
        else if (kind < 9)
            tables.model.insertRow(random.bounded(rows + 1));
        else
            QCoreApplication::processEvents();
        QVERIFY2(tables.ours.verticalHeader()->count() >= tables.model.rowCount(),
                 qPrintable(QString::number(step)));
        QCOMPARE(tables.firstDifference(), -1);
    }
    QTRY_COMPARE(tables.ours.verticalHeader()->count(), tables.model.rowCount());
}

ZR_TEST_MAIN(tst_ZrRowHeader)
#include "tst_zrrowheader.moc"
