#include "ZrScrollCoupling.h"
#include "ZrTestMain.h"

#include <QtWidgets/QScrollBar>

class TestZrScrollCoupling : public QObject
{
    Q_OBJECT
private slots:
    void targetStandsAtTheSourcesPlaceInItsOwnRange_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("targetMinimum");
        QTest::addColumn<int>("targetMaximum");
        QTest::addColumn<int>("expected");
        QTest::newRow("same range") << 0 << 100 << 40 << 0 << 100 << 40;
        QTest::newRow("half range") << 0 << 100 << 40 << 0 << 50 << 20;
        QTest::newRow("integer division") << 0 << 3 << 1 << 0 << 100 << 33;
        QTest::newRow("shifted minima") << 10 << 20 << 15 << 100 << 200 << 150;
        QTest::newRow("start") << 10 << 20 << 10 << 5 << 9 << 5;
        QTest::newRow("end") << 10 << 20 << 20 << 5 << 9 << 9;
        QTest::newRow("product beyond an int") << 0 << 2000000 << 1000000 << 0 << 40000000 << 20000000;
        QTest::newRow("source without a range") << 7 << 7 << 7 << 0 << 100 << 55;
    }

    void targetStandsAtTheSourcesPlaceInItsOwnRange()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, value);
        QFETCH(int, targetMinimum);
        QFETCH(int, targetMaximum);
        QFETCH(int, expected);
        QScrollBar source;
        source.setRange(minimum, maximum);
        QScrollBar target;
        target.setRange(targetMinimum, targetMaximum);
        target.setValue(55);
        ZrScrollCoupling::apply(value, &source, &target);
        QCOMPARE(target.value(), expected);
    }

    void aMissingBarMovesNothing()
    {
        QScrollBar bar;
        ZrScrollCoupling::apply(5, nullptr, &bar);
        ZrScrollCoupling::apply(5, &bar, nullptr);
        QCOMPARE(bar.value(), 0);
    }

    void coupledBarsShowTheSameValueBothWays()
    {
        QScrollBar first;
        QScrollBar second;
        ZrScrollCoupling::coupleValues(&first, &second);
        first.setValue(30);
        QCOMPARE(second.value(), 30);
        second.setValue(12);
        QCOMPARE(first.value(), 12);
    }
};

ZR_TEST_MAIN(TestZrScrollCoupling)
#include "tst_zrscrollcoupling.moc"
