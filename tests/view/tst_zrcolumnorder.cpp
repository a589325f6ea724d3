#include "ZrColumnOrder.h"
#include "ZrTestMain.h"
#include "ZrViewTestKit.h"

#include <QtGui/QStandardItemModel>

namespace {

HeadList numbered(const QList<int> &numbers)
{
    HeadList list;
    for (const int number : numbers)
        list.append({{HEAD_COLUMNINDEX, number}});
    return list;
}

QList<int> shown(const QHeaderView &head)
{
    QList<int> sections;
    for (int visual = 0; visual < head.count(); ++visual)
        sections.append(head.logicalIndex(visual));
    return sections;
}

} // namespace

class TestZrColumnOrder : public QObject
{
    Q_OBJECT
private slots:
    void textIsReadAndWritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("nothing") << QString() << QList<int>();
        QTest::newRow("numbers") << QStringLiteral("2,0,11") << QList<int>{2, 0, 11};
        QTest::newRow("empty parts") << QStringLiteral(",2,,0,") << QList<int>{2, 0};
        QTest::newRow("no numbers") << QStringLiteral("a,b") << QList<int>{0, 0};
    }

    void textIsReadAndWritten()
    {
        QFETCH(QString, text);
        QFETCH(QList<int>, expected);
        QCOMPARE(ZrColumnOrder::fromText(text), expected);
        QCOMPARE(ZrColumnOrder::fromText(ZrColumnOrder::toText(expected)), expected);
    }

    void wantedNumbersBecomeHeadIndexes_data()
    {
        QTest::addColumn<QList<int>>("wanted");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("reversed") << QList<int>{30, 20, 10} << QList<int>{2, 1, 0};
        QTest::newRow("one too few") << QList<int>{30, 20} << QList<int>{0, 1, 2};
        QTest::newRow("one too many") << QList<int>{30, 20, 10, 40} << QList<int>{0, 1, 2};
        QTest::newRow("a column that is gone") << QList<int>{30, 20, 99} << QList<int>{0, 1, 2};
        QTest::newRow("a column named twice") << QList<int>{30, 30, 10} << QList<int>{0, 1, 2};
        QTest::newRow("nothing") << QList<int>() << QList<int>{0, 1, 2};
    }

    void wantedNumbersBecomeHeadIndexes()
    {
        QFETCH(QList<int>, wanted);
        QFETCH(QList<int>, expected);
        QCOMPARE(ZrColumnOrder::toVisual(wanted, numbered({10, 20, 30})), expected);
    }

    void visualOrderNamesLogicalNumbersAndLeavesOutStrangers()
    {
        QCOMPARE(ZrColumnOrder::toLogical({2, 0, 7, -1}, numbered({10, 20, 30})), (QList<int>{30, 10}));
    }

    void applyingMovesSectionsBehindTheOffset_data()
    {
        QTest::addColumn<QList<int>>("before");
        QTest::addColumn<QList<int>>("order");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("fresh head") << QList<int>{} << QList<int>{2, 0, 1} << 0 << QList<int>{2, 0, 1, 3};
        QTest::newRow("behind a check box")
            << QList<int>{} << QList<int>{2, 0, 1} << 1 << QList<int>{0, 3, 1, 2};
        QTest::newRow("head ordered before")
            << QList<int>{3, 2, 1, 0} << QList<int>{1, 0, 3, 2} << 0 << QList<int>{1, 0, 3, 2};
        QTest::newRow("twice the same")
            << QList<int>{1, 0, 2, 3} << QList<int>{1, 0, 2, 3} << 0 << QList<int>{1, 0, 2, 3};
        QTest::newRow("order longer than the head")
            << QList<int>{} << QList<int>{3, 9, 2, 1, 0, 8} << 0 << QList<int>{3, 0, 2, 1};
        QTest::newRow("no order") << QList<int>{} << QList<int>{} << 0 << QList<int>{0, 1, 2, 3};
    }

    void applyingMovesSectionsBehindTheOffset()
    {
        QFETCH(QList<int>, before);
        QFETCH(QList<int>, order);
        QFETCH(int, offset);
        QFETCH(QList<int>, expected);
        QStandardItemModel model(1, 4);
        QHeaderView head(Qt::Horizontal);
        head.setModel(&model);
        ZrColumnOrder::apply(before, 0, &head);
        ZrColumnOrder::apply(order, offset, &head);
        QCOMPARE(shown(head), expected);
    }
};

ZR_TEST_MAIN(TestZrColumnOrder)
#include "tst_zrcolumnorder.moc"
