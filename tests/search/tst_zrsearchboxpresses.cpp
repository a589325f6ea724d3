#include "SearchScene.h"

/// A press outside the open list and the field.
class tst_ZrSearchBoxPresses : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void theCurrentRowIsPicked();
    void theCurrentRowsWholeSymbolCountsAsTheLastLength();
    void aTypedCodeOfTheCurrentRowStays();
    void aCodeOfTwoMarketsStaysOpen();
    void withoutACurrentRowTheFirstOneIsPicked();
    void withoutARowTheTextIsRefused();
    void withoutAMatchTheFieldGoesBack();
    void withoutAMatchAndAPickTheFieldIsEmptied();
    void aPressInTheFieldPicksNothing();
    void aPressOnTheOpenListClosesIt();

private:
    ZrSearchBox *box() const { return m_scene->box(); }
    void pressOutside()
    {
        // Beside the list: it gets every press while it's open.
        QTest::mousePress(m_scene->popup(), Qt::LeftButton, Qt::NoModifier, QPoint(-30, -60));
    }
    void turnAway() { QMetaObject::invokeMethod(box(), "completerFocusOutEvent"); }

    std::unique_ptr<SearchScene> m_scene;
};

void tst_ZrSearchBoxPresses::init()
{
    m_scene = std::make_unique<SearchScene>();
    QVERIFY(m_scene->isReady());
    box()->setErrorCodeMsgBoxOn(false);
}

void tst_ZrSearchBoxPresses::cleanup()
{
    m_scene.reset();
}

void tst_ZrSearchBoxPresses::theCurrentRowIsPicked()
{
    m_scene->type("600");
    m_scene->press(Qt::Key_Down);
    pressOutside();
    QCOMPARE(box()->text(), QString("600520"));
    QCOMPARE(box()->getSymbol(), QString("600520.SH"));
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(m_scene->pickTimers().size(), 1);
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    m_scene->ringPickTimer();
    QCOMPARE(names.value(0).value(0).toString(), QString("Wenfeng"));
}

void tst_ZrSearchBoxPresses::theCurrentRowsWholeSymbolCountsAsTheLastLength()
{
    m_scene->type("600");
    pressOutside();
    QCOMPARE(box()->getSymbol(), QString("600519.SH"));
    // Six characters are less than the nine of the symbol: a correction, which picks nothing by itself.
    box()->setText("600520");
    QCOMPARE(m_scene->rows().size(), 1);
    QCOMPARE(box()->getSymbol(), QString());
}

void tst_ZrSearchBoxPresses::aTypedCodeOfTheCurrentRowStays()
{
    m_scene->type("000001");
    QSignalSpy cleared(box(), &ZrSearchBox::signalStockCodeClear);
    m_scene->press(Qt::Key_Down);
    pressOutside();
    // The text is the code already, so nothing narrows the list again.
    QCOMPARE(box()->getSymbol(), QString("000001.SZ"));
    QCOMPARE(cleared.count(), 0);
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBoxPresses::aCodeOfTwoMarketsStaysOpen()
{
    m_scene->type("0000");
    QSignalSpy cleared(box(), &ZrSearchBox::signalStockCodeClear);
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    QSignalSpy codes(box(), &ZrSearchBox::selectStockCodeChange);
    turnAway();
    // The code is set as if typed, and two securities have it.
    QCOMPARE(box()->text(), QString("000001"));
    QCOMPARE(box()->getSymbol(), QString());
    QCOMPARE(cleared.count(), 1);
    QVERIFY(box()->listViewVisiable());
    m_scene->ringPickTimer();
    QCOMPARE(names.value(0).value(0).toString(), QString());
    QCOMPARE(codes.value(0).value(0).toString(), QString("000001"));
}

void tst_ZrSearchBoxPresses::withoutACurrentRowTheFirstOneIsPicked()
{
    m_scene->type("0000");
    m_scene->popup()->setCurrentIndex(QModelIndex());
    QSignalSpy cleared(box(), &ZrSearchBox::signalStockCodeClear);
    pressOutside();
    QCOMPARE(box()->getSymbol(), QString("000001.SH"));
    QCOMPARE(box()->text(), QString("000001"));
    QCOMPARE(cleared.count(), 0);
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBoxPresses::withoutARowTheTextIsRefused()
{
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    m_scene->type("999");
    turnAway();
    QCOMPARE(errors.count(), 1);
    QCOMPARE(box()->selectedText(), QString("999"));
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBoxPresses::withoutAMatchTheFieldGoesBack()
{
    box()->setAutoMatchWhenFocusOut(false);
    box()->setSymbol("688001.SH");
    box()->popCompleter(true);
    turnAway();
    QCOMPARE(box()->text(), QString("688001"));
    QCOMPARE(box()->getSymbol(), QString("688001.SH"));
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBoxPresses::withoutAMatchAndAPickTheFieldIsEmptied()
{
    box()->setAutoMatchWhenFocusOut(false);
    m_scene->type("600");
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    QSignalSpy codes(box(), &ZrSearchBox::selectStockCodeChange);
    pressOutside();
    QCOMPARE(box()->text(), QString());
    QVERIFY(!box()->listViewVisiable());
    m_scene->ringPickTimer();
    QCOMPARE(names.value(0).value(0).toString(), QString());
    QCOMPARE(codes.value(0).value(0).toString(), QString());
    QCOMPARE(codes.count(), 1);
}

void tst_ZrSearchBoxPresses::aPressInTheFieldPicksNothing()
{
    m_scene->type("600");
    const QPoint inside = m_scene->popup()->mapFromGlobal(box()->mapToGlobal(QPoint(5, 5)));
    QTest::mousePress(m_scene->popup(), Qt::LeftButton, Qt::NoModifier, inside);
    QCOMPARE(box()->text(), QString("600"));
    QCOMPARE(box()->getSymbol(), QString());
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBoxPresses::aPressOnTheOpenListClosesIt()
{
    m_scene->type("600");
    m_scene->clickRow(0);
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(box()->getSymbol(), QString("600519.SH"));
}

ZR_TEST_MAIN(tst_ZrSearchBoxPresses)
#include "tst_zrsearchboxpresses.moc"
