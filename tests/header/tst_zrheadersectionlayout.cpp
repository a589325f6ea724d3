#include "ZrHeaderSectionLayout.h"
#include "ZrTestMain.h"

class tst_ZrHeaderSectionLayout : public QObject
{
    Q_OBJECT
private slots:
    void theLabelGivesUpRoom_data();
    void theLabelGivesUpRoom();
    void aPlainSectionHasItsPartsAtFullHeight();
    void aGroupedSectionHasItsPartsInTheBottomBand();
    void anOddHeightLeavesOnePixelFree();
    void theButtonHasItsOwnSize();
    void theCheckBoxIsCentredAndFurtherRightInATree();
    void aLayoutCanBePrinted();
};

void tst_ZrHeaderSectionLayout::theLabelGivesUpRoom_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<bool>("filterable");
    QTest::addColumn<bool>("tip");
    QTest::addColumn<QRect>("expected"); // section 50, 5, 100 x 30

    QTest::newRow("nothing") << 0 << false << false << QRect(50, 5, 100, 30);
    QTest::newRow("margin") << 4 << false << false << QRect(54, 5, 92, 30);
    QTest::newRow("filter") << 0 << true << false << QRect(50, 5, 84, 30);
    QTest::newRow("tip") << 0 << false << true << QRect(50, 5, 84, 30);
    QTest::newRow("both") << 0 << true << true << QRect(50, 5, 68, 30);
    QTest::newRow("filter gives the margin back") << 4 << true << false << QRect(54, 5, 80, 30);
    QTest::newRow("both give it back once") << 4 << true << true << QRect(54, 5, 64, 30);
}

void tst_ZrHeaderSectionLayout::theLabelGivesUpRoom()
{
    QFETCH(int, margin);
    QFETCH(bool, filterable);
    QFETCH(bool, tip);
    ZrHeaderSectionLayout::Input input;
    input.section = QRect(50, 5, 100, 30);
    input.xMarginPx = margin;
    input.filterable = filterable;
    input.hasTip = tip;
    QTEST(ZrHeaderSectionLayout(input).label, "expected");
}

void tst_ZrHeaderSectionLayout::aPlainSectionHasItsPartsAtFullHeight()
{
    ZrHeaderSectionLayout::Input input;
    input.section = QRect(50, 5, 100, 30);
    input.hasTip = true;
    const ZrHeaderSectionLayout layout(input);
    QVERIFY(layout.topBand.isNull());
    QVERIFY(layout.groupName.isNull());
    QCOMPARE(layout.bottomBand, input.section);
    QCOMPARE(layout.filterButton, QRect(133, 5, 16, 30)); // 149 is the section's right pixel
    QCOMPARE(layout.filterPicture, QRect(133, 12, 16, 16));
    QCOMPARE(layout.tip, QRect(133, 12, 16, 16)); // the label's right pixel is 133
}

void tst_ZrHeaderSectionLayout::aGroupedSectionHasItsPartsInTheBottomBand()
{
    ZrHeaderSectionLayout::Input input;
    input.section = QRect(100, 0, 100, 40);
    input.groupBand = QRect(0, 0, 300, 20);
    input.xMarginPx = 4;
    input.filterable = true;
    const ZrHeaderSectionLayout layout(input);
    QCOMPARE(layout.topBand, QRect(0, 0, 300, 20));
    QCOMPARE(layout.groupName, QRect(4, 0, 292, 20));
    QCOMPARE(layout.bottomBand, QRect(100, 20, 100, 20));
    QCOMPARE(layout.label, QRect(104, 20, 80, 20));
    QCOMPARE(layout.filterButton, QRect(183, 20, 16, 20));
    // Not across the band line: the picture lies where a press meets the button.
    QCOMPARE(layout.filterPicture, QRect(183, 22, 16, 16));
    QVERIFY(layout.filterButton.contains(layout.filterPicture));
}

void tst_ZrHeaderSectionLayout::anOddHeightLeavesOnePixelFree()
{
    ZrHeaderSectionLayout::Input input;
    input.section = QRect(0, 0, 100, 41);
    input.groupBand = QRect(0, 0, 100, 20);
    QCOMPARE(ZrHeaderSectionLayout(input).bottomBand, QRect(0, 20, 100, 20));
}

void tst_ZrHeaderSectionLayout::theButtonHasItsOwnSize()
{
    ZrHeaderSectionLayout::Input input;
    input.section = QRect(0, 0, 100, 30);
    input.filterButtonPx = 12;
    input.filterable = true;
    const ZrHeaderSectionLayout layout(input);
    QCOMPARE(layout.filterButton, QRect(87, 0, 12, 30));
    QCOMPARE(layout.filterPicture, QRect(87, 9, 12, 12));
    QCOMPARE(layout.label.width(), 84); // the label's room doesn't follow the size
}

void tst_ZrHeaderSectionLayout::theCheckBoxIsCentredAndFurtherRightInATree()
{
    const QRect section(10, 0, 31, 40);
    QCOMPARE(ZrHeaderSectionLayout::tableCheckBox(section), QRect(17, 12, 16, 16));
    QCOMPARE(ZrHeaderSectionLayout::treeCheckBox(section), QRect(32, 12, 16, 16));
}

void tst_ZrHeaderSectionLayout::aLayoutCanBePrinted()
{
    ZrHeaderSectionLayout::Input input;
    input.section = QRect(1, 2, 100, 30);
    QString text;
    QDebug(&text) << ZrHeaderSectionLayout(input);
    QVERIFY2(text.contains("label QRect(1,2 100x30)"), qPrintable(text));
}

ZR_TEST_MAIN(tst_ZrHeaderSectionLayout)
#include "tst_zrheadersectionlayout.moc"
