#include "EditorScene.h"
#include "ZrButtonGroupWidget.h"
#include "ZrRadioButton.h"
#include "ZrTestMain.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

class tst_ZrButtonGroupWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void aNewRowIsEmpty();
    void anAddedButtonStandsInRowAndGroup();
    void oneButtonAtMostIsChecked();
    void arrowKeysMoveTheCheck();
    void clearingLeavesTheButtonsInTheRow();
    void addingAgainPutsTheButtonAtTheEnd();
    void noButtonIsIgnored();
    void anotherLayoutTakesNoButtons();
    void aDeletedButtonIsForgotten();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
};

void tst_ZrButtonGroupWidget::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_ZrButtonGroupWidget::cleanupTestCase()
{
    m_quiet.reset();
}

void tst_ZrButtonGroupWidget::aNewRowIsEmpty()
{
    const ZrButtonGroupWidget row;
    const auto *const layout = qobject_cast<QHBoxLayout *>(row.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), 5);
    QVERIFY(row.buttons().isEmpty());
    QCOMPARE(row.checkedButton(), nullptr);
}

void tst_ZrButtonGroupWidget::anAddedButtonStandsInRowAndGroup()
{
    ZrButtonGroupWidget row;
    auto *const buy = new ZrRadioButton("Buy");
    auto *const sell = new ZrRadioButton("Sell");
    row.addButton(buy);
    row.addButton(sell);
    QCOMPARE(row.buttons(), QList<QAbstractButton *>({buy, sell}));
    QCOMPARE(row.layout()->count(), 2);
    QCOMPARE(row.layout()->itemAt(0)->widget(), buy);
    QCOMPARE(row.layout()->itemAt(1)->widget(), sell);
    QCOMPARE(buy->parentWidget(), &row);
    QVERIFY(buy->group());
    QCOMPARE(buy->group()->id(buy), -2); // the first of those that number themselves
    QCOMPARE(buy->group()->id(sell), -3);
}

void tst_ZrButtonGroupWidget::oneButtonAtMostIsChecked()
{
    ZrButtonGroupWidget row;
    auto *const buy = new ZrRadioButton("Buy");
    auto *const sell = new ZrRadioButton("Sell");
    row.addButton(buy);
    row.addButton(sell);
    QCOMPARE(row.checkedButton(), nullptr);
    buy->click();
    QCOMPARE(row.checkedButton(), buy);
    sell->click();
    QCOMPARE(row.checkedButton(), sell);
    QVERIFY(!buy->isChecked());
}

void tst_ZrButtonGroupWidget::arrowKeysMoveTheCheck()
{
    ZrButtonGroupWidget row;
    auto *const buy = new ZrRadioButton("Buy");
    auto *const sell = new ZrRadioButton("Sell");
    row.addButton(buy);
    row.addButton(sell);
    row.show();
    QApplication::setActiveWindow(&row);
    QVERIFY(QTest::qWaitForWindowActive(&row));
    buy->setFocus();
    buy->setChecked(true);
    QTest::keyClick(buy, Qt::Key_Right);
    QCOMPARE(row.checkedButton(), sell);
    QVERIFY(sell->hasFocus());
}

void tst_ZrButtonGroupWidget::clearingLeavesTheButtonsInTheRow()
{
    ZrButtonGroupWidget row;
    const QPointer<ZrRadioButton> buy = new ZrRadioButton("Buy");
    const QPointer<ZrRadioButton> sell = new ZrRadioButton("Sell");
    row.addButton(buy);
    row.addButton(sell);
    buy->setChecked(true);
    row.clear();
    QVERIFY(row.buttons().isEmpty());
    QCOMPARE(row.checkedButton(), nullptr);
    QVERIFY(buy && sell);
    QCOMPARE(buy->group(), nullptr);
    QVERIFY(buy->isChecked());
    QCOMPARE(row.layout()->count(), 2);
    row.clear();
    QCOMPARE(row.layout()->count(), 2);
}

// The layout holds a widget once: a second time means that it leaves its place for the end.
void tst_ZrButtonGroupWidget::addingAgainPutsTheButtonAtTheEnd()
{
    ZrButtonGroupWidget row;
    auto *const buy = new ZrRadioButton("Buy");
    auto *const sell = new ZrRadioButton("Sell");
    row.addButton(buy);
    row.addButton(sell);
    row.clear();
    row.addButton(buy);
    QCOMPARE(row.buttons(), QList<QAbstractButton *>({buy}));
    QCOMPARE(row.layout()->count(), 2);
    QCOMPARE(row.layout()->itemAt(0)->widget(), sell);
    QCOMPARE(row.layout()->itemAt(1)->widget(), buy);
}

void tst_ZrButtonGroupWidget::noButtonIsIgnored()
{
    ZrButtonGroupWidget row;
    row.addButton(nullptr);
    QVERIFY(row.buttons().isEmpty());
    QCOMPARE(row.layout()->count(), 0);
}

void tst_ZrButtonGroupWidget::anotherLayoutTakesNoButtons()
{
    ZrButtonGroupWidget row;
    delete row.layout();
    auto *const column = new QVBoxLayout(&row);
    ZrRadioButton buy("Buy");
    row.addButton(&buy);
    QCOMPARE(column->count(), 0);
    QCOMPARE(row.buttons(), QList<QAbstractButton *>({&buy}));
}

void tst_ZrButtonGroupWidget::aDeletedButtonIsForgotten()
{
    ZrButtonGroupWidget row;
    auto *const buy = new ZrRadioButton("Buy");
    row.addButton(buy);
    delete buy;
    QVERIFY(row.buttons().isEmpty());
    QCOMPARE(row.layout()->count(), 0);
}

ZR_TEST_MAIN(tst_ZrButtonGroupWidget)
#include "tst_zrbuttongroupwidget.moc"
