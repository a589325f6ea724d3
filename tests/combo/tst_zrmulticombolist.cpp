#include "ComboScene.h"
#include "ZrMultiComboItem.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>

/// The popup's list: rows and their check boxes, which are shown only in sight.
class tst_ZrMultiComboList : public QObject
{
    Q_OBJECT
private slots:
    void everyRowHasItsCheckBoxFromTheStart()
    {
        ZrMultiComboList list;
        fill(&list, 500);
        QCOMPARE(list.findChildren<CheckBoxInMultiBox *>().size(), 500);
        for (int row = 0; row < 500; ++row) {
            CheckBoxInMultiBox *const box = list.boxAt(row);
            QVERIFY(box);
            QCOMPARE(list.itemWidget(list.item(row)), box);
            QCOMPARE(box->parentWidget(), list.viewport());
            QCOMPARE(box->text(), QStringLiteral("t%1").arg(row));
            QCOMPARE(box->toolTip(), box->text());
            QCOMPARE(list.rowOf(box), row);
        }
    }

    void anItemHoldsDataTextAndNameButNothingToPaint()
    {
        ZrMultiComboList list;
        list.addRows({{QStringLiteral("name"), 17}});
        const QListWidgetItem *const item = list.item(0);
        QCOMPARE(item->data(Qt::UserRole), QVariant(17));
        QCOMPARE(item->data(Qt::UserRole + 1), QVariant(QStringLiteral("name")));
        QCOMPARE(item->data(Qt::AccessibleTextRole), QVariant(QStringLiteral("name")));
        QVERIFY(!item->data(Qt::DisplayRole).isValid());
        QVERIFY(!item->data(Qt::CheckStateRole).isValid());
    }

    void rowsWithoutACheckBoxAreNone()
    {
        ZrMultiComboList list;
        fill(&list, 2);
        list.addItem(QStringLiteral("plain"));
        QCOMPARE(list.boxAt(2), nullptr);
        QCOMPARE(list.boxAt(-1), nullptr);
        QCOMPARE(list.boxAt(3), nullptr);
        QCOMPARE(list.textAt(2), QString());
        QCOMPARE(list.textAt(9), QString());
        QCOMPARE(list.rowOf(nullptr), -1);
        QCOMPARE(list.rowOf(&list), -1);
        const CheckBoxInMultiBox stranger;
        QCOMPARE(list.rowOf(&stranger), -1);
        QCOMPARE(list.tickedRows(), QList<int>());
    }

    void aCheckBoxOfAnotherListIsNone()
    {
        ZrMultiComboList list;
        ZrMultiComboList other;
        fill(&list, 2);
        fill(&other, 2);
        QCOMPARE(list.rowOf(other.boxAt(1)), -1);
    }

    void rowsMoveUpWhenOneGoes()
    {
        ZrMultiComboList list;
        fill(&list, 4);
        CheckBoxInMultiBox *const gone = list.boxAt(1);
        CheckBoxInMultiBox *const last = list.boxAt(3);
        last->setChecked(true);
        delete list.takeItem(1);
        QCOMPARE(list.rowOf(last), 2);
        QCOMPARE(list.rowOf(gone), -1); // it lives until the event loop turns
        QCOMPARE(list.tickedRows(), QList<int>{2});
        QCOMPARE(list.tickedTexts(), QStringList(QStringLiteral("t3")));
    }

    void joinedTicksFollowRowsThatComeGoAndChange()
    {
        ZrMultiComboList list;
        fill(&list, 3);
        list.boxAt(0)->setChecked(true);
        list.boxAt(2)->setChecked(true);
        QCOMPARE(list.joinedTicks(';').text, QStringLiteral("t0;t2"));
        list.addRows({{QStringLiteral("new"), 3}}).constFirst()->setChecked(true);
        QCOMPARE(list.joinedTicks(';').text, QStringLiteral("t0;t2;new"));
        list.item(2)->setData(ZrMultiComboItem::TextRole, QStringLiteral("other"));
        QCOMPARE(list.joinedTicks(';').text, QStringLiteral("t0;other;new"));
        delete list.takeItem(0);
        QCOMPARE(list.joinedTicks(';').text, QStringLiteral("other;new"));
        delete list.boxAt(1);
        QCOMPARE(list.joinedTicks(';').count, 1);
        list.clear();
        QCOMPARE(list.joinedTicks(';').count, 0);
    }

    void aCheckBoxThatEndsAloneLeavesAPlainRow()
    {
        ZrMultiComboList list;
        fill(&list, 3);
        list.boxAt(1)->setChecked(true);
        delete list.boxAt(1);
        QCOMPARE(list.boxAt(1), nullptr);
        QCOMPARE(list.tickedRows(), QList<int>());
        list.setCurrentRow(1);
        list.clickCurrent();
    }

    void anotherBoxTakesTheRowOver()
    {
        CheckBoxInMultiBox first;
        CheckBoxInMultiBox second;
        ZrMultiComboItem item(QStringLiteral("x"), QVariant());
        item.setBox(&first);
        item.setBox(&second);
        QCOMPARE(ZrMultiComboItem::ofBox(&first), nullptr);
        QCOMPARE(ZrMultiComboItem::ofBox(&second), &item);
        QCOMPARE(item.text(), QStringLiteral("x"));
    }

    void onlyCheckBoxesInSightAreShown()
    {
        ZrMultiComboList list;
        fill(&list, 1000);
        show(&list);
        QVERIFY(boxesInPlace(list));
        QVERIFY(list.boxAt(0)->isVisible());
        QVERIFY(!list.boxAt(999)->isVisible());
        list.scrollToBottom();
        QVERIFY(boxesInPlace(list));
        QVERIFY(!list.boxAt(0)->isVisible());
        QVERIFY(list.boxAt(999)->isVisible());
        list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum() / 2);
        QVERIFY(boxesInPlace(list));
        list.resize(300, 350);
        QVERIFY(boxesInPlace(list));
    }

    void rowsThatComeAndGoInSightAreFollowed()
    {
        ZrMultiComboList list;
        fill(&list, 3);
        show(&list);
        fill(&list, 50);
        QTRY_VERIFY(boxesInPlace(list));
        for (int i = 0; i < 40; ++i)
            delete list.takeItem(1);
        QTRY_VERIFY(boxesInPlace(list));
        list.clear();
        QTRY_COMPARE(list.findChildren<CheckBoxInMultiBox *>().size(), 0);
        fill(&list, 5);
        QTRY_VERIFY(boxesInPlace(list));
    }

    void rowsStandFromTheRightToo()
    {
        ZrMultiComboList list;
        list.setLayoutDirection(Qt::RightToLeft);
        fill(&list, 30);
        show(&list);
        QVERIFY(boxesInPlace(list));
        QCOMPARE(list.boxAt(0)->layoutDirection(), Qt::RightToLeft);
    }

    void rowsApartAndHiddenOnesAreStillFound()
    {
        ZrMultiComboList list;
        fill(&list, 60);
        list.setSpacing(5);
        list.setRowHidden(0, true);
        list.setRowHidden(3, true);
        show(&list);
        QVERIFY(!list.boxAt(0)->isVisible());
        QVERIFY(list.boxAt(1)->isVisible());
        list.verticalScrollBar()->setValue(7);
        QVERIFY(boxesInPlace(list));
    }

    void otherWidgetsInRowsArePlacedAsWell()
    {
        ZrMultiComboList list;
        fill(&list, 2);
        auto *const foreign = new QListWidgetItem;
        list.addItem(foreign);
        auto *const label = new QLabel(QStringLiteral("more"));
        list.setItemWidget(foreign, label);
        show(&list);
        QVERIFY(label->isVisible());
        QCOMPARE(label->geometry(), list.visualItemRect(foreign));
    }

    void thePointerMakesARowCurrent()
    {
        ComboScene scene(5);
        QVERIFY(scene.open());
        QTest::mouseMove(scene.box(3), QPoint(30, 5));
        QTRY_COMPARE(scene.list()->currentRow(), 3);
        QVERIFY(!scene.box(3)->isChecked());
    }

    void otherButtonsNeitherTickNorClose_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("right") << int(Qt::RightButton);
        QTest::newRow("middle") << int(Qt::MiddleButton);
    }

    void otherButtonsNeitherTickNorClose()
    {
        QFETCH(int, button);
        ComboScene scene(5);
        QVERIFY(scene.open());
        QTest::mouseClick(scene.box(2), Qt::MouseButton(button));
        QVERIFY(scene.list()->isVisible());
        QVERIFY(!scene.box(2)->isChecked());
    }

    void typingFindsTheNextRowThatBeginsSo()
    {
        ZrMultiComboList list;
        for (const char *text : {"Anhui", "Beijing", "Chongqing", "beihai", "Changsha"})
            list.addRows({{QString::fromLatin1(text), QVariant()}});
        show(&list);
        list.setCurrentRow(0);
        list.keyboardSearch(QStringLiteral("b"));
        QCOMPARE(list.currentRow(), 1);
        list.keyboardSearch(QStringLiteral("eih"));
        QCOMPARE(list.currentRow(), 3);
        list.keyboardSearch(QStringLiteral("zzz"));
        QCOMPARE(list.currentRow(), 3);
    }

    void typingIntoAnEmptyListFindsNothing()
    {
        ZrMultiComboList list;
        list.keyboardSearch(QStringLiteral("a"));
        QCOMPARE(list.currentRow(), -1);
    }

private:
    static void fill(ZrMultiComboList *list, int rows)
    {
        QVector<ZrMultiComboList::Row> added;
        for (int i = 0; i < rows; ++i)
            added.append({QStringLiteral("t%1").arg(list->count() + i), i});
        QCOMPARE(list->addRows(added).size(), rows);
    }

    static void show(ZrMultiComboList *list)
    {
        list->resize(200, 200);
        list->show();
        QVERIFY(QTest::qWaitForWindowExposed(list));
    }

    /// Each row in sight shows its check box across the row, and no other check box is shown.
    static bool boxesInPlace(const ZrMultiComboList &list)
    {
        for (int row = 0; row < list.count(); ++row) {
            const CheckBoxInMultiBox *const box = list.boxAt(row);
            const QRect rect = list.visualItemRect(list.item(row));
            const bool inSight =
                rect.bottom() >= 0 && rect.top() < list.viewport()->height() && !rect.isEmpty();
            if (box->isVisible() != inSight || (inSight && box->geometry() != rect))
                return false;
        }
        return true;
    }
};

ZR_TEST_MAIN(tst_ZrMultiComboList)
#include "tst_zrmulticombolist.moc"
