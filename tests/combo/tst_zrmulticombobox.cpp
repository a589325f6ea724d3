#include "ComboScene.h"

#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>

/// The box as its user and its program see it.
class tst_ZrMultiComboBox : public QObject
{
    Q_OBJECT
private slots:
    // --- what it is made of ---
    void itConsistsOfAListAndAReadOnlyEditor();
    void longTextsAreNotCutInTheEditor();

    // --- rows ---
    void aRowHoldsDataTextAndCheckBox();
    void severalRowsHaveTheirTextsAsData();
    void anEmptyListOfTextsAddsNothing();
    void rowsWithTheSameTextAreKeptApart();
    void aRowIsFoundByItsData();
    void indexesOutOfRangeGiveNothing();
    void rowsOfTheBaseAreOnlyRowsWithoutACheckBox();

    // --- what is shown ---
    void nothingTickedShowsNothing();
    void nothingTickedShowsItsText();
    void theTextForNothingKeepsTheToolTip();
    void textsAreJoinedInTheOrderOfRows();
    void foreignTextInTheEditorIsOverwritten();
    void theBaseCurrentItemIsNotShown();
    void theBeginningOfALongTextIsInSight();
    void markupIsShownAsItIs();
    void nothingIsSelectedForWhoComesByTheKeyboard();

    // --- selecting by program ---
    void selectingTellsNobodyButListenersOfTheBox();
    void selectingWhatIsSelectedDoesNotEvenPack();
    void selectingAndUnselecting();
    void manyAreSelectedWithOnePacking();
    void theUserIsHeardAfterAProgramSelected();

    // --- selecting by the user ---
    void aClickTellsTheRowFirstAndThenTheTexts();
    void theRowIsToldBeforeTheTextChanges();
    void aClickOnTheEmptyRightPartOfARowToggles();
    void rowsOutOfSightAreToldToo();
    void aCallOfTheSlotWithoutASenderTellsNoRow();

    // --- removing ---
    void aRemovedRowLeavesTheTexts();
    void anUntickedRowGoesQuietly();
    void aRowNumberIsThatAfterARemoval();
    void clearingForgetsRowsAndTexts();
    void clearingShowsTheTextForNothing();
    void rowsAfterClearingStartAnew();

    // --- popup ---
    void aClickOnTheEditorOpens();
    void aClickOnTheEditorWhileOpenCloses();
    void aClickBesideThePopupCloses();
    void aClickOnADisabledBoxDoesNotOpen();
    void anEmptyBoxDoesNotOpen();
    void aTickLeavesThePopupOpen();
    void everyOpeningStartsFromTheTop();
    void theListWidthIsFixed();
    void rowsMayComeAndGoWhileItIsOpen();

    // --- skin ---
    void aSheetIsTakenOnlyWhenThereIsOne();
};

void tst_ZrMultiComboBox::itConsistsOfAListAndAReadOnlyEditor()
{
    ZrMultiComboBox combo;
    auto *const list = qobject_cast<QListWidget *>(combo.view());
    QVERIFY(list);
    QCOMPARE(combo.model(), list->model());
    QVERIFY(combo.isEditable());
    QVERIFY(combo.lineEdit()->isReadOnly());
    QVERIFY(!combo.hasFrame());
    QVERIFY(!combo.completer());
    QCOMPARE(combo.count(), 0);
    QVERIFY(qobject_cast<IZrSkin *>(&combo));
    QVERIFY(!combo.lineEdit()->accessibleName().isEmpty());
    QVERIFY(!list->accessibleName().isEmpty());
}

void tst_ZrMultiComboBox::longTextsAreNotCutInTheEditor()
{
    ZrMultiComboBox combo;
    const QString text(100000, QLatin1Char('x'));
    combo.addItem(text, 1);
    combo.selectIndex(0, true);
    QCOMPARE(combo.currentText().size(), text.size());
}

void tst_ZrMultiComboBox::aRowHoldsDataTextAndCheckBox()
{
    ComboScene scene(0);
    scene.combo()->addItem(QStringLiteral("name"), QStringLiteral("value"));
    QCOMPARE(scene.combo()->count(), 1);
    QCOMPARE(scene.combo()->itemData(0, Qt::UserRole), QVariant(QStringLiteral("value")));
    QCOMPARE(scene.combo()->itemData(0), QVariant(QStringLiteral("value")));
    QCOMPARE(scene.combo()->itemData(0, Qt::UserRole + 1), QVariant(QStringLiteral("name")));
    QVERIFY(!scene.combo()->itemData(0, Qt::UserRole + 7).isValid());
    QCOMPARE(scene.combo()->itemText(0), QStringLiteral("name"));
    QVERIFY(scene.box(0));
    QCOMPARE(scene.box(0)->text(), QStringLiteral("name"));
    QCOMPARE(scene.box(0)->toolTip(), QStringLiteral("name"));
    QVERIFY(!scene.combo()->isIndexSelected(0));
}

void tst_ZrMultiComboBox::severalRowsHaveTheirTextsAsData()
{
    ZrMultiComboBox combo;
    combo.addItem(QStringLiteral("zero"), 0);
    combo.addItems({QStringLiteral("one"), QStringLiteral("two")});
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.itemText(2), QStringLiteral("two"));
    QCOMPARE(combo.itemData(1, Qt::UserRole), QVariant(QStringLiteral("one")));
    QCOMPARE(combo.findChildren<CheckBoxInMultiBox *>().size(), 3);
}

void tst_ZrMultiComboBox::anEmptyListOfTextsAddsNothing()
{
    ZrMultiComboBox combo;
    QSignalSpy inserted(combo.model(), &QAbstractItemModel::rowsInserted);
    combo.addItems({});
    QCOMPARE(combo.count(), 0);
    QCOMPARE(inserted.count(), 0);
}

void tst_ZrMultiComboBox::rowsWithTheSameTextAreKeptApart()
{
    ComboScene scene(0);
    scene.combo()->addItem(QStringLiteral("same"), 1);
    scene.combo()->addItem(QStringLiteral("same"), 1);
    scene.combo()->selectIndex(0, true);
    QCOMPARE(scene.shown(), QStringLiteral("same"));
    scene.combo()->selectIndex(1, true);
    QCOMPARE(scene.shown(), QStringLiteral("same;same"));
    scene.combo()->selectIndex(0, false);
    QCOMPARE(scene.combo()->getCurrentSelectedIndex(), QList<int>{1});
}

void tst_ZrMultiComboBox::aRowIsFoundByItsData()
{
    ComboScene scene(5);
    QCOMPARE(scene.combo()->findData(1003), 3);
    QCOMPARE(scene.combo()->findData(QStringLiteral("none")), -1);
}

void tst_ZrMultiComboBox::indexesOutOfRangeGiveNothing()
{
    ComboScene scene(2);
    ZrMultiComboBox *const combo = scene.combo();
    combo->selectIndex(0, true);
    for (const int index : {-1, 2, 1000}) {
        combo->selectIndex(index, true);
        combo->removeItem(index);
        QVERIFY(!combo->isIndexSelected(index));
        QVERIFY(!combo->itemData(index, Qt::UserRole).isValid());
        QCOMPARE(combo->itemText(index), QString());
    }
    QCOMPARE(combo->count(), 2);
    QCOMPARE(scene.shown(), QStringLiteral("r0"));
}

void tst_ZrMultiComboBox::rowsOfTheBaseAreOnlyRowsWithoutACheckBox()
{
    ComboScene scene(2);
    scene.combo()->insertItem(1, QStringLiteral("plain"));
    QCOMPARE(scene.combo()->count(), 3);
    QVERIFY(!scene.combo()->isIndexSelected(1));
    scene.combo()->selectIndex(1, true);
    scene.combo()->selectIndex(2, true);
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
    scene.combo()->removeItem(1);
    QCOMPARE(scene.combo()->getCurrentSelectedIndex(), QList<int>{1});
}

void tst_ZrMultiComboBox::nothingTickedShowsNothing()
{
    ComboScene scene(3);
    QCOMPARE(scene.shown(), QString());
    QCOMPARE(scene.combo()->currentText(), QString());
    QVERIFY(scene.combo()->getCurrentSelectedIndex().isEmpty());
    QVERIFY(scene.combo()->getCurrentSelectedIndexData().isEmpty());
    QVERIFY(scene.combo()->getCurrentSelectedIndexText().isEmpty());
}

void tst_ZrMultiComboBox::nothingTickedShowsItsText()
{
    ComboScene scene(3);
    scene.combo()->setNoSelectedText(QStringLiteral("none"));
    QCOMPARE(scene.shown(), QStringLiteral("none"));
    scene.combo()->selectIndex(1, true);
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
    scene.combo()->setNoSelectedText(QStringLiteral("nothing"));
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
    scene.combo()->selectIndex(1, false);
    QCOMPARE(scene.shown(), QStringLiteral("nothing"));
}

void tst_ZrMultiComboBox::theTextForNothingKeepsTheToolTip()
{
    ComboScene scene(3);
    scene.combo()->setNoSelectedText(QStringLiteral("none"));
    QCOMPARE(scene.edit()->toolTip(), QString());
    scene.combo()->selectIndex(2, true);
    QCOMPARE(scene.edit()->toolTip(), QStringLiteral("r2"));
    scene.combo()->selectIndex(2, false);
    QCOMPARE(scene.edit()->toolTip(), QStringLiteral("r2"));
}

void tst_ZrMultiComboBox::textsAreJoinedInTheOrderOfRows()
{
    ComboScene scene(5);
    for (const int row : {4, 0, 2})
        scene.combo()->selectIndex(row, true);
    QCOMPARE(scene.shown(), QStringLiteral("r0;r2;r4"));
    QCOMPARE(scene.edit()->toolTip(), QStringLiteral("r0;r2;r4"));
    QCOMPARE(scene.combo()->currentText(), QStringLiteral("r0;r2;r4"));
    QCOMPARE(scene.combo()->getCurrentSelectedIndex(), (QList<int>{0, 2, 4}));
    QCOMPARE(scene.combo()->getCurrentSelectedIndexData(), (QList<QVariant>{1000, 1002, 1004}));
    QCOMPARE(scene.combo()->getCurrentSelectedIndexText(), QStringList({"r0", "r2", "r4"}));
}

void tst_ZrMultiComboBox::foreignTextInTheEditorIsOverwritten()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    scene.edit()->setText(QStringLiteral("something else"));
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
    scene.combo()->setEditText(QStringLiteral("something else"));
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
}

void tst_ZrMultiComboBox::theBaseCurrentItemIsNotShown()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    scene.combo()->setCurrentIndex(2);
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
    scene.combo()->setCurrentIndex(-1);
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
}

void tst_ZrMultiComboBox::theBeginningOfALongTextIsInSight()
{
    ComboScene scene(0);
    scene.combo()->addItem(QString(300, QLatin1Char('x')), 1);
    scene.combo()->selectIndex(0, true);
    QCOMPARE(scene.edit()->cursorPosition(), 0);
}

void tst_ZrMultiComboBox::markupIsShownAsItIs()
{
    ComboScene scene(0);
    const QString markup = QStringLiteral("<b>A&B</b>");
    scene.combo()->addItem(markup, 1);
    scene.combo()->selectIndex(0, true);
    QCOMPARE(scene.shown(), markup);
    QCOMPARE(scene.edit()->toolTip(), markup);
    QVERIFY(tipOver(scene.edit()).contains(QStringLiteral("&lt;b&gt;")));
}

void tst_ZrMultiComboBox::nothingIsSelectedForWhoComesByTheKeyboard()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    scene.combo()->clearFocus();
    scene.combo()->setFocus(Qt::TabFocusReason);
    QVERIFY(scene.combo()->hasFocus());
    QVERIFY(!scene.edit()->hasSelectedText());
}

void tst_ZrMultiComboBox::selectingTellsNobodyButListenersOfTheBox()
{
    ComboScene scene(3);
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    QSignalSpy changed(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged);
    QSignalSpy boxChanged(scene.box(1), &QCheckBox::stateChanged);
    scene.combo()->selectIndex(1, true);
    scene.combo()->selectIndex(1, false);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(boxChanged.count(), 2);
}

void tst_ZrMultiComboBox::selectingWhatIsSelectedDoesNotEvenPack()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    {
        const QSignalBlocker blocker(scene.edit());
        scene.edit()->setText(QStringLiteral("untouched"));
    }
    scene.combo()->selectIndex(1, true);
    scene.combo()->selectIndex(0, false);
    QCOMPARE(scene.shown(), QStringLiteral("untouched"));
    scene.combo()->selectIndex(0, true);
    QCOMPARE(scene.shown(), QStringLiteral("r0;r1"));
}

void tst_ZrMultiComboBox::selectingAndUnselecting()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(2, true);
    QVERIFY(scene.combo()->isIndexSelected(2));
    QCOMPARE(scene.box(2)->checkState(), Qt::Checked);
    scene.combo()->selectIndex(2, false);
    QVERIFY(!scene.combo()->isIndexSelected(2));
    QCOMPARE(scene.box(2)->checkState(), Qt::Unchecked);
    QCOMPARE(scene.shown(), QString());
}

void tst_ZrMultiComboBox::manyAreSelectedWithOnePacking()
{
    ComboScene scene(100);
    ZrMultiComboBox *const combo = scene.combo();
    QSignalSpy changed(combo, &ZrMultiComboBox::signalCurrentSelectedChanged);
    QSignalSpy clicked(combo, &ZrMultiComboBox::signalIndexClicked);
    QStringList shownMeanwhile;
    for (const int row : {3, 70})
        connect(scene.box(row), &QCheckBox::stateChanged, this,
                [&] { shownMeanwhile.append(scene.shown()); });
    combo->selectIndexes({70, -1, 3, 100, 3}, true);
    QCOMPARE(scene.shown(), QStringLiteral("r3;r70"));
    QCOMPARE(shownMeanwhile, QStringList({QString(), QString()}));
    QCOMPARE(changed.count() + clicked.count(), 0);
    combo->selectIndexes({3, 4}, false);
    QCOMPARE(scene.shown(), QStringLiteral("r70"));
    {
        const QSignalBlocker blocker(scene.edit());
        scene.edit()->setText(QStringLiteral("untouched"));
    }
    combo->selectIndexes({70}, true);
    combo->selectIndexes({}, true);
    QCOMPARE(scene.shown(), QStringLiteral("untouched"));
}

void tst_ZrMultiComboBox::theUserIsHeardAfterAProgramSelected()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    scene.combo()->selectIndex(1, false);
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    QVERIFY(scene.open());
    scene.click(1);
    QCOMPARE(clicked.count(), 1); // once, however often it was selected
}

void tst_ZrMultiComboBox::aClickTellsTheRowFirstAndThenTheTexts()
{
    ComboScene scene(3);
    QStringList told;
    connect(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged, this,
            [&told](const QString &text) { told.append("changed " + text); });
    connect(scene.combo(), &ZrMultiComboBox::signalIndexClicked, this,
            [&told](int row) { told.append(QStringLiteral("clicked %1").arg(row)); });
    QVERIFY(scene.open());
    scene.click(2);
    scene.click(0);
    scene.click(2);
    QCOMPARE(told, QStringList(
                       {"clicked 2", "changed r2", "clicked 0", "changed r0;r2", "clicked 2", "changed r0"}));
    QCOMPARE(scene.shown(), QStringLiteral("r0"));
}

void tst_ZrMultiComboBox::theRowIsToldBeforeTheTextChanges()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(0, true);
    QString shownAtClick;
    bool tickedAtClick = false;
    connect(scene.combo(), &ZrMultiComboBox::signalIndexClicked, this, [&](int row) {
        shownAtClick = scene.shown();
        tickedAtClick = scene.combo()->isIndexSelected(row);
    });
    QVERIFY(scene.open());
    scene.click(1);
    QCOMPARE(shownAtClick, QStringLiteral("r0"));
    QVERIFY(tickedAtClick);
    QCOMPARE(scene.shown(), QStringLiteral("r0;r1"));
}

void tst_ZrMultiComboBox::aClickOnTheEmptyRightPartOfARowToggles()
{
    ComboScene scene(3);
    scene.combo()->resizeListWidth(350);
    QVERIFY(scene.open());
    const int right = scene.box(1)->width() - 3;
    QVERIFY(right > 300);
    scene.clickAt(1, right);
    QVERIFY(scene.combo()->isIndexSelected(1));
    scene.clickAt(1, 2);
    QVERIFY(!scene.combo()->isIndexSelected(1));
}

void tst_ZrMultiComboBox::rowsOutOfSightAreToldToo()
{
    ComboScene scene(200);
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    QVERIFY(scene.open());
    scene.box(150)->click();
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.constFirst().constFirst().toInt(), 150);
    QCOMPARE(scene.shown(), QStringLiteral("r150"));
}

void tst_ZrMultiComboBox::aCallOfTheSlotWithoutASenderTellsNoRow()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    QSignalSpy changed(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged);
    scene.combo()->stateChanged(Qt::Checked);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toString(), QStringLiteral("r1"));
}

void tst_ZrMultiComboBox::aRemovedRowLeavesTheTexts()
{
    ComboScene scene(4);
    for (const int row : {0, 2, 3})
        scene.combo()->selectIndex(row, true);
    QSignalSpy changed(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged);
    scene.combo()->removeItem(2);
    QCOMPARE(scene.combo()->count(), 3);
    QCOMPARE(scene.shown(), QStringLiteral("r0;r3"));
    QCOMPARE(scene.combo()->getCurrentSelectedIndex(), (QList<int>{0, 2}));
    scene.combo()->removeItem(0);
    QCOMPARE(scene.shown(), QStringLiteral("r3"));
    QCOMPARE(changed.count(), 0);
}

void tst_ZrMultiComboBox::anUntickedRowGoesQuietly()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(2, true);
    scene.combo()->removeItem(1);
    QCOMPARE(scene.shown(), QStringLiteral("r2"));
    QCOMPARE(scene.combo()->itemText(1), QStringLiteral("r2"));
}

void tst_ZrMultiComboBox::aRowNumberIsThatAfterARemoval()
{
    ComboScene scene(4);
    scene.combo()->removeItem(1);
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    QVERIFY(scene.open());
    scene.click(2);
    QCOMPARE(clicked.constFirst().constFirst().toInt(), 2);
    QCOMPARE(scene.shown(), QStringLiteral("r3"));
}

void tst_ZrMultiComboBox::clearingForgetsRowsAndTexts()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(1, true);
    QSignalSpy changed(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged);
    scene.combo()->clear();
    QCOMPARE(scene.combo()->count(), 0);
    QCOMPARE(scene.shown(), QString());
    QVERIFY(scene.combo()->getCurrentSelectedIndex().isEmpty());
    QCOMPARE(changed.count(), 0);
    scene.combo()->clear();
    QCOMPARE(scene.combo()->count(), 0);
    QTRY_VERIFY(scene.combo()->findChildren<CheckBoxInMultiBox *>().isEmpty());
}

void tst_ZrMultiComboBox::clearingShowsTheTextForNothing()
{
    ComboScene scene(3);
    scene.combo()->setNoSelectedText(QStringLiteral("none"));
    scene.combo()->selectIndex(1, true);
    scene.combo()->clear();
    QCOMPARE(scene.shown(), QStringLiteral("none"));
}

void tst_ZrMultiComboBox::rowsAfterClearingStartAnew()
{
    ComboScene scene(3);
    scene.combo()->selectIndex(0, true);
    scene.combo()->clear();
    scene.combo()->addItems({QStringLiteral("a"), QStringLiteral("b")});
    QCOMPARE(scene.shown(), QString());
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    QVERIFY(scene.open());
    scene.click(1);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(scene.shown(), QStringLiteral("b"));
}

void tst_ZrMultiComboBox::aClickOnTheEditorOpens()
{
    ComboScene scene(3);
    QTest::mousePress(scene.edit(), Qt::LeftButton);
    QVERIFY(!scene.list()->isVisible());
    QTest::mouseRelease(scene.edit(), Qt::LeftButton);
    QVERIFY(scene.list()->isVisible());
    scene.combo()->hidePopup();
    QVERIFY(!scene.list()->isVisible());
}

// The popup closes on the press, before the editor gets to see the release that would open it.
void tst_ZrMultiComboBox::aClickOnTheEditorWhileOpenCloses()
{
    ComboScene scene(3);
    const QPoint onEditor = scene.edit()->mapTo(scene.window(), scene.edit()->rect().center());
    const QPoint onArrow = scene.combo()->geometry().topRight() + QPoint(-6, 14);
    for (const QPoint &pos : {onEditor, onArrow}) {
        QTest::mouseClick(scene.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, pos);
        QVERIFY(scene.list()->isVisible());
        QTest::mouseClick(scene.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, pos);
        QVERIFY(!scene.list()->isVisible());
    }
}

void tst_ZrMultiComboBox::aClickBesideThePopupCloses()
{
    ComboScene scene(3);
    QVERIFY(scene.open());
    QTest::mouseClick(scene.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(390, 390));
    QVERIFY(!scene.list()->isVisible());
}

void tst_ZrMultiComboBox::aClickOnADisabledBoxDoesNotOpen()
{
    ComboScene scene(3);
    scene.combo()->setEnabled(false);
    QTest::mouseClick(scene.edit(), Qt::LeftButton);
    QVERIFY(!scene.list()->isVisible());
    scene.combo()->setEnabled(true);
    scene.edit()->setEnabled(false);
    QTest::mouseClick(scene.edit(), Qt::LeftButton);
    QVERIFY(!scene.list()->isVisible());
}

void tst_ZrMultiComboBox::anEmptyBoxDoesNotOpen()
{
    ComboScene scene(0);
    QTest::mouseClick(scene.edit(), Qt::LeftButton);
    QVERIFY(!scene.list()->isVisible());
}

void tst_ZrMultiComboBox::aTickLeavesThePopupOpen()
{
    ComboScene scene(3);
    QVERIFY(scene.open());
    scene.click(1);
    QVERIFY(scene.list()->isVisible());
}

void tst_ZrMultiComboBox::everyOpeningStartsFromTheTop()
{
    ComboScene scene(100);
    QVERIFY(scene.open());
    QScrollBar *const bar = scene.list()->verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(bar->value() > 0);
    scene.combo()->hidePopup();
    QCOMPARE(bar->value(), 0);
    QCOMPARE(bar->sliderPosition(), 0);
    QVERIFY(scene.open());
    QCOMPARE(bar->value(), 0);
    QVERIFY(scene.box(0)->isVisible());
}

void tst_ZrMultiComboBox::theListWidthIsFixed()
{
    ComboScene scene(3);
    scene.combo()->resizeListWidth(333);
    QCOMPARE(scene.list()->minimumWidth(), 333);
    QCOMPARE(scene.list()->maximumWidth(), 333);
    QVERIFY(scene.open());
    QCOMPARE(scene.list()->width(), 333);
}

void tst_ZrMultiComboBox::rowsMayComeAndGoWhileItIsOpen()
{
    ComboScene scene(30);
    scene.combo()->selectIndex(4, true);
    QVERIFY(scene.open());
    for (int i = 0; i < 10; ++i)
        scene.combo()->removeItem(0);
    scene.combo()->addItem(QStringLiteral("new"), 1);
    QCOMPARE(scene.shown(), QString());
    QTRY_COMPARE(scene.box(0)->geometry(), scene.list()->visualItemRect(scene.list()->item(0)));
    scene.click(0);
    QCOMPARE(scene.shown(), QStringLiteral("r10"));
    scene.combo()->clear();
    QCOMPARE(scene.shown(), QString());
    scene.combo()->addItems({QStringLiteral("a"), QStringLiteral("b")});
    QTRY_VERIFY(scene.box(1)->isVisible());
    scene.click(1);
    QCOMPARE(scene.shown(), QStringLiteral("b"));
}

void tst_ZrMultiComboBox::aSheetIsTakenOnlyWhenThereIsOne()
{
    ZrMultiComboBox combo;
    combo.loadSkin(QStringLiteral("ZrMultiComboBox{color:red;}"));
    QCOMPARE(combo.styleSheet(), QStringLiteral("ZrMultiComboBox{color:red;}"));
    combo.loadSkin(QVariant());
    QCOMPARE(combo.styleSheet(), QStringLiteral("ZrMultiComboBox{color:red;}"));
}

ZR_TEST_MAIN(tst_ZrMultiComboBox)
#include "tst_zrmulticombobox.moc"
