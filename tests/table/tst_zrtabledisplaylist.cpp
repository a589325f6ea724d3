#include "ZrTableDisplayList.h"
#include "ZrTestMain.h"

#include <random>

class TestTableDisplayList : public QObject
{
    Q_OBJECT

private slots:
    void positionsAndRowsStayThoseOfPlainMarks()
    {
        std::mt19937 random(5);
        ZrTableDisplayList list;
        QVector<bool> marks(700);
        for (bool &mark : marks)
            mark = random() % 3 == 0;
        list.assign(marks);
        for (int step = 0; step < 6000; ++step) {
            const int row = marks.isEmpty() ? 0 : int(random() % unsigned(marks.size()));
            const bool shown = random() % 2 == 0;
            switch (random() % 6) {
            case 0:
            case 1:
                list.appendRow(shown);
                marks.append(shown);
                break;
            case 2:
                list.dropFront(1);
                marks.removeFirst();
                break;
            case 3:
                list.insertRow(row, shown);
                marks.insert(row, shown);
                break;
            case 4:
                list.removeRow(row);
                marks.removeAt(row);
                break;
            default:
                list.setShown(row, shown);
                marks[row] = shown;
                break;
            }
            QCOMPARE(list.size(), marks.count(true));
            QCOMPARE(list.rowCount(), marks.size());
            const int probe = int(random() % unsigned(marks.size()));
            QCOMPARE(list.isShown(probe), marks.at(probe));
            QCOMPARE(list.positionAt(probe), marks.mid(0, probe).count(true));
            if (marks.at(probe))
                QCOMPARE(list.rowAt(list.positionOf(probe)), probe);
            if (step % 500 == 0)
                QCOMPARE(list.invariantError(), QString());
        }
        QCOMPARE(list.invariantError(), QString());
    }

    // A grid at its row limit: each row that comes sends the oldest one away.
    void aWindowThatSlidesForEverStaysRight()
    {
        constexpr int rows = 100;
        const auto isShownNumber = [](int number) { return number % 3 == 0 || number % 7 == 0; };
        QVector<bool> marks;
        for (int number = 0; number < rows; ++number)
            marks.append(isShownNumber(number));
        ZrTableDisplayList list;
        list.assign(marks);
        for (int number = rows; number < 20000; ++number) {
            list.dropFront(1);
            list.appendRow(isShownNumber(number));
            marks.removeFirst();
            marks.append(isShownNumber(number));
            QCOMPARE(list.rowCount(), rows);
            QCOMPARE(list.size(), marks.count(true));
            const int last = marks.lastIndexOf(true);
            QCOMPARE(list.rowAt(0), marks.indexOf(true));
            QCOMPARE(list.rowAt(list.size() - 1), last);
            QCOMPARE(list.positionOf(last), list.size() - 1);
        }
        QCOMPARE(list.invariantError(), QString());
    }

    void rowsOutOfRangeAreNowhere()
    {
        ZrTableDisplayList list;
        list.assign({true, false});
        QCOMPARE(list.rowAt(-1), -1);
        QCOMPARE(list.rowAt(1), -1);
        QCOMPARE(list.positionOf(1), -1);
        QCOMPARE(list.positionOf(2), -1);
        list.setShown(5, true);
        list.removeRow(-1);
        list.removeRow(2);
        QCOMPARE(list.size(), 1);
        list.clear();
        QCOMPARE(list.size(), 0);
    }

    void theRowReadLastIsForgottenWhenRowsLeaveInFront()
    {
        ZrTableDisplayList list;
        list.assign({false, true});
        QCOMPARE(list.rowAt(0), 1);
        list.dropFront(1);
        QCOMPARE(list.rowAt(0), 0);
    }

    void plainKeysAreScannedFromTheFront()
    {
        ZrTableDisplayList list;
        list.assignKeys({"a", "b", "a"});
        QVERIFY(!list.isOrdered());
        QCOMPARE(list.indexOf("a"), 0);
        list.removeAt(0);
        QCOMPARE(list.indexOf("a"), 1);
        list.insertKey(99, "z");
        list.insertKey(-1, "y");
        list.appendKey("end");
        QCOMPARE(list.keys(), QList<QString>({"y", "b", "a", "z", "end"}));
        QCOMPARE(list.keyAt(9), QString());
        list.removeAt(-1);
        list.removeAt(9);
        QCOMPARE(list.size(), 5);
        QCOMPARE(list.invariantError(), QString());
    }
};

ZR_TEST_GUILESS_MAIN(TestTableDisplayList)
#include "tst_zrtabledisplaylist.moc"
