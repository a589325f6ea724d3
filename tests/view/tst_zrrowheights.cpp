#include "ZrRowHeights.h"
#include "ZrTestMain.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

class TestZrRowHeights : public QObject
{
    Q_OBJECT
private slots:
    void rowsOfTheirOwnHeightSurviveANewDefault()
    {
        QStandardItemModel model(5, 1);
        QTableView table;
        table.setModel(&model);
        QHeaderView *const head = table.verticalHeader();
        head->setMinimumSectionSize(1);
        head->setDefaultSectionSize(20);
        head->resizeSection(2, 55);
        const ZrRowHeights heights(head, 20);
        head->setDefaultSectionSize(33);
        heights.restore(head);
        QCOMPARE(head->sectionSize(1), 33);
        QCOMPARE(head->sectionSize(2), 55);
    }

    void rowsThatAreGoneAreLeftOut()
    {
        QStandardItemModel model(5, 1);
        QTableView table;
        table.setModel(&model);
        QHeaderView *const head = table.verticalHeader();
        head->setMinimumSectionSize(1);
        head->setDefaultSectionSize(20);
        head->resizeSection(4, 55);
        const ZrRowHeights heights(head, 20);
        model.setRowCount(2);
        heights.restore(head);
        QCOMPARE(head->sectionSize(1), 20);
        QCOMPARE(head->count(), 2);
    }

    void hiddenRowStaysHidden()
    {
        QStandardItemModel model(3, 1);
        QTableView table;
        table.setModel(&model);
        QHeaderView *const head = table.verticalHeader();
        head->setMinimumSectionSize(1);
        head->setDefaultSectionSize(20);
        table.setRowHidden(1, true);
        const ZrRowHeights heights(head, 20);
        head->setDefaultSectionSize(30);
        heights.restore(head);
        QVERIFY(table.isRowHidden(1));
        QCOMPARE(head->sectionSize(0), 30);
    }
};

ZR_TEST_MAIN(TestZrRowHeights)
#include "tst_zrrowheights.moc"
