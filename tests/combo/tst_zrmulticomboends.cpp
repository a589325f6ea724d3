#include "ComboScene.h"

/// Slots that take away what is telling them: for the sanitizers as much as for what is compared.
class tst_ZrMultiComboEnds : public QObject
{
    Q_OBJECT
private slots:
    void endingTheBoxInASlot_data();
    void endingTheBoxInASlot();
    void clearingInASlot_data();
    void clearingInASlot();
    void removingTheTickedRowInASlot_data();
    void removingTheTickedRowInASlot();
    void addingRowsInASlot();
    void selectingInASlot();
    void closingInASlot();
    void removingTheRowWhileSelecting();
    void endingTheBoxWhileOpen();
    void endingTheWindowWhileOpen();
    void aBoxThatWasRemovedIsNoRowAnymore();
    void withoutItsEditorItStillKnowsItsRows();
};

namespace {
enum Told { Row, Texts };
enum How { Mouse, Space };

/// The ways in which the user ticks, and the signals that a slot may hang on.
void addWays()
{
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("how");
    QTest::newRow("row, mouse") << int(Row) << int(Mouse);
    QTest::newRow("row, Space") << int(Row) << int(Space);
    QTest::newRow("texts, mouse") << int(Texts) << int(Mouse);
    QTest::newRow("texts, Space") << int(Texts) << int(Space);
}

void onTold(ZrMultiComboBox *combo, int told, const std::function<void()> &slot)
{
    if (told == Row)
        QObject::connect(combo, &ZrMultiComboBox::signalIndexClicked, [slot] { slot(); });
    else
        QObject::connect(combo, &ZrMultiComboBox::signalCurrentSelectedChanged, [slot] { slot(); });
}

void tick(const ComboScene &scene, int how)
{
    if (how == Mouse)
        QTest::mouseClick(scene.box(1), Qt::LeftButton);
    else
        QTest::keyClick(scene.list(), Qt::Key_Space);
}
} // namespace

void tst_ZrMultiComboEnds::endingTheBoxInASlot_data()
{
    addWays();
}

void tst_ZrMultiComboEnds::endingTheBoxInASlot()
{
    QFETCH(int, told);
    QFETCH(int, how);
    ComboScene scene(5);
    const QPointer<ZrMultiComboBox> combo = scene.combo();
    onTold(combo, told, [&scene] { scene.endCombo(); });
    QVERIFY(scene.open());
    scene.list()->setCurrentRow(1);
    tick(scene, how);
    QVERIFY(!combo);
    QCoreApplication::processEvents();
}

void tst_ZrMultiComboEnds::clearingInASlot_data()
{
    addWays();
}

void tst_ZrMultiComboEnds::clearingInASlot()
{
    QFETCH(int, told);
    QFETCH(int, how);
    ComboScene scene(5);
    QStringList texts;
    connect(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged, this,
            [&texts](const QString &text) { texts.append(text); });
    onTold(scene.combo(), told, [&scene] { scene.combo()->clear(); });
    QVERIFY(scene.open());
    scene.list()->setCurrentRow(1);
    tick(scene, how);
    QCOMPARE(scene.combo()->count(), 0);
    QCOMPARE(scene.shown(), QString());
    QCOMPARE(texts, QStringList(told == Row ? QString() : QStringLiteral("r1")));
    QTRY_VERIFY(scene.combo()->findChildren<CheckBoxInMultiBox *>().isEmpty());
}

void tst_ZrMultiComboEnds::removingTheTickedRowInASlot_data()
{
    addWays();
}

void tst_ZrMultiComboEnds::removingTheTickedRowInASlot()
{
    QFETCH(int, told);
    QFETCH(int, how);
    ComboScene scene(5);
    scene.combo()->selectIndex(3, true);
    onTold(scene.combo(), told, [&scene] { scene.combo()->removeItem(1); });
    QVERIFY(scene.open());
    scene.list()->setCurrentRow(1);
    tick(scene, how);
    QCOMPARE(scene.combo()->count(), 4);
    QCOMPARE(scene.shown(), QStringLiteral("r3"));
    QCOMPARE(scene.combo()->getCurrentSelectedIndex(), QList<int>{2});
}

void tst_ZrMultiComboEnds::addingRowsInASlot()
{
    ComboScene scene(3);
    QStringList many;
    for (int i = 0; i < 500; ++i)
        many.append(QStringLiteral("x"));
    onTold(scene.combo(), Row, [&] { scene.combo()->addItems(many); });
    QVERIFY(scene.open());
    tick(scene, Mouse);
    QCOMPARE(scene.combo()->count(), 503);
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
}

void tst_ZrMultiComboEnds::selectingInASlot()
{
    ComboScene scene(5);
    QSignalSpy changed(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged);
    onTold(scene.combo(), Row, [&scene] {
        scene.combo()->selectIndex(4, true);
        scene.combo()->selectIndex(1, false);
    });
    QVERIFY(scene.open());
    tick(scene, Mouse);
    QCOMPARE(scene.shown(), QStringLiteral("r4"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.constFirst().constFirst().toString(), QStringLiteral("r4"));
    tick(scene, Mouse);
    QCOMPARE(changed.count(), 2);
}

void tst_ZrMultiComboEnds::closingInASlot()
{
    ComboScene scene(5);
    onTold(scene.combo(), Row, [&scene] { scene.combo()->hidePopup(); });
    QVERIFY(scene.open());
    tick(scene, Mouse);
    QVERIFY(!scene.list()->isVisible());
    QCOMPARE(scene.shown(), QStringLiteral("r1"));
}

void tst_ZrMultiComboEnds::removingTheRowWhileSelecting()
{
    ComboScene scene(5);
    connect(scene.box(1), &QAbstractButton::toggled, this, [&scene](bool ticked) {
        if (ticked)
            scene.combo()->removeItem(1);
    });
    scene.combo()->selectIndex(1, true);
    QCOMPARE(scene.combo()->count(), 4);
    QCOMPARE(scene.shown(), QString());
}

void tst_ZrMultiComboEnds::endingTheBoxWhileOpen()
{
    ComboScene scene(500);
    QVERIFY(scene.open());
    scene.endCombo();
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ZrMultiComboEnds::endingTheWindowWhileOpen()
{
    {
        ComboScene scene(500);
        QVERIFY(scene.open());
    }
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ZrMultiComboEnds::aBoxThatWasRemovedIsNoRowAnymore()
{
    ComboScene scene(3);
    CheckBoxInMultiBox *const removed = scene.box(1);
    scene.combo()->removeItem(1);
    QSignalSpy clicked(scene.combo(), &ZrMultiComboBox::signalIndexClicked);
    removed->setChecked(true); // it lives until the event loop turns
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(scene.shown(), QString());
}

void tst_ZrMultiComboEnds::withoutItsEditorItStillKnowsItsRows()
{
    ComboScene scene(3);
    scene.combo()->setEditable(false);
    scene.combo()->selectIndex(1, true);
    QCOMPARE(scene.combo()->getCurrentSelectedIndex(), QList<int>{1});
    scene.combo()->showPopup();
    scene.click(2);
    QCOMPARE(scene.combo()->getCurrentSelectedIndexText(), QStringList({"r1", "r2"}));
    scene.combo()->hidePopup();
    scene.combo()->removeItem(1);
    scene.combo()->clear();
    QCOMPARE(scene.combo()->count(), 0);
}

ZR_TEST_MAIN(tst_ZrMultiComboEnds)
#include "tst_zrmulticomboends.moc"
