#include "SearchScene.h"

#include "ZrMessageBox.h"
#include "ZrMessageText.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

/// Return, Enter, Down, Escape and a focus that leaves; what an unknown code brings up.
class tst_ZrSearchBoxKeys : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aKeyTakesTheCurrentRowOfTheList_data() { addTakingKeys(); }
    void aKeyTakesTheCurrentRowOfTheList();
    void escapeHidesTheListAndKeepsTheText();
    void withoutACurrentRowAKeyHidesTheList_data() { addTakingKeys(); }
    void withoutACurrentRowAKeyHidesTheList();
    void withTheListHiddenAKeyTakesTheFirstRow_data();
    void withTheListHiddenAKeyTakesTheFirstRow();
    void withTheListHiddenOtherKeysTakeNothing();
    void aKeyOnAPickTakesNothing_data();
    void aKeyOnAPickTakesNothing();
    void anUnknownCodeIsRefused_data();
    void anUnknownCodeIsRefused();
    void theBaseSeesTheKeyThatPicks();
    void aCodeOfTwoMarketsIsPickedByTheList();
    void aRefusedCodeIsTold();
    void aRefusedCodeMayBeKeptQuiet();
    void oneMessageAtATime();
    void theBoxMayEndBehindItsMessage();
    void aFocusThatLeavesIsQuietAtFirst();
    void aFocusThatLeavesAnUnknownCodeIsTold();
    void aFocusThatLeavesAPickOrNothingIsQuiet();

private:
    static void addTakingKeys()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }
    ZrSearchBox *box() const { return m_scene->box(); }
    void press(int key) { m_scene->press(Qt::Key(key)); }

    std::unique_ptr<SearchScene> m_scene;
};

namespace {
ZrMessageBox *openMessage()
{
    return qobject_cast<ZrMessageBox *>(QApplication::activeModalWidget());
}
} // namespace

void tst_ZrSearchBoxKeys::init()
{
    m_scene = std::make_unique<SearchScene>();
    QVERIFY(m_scene->isReady());
    box()->setErrorCodeMsgBoxOn(false);
}

void tst_ZrSearchBoxKeys::cleanup()
{
    m_scene.reset();
}

void tst_ZrSearchBoxKeys::aKeyTakesTheCurrentRowOfTheList()
{
    QFETCH(int, key);
    m_scene->type("600");
    press(Qt::Key_Down);
    press(key);
    QCOMPARE(box()->getSymbol(), QString("600520.SH"));
    QCOMPARE(box()->text(), QString("600520"));
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBoxKeys::escapeHidesTheListAndKeepsTheText()
{
    m_scene->type("600");
    press(Qt::Key_Escape);
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(box()->text(), QString("600"));
    QCOMPARE(box()->getSymbol(), QString());
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBoxKeys::withoutACurrentRowAKeyHidesTheList()
{
    QFETCH(int, key);
    m_scene->type("600");
    m_scene->popup()->setCurrentIndex(QModelIndex());
    press(key);
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(box()->text(), QString("600"));
    QCOMPARE(box()->getSymbol(), QString());
}

void tst_ZrSearchBoxKeys::withTheListHiddenAKeyTakesTheFirstRow_data()
{
    addTakingKeys();
    QTest::newRow("Down") << int(Qt::Key_Down);
}

void tst_ZrSearchBoxKeys::withTheListHiddenAKeyTakesTheFirstRow()
{
    QFETCH(int, key);
    m_scene->type("600");
    press(Qt::Key_Escape);
    press(key);
    QCOMPARE(box()->getSymbol(), QString("600519.SH"));
    QCOMPARE(box()->text(), QString("600519"));
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBoxKeys::withTheListHiddenOtherKeysTakeNothing()
{
    m_scene->type("600");
    press(Qt::Key_Escape);
    for (const int key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Home, Qt::Key_Escape})
        press(key);
    QCOMPARE(box()->getSymbol(), QString());
    QCOMPARE(box()->text(), QString("600"));
}

void tst_ZrSearchBoxKeys::aKeyOnAPickTakesNothing_data()
{
    QTest::addColumn<QString>("symbol");
    QTest::newRow("picked") << "000001.SH";
    QTest::newRow("empty") << "";
}

void tst_ZrSearchBoxKeys::aKeyOnAPickTakesNothing()
{
    QFETCH(QString, symbol);
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    box()->setSymbol(symbol);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down})
        press(key);
    QCOMPARE(box()->getSymbol(), symbol);
    QCOMPARE(errors.count(), 0);
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBoxKeys::anUnknownCodeIsRefused_data()
{
    withTheListHiddenAKeyTakesTheFirstRow_data();
}

void tst_ZrSearchBoxKeys::anUnknownCodeIsRefused()
{
    QFETCH(int, key);
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    QSignalSpy returns(box(), &QLineEdit::returnPressed);
    m_scene->type("999");
    press(key);
    QCOMPARE(errors.count(), 1);
    QCOMPARE(box()->selectedText(), QString("999"));
    QCOMPARE(returns.count(), 0); // nobody takes the code for entered
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBoxKeys::theBaseSeesTheKeyThatPicks()
{
    QSignalSpy returns(box(), &QLineEdit::returnPressed);
    m_scene->type("600");
    press(Qt::Key_Return);
    QCOMPARE(returns.count(), 1);
    box()->clear();
    m_scene->type("600");
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    QCOMPARE(returns.count(), 2);
}

void tst_ZrSearchBoxKeys::aCodeOfTwoMarketsIsPickedByTheList()
{
    m_scene->type("000001");
    QCOMPARE(m_scene->rows().size(), 2);
    QVERIFY(box()->listViewVisiable());
    QCOMPARE(box()->getSymbol(), QString());
    QSignalSpy cleared(box(), &ZrSearchBox::signalStockCodeClear);
    m_scene->clickRow(1);
    QCOMPARE(box()->getSymbol(), QString("000001.SZ"));
    QCOMPARE(box()->text(), QString("000001"));
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(cleared.count(), 0);
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    m_scene->ringPickTimer();
    QCOMPARE(names.value(0).value(0).toString(), QString("Pingan"));
}

void tst_ZrSearchBoxKeys::aRefusedCodeIsTold()
{
    box()->setErrorCodeMsgBoxOn(true);
    m_scene->type("999");
    QPointer<ZrMessageBox> message;
    QString title;
    QString text;
    QObject *parent = nullptr;
    QTimer::singleShot(0, box(), [&] {
        message = openMessage();
        if (!message)
            return;
        title = message->windowTitle();
        text = message->findChild<ZrMessageText *>()->toPlainText();
        parent = message->parent();
        QTest::keyClick(message, Qt::Key_Return);
    });
    press(Qt::Key_Return);
    QCOMPARE(title, QString("Tips"));
    QCOMPARE(text, QString("The security id is not supported!"));
    QCOMPARE(parent, box());
    QVERIFY2(!message, "the message is kept");
    QCOMPARE(box()->selectedText(), QString("999"));
}

void tst_ZrSearchBoxKeys::aRefusedCodeMayBeKeptQuiet()
{
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    m_scene->type("999");
    press(Qt::Key_Return);
    QCOMPARE(errors.count(), 1);
    QVERIFY(!openMessage());
}

void tst_ZrSearchBoxKeys::oneMessageAtATime()
{
    box()->setErrorCodeMsgBoxOn(true);
    box()->setEmitErrorAtFocusOut(true);
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    m_scene->type("999");
    int messages = 0;
    QTimer::singleShot(0, box(), [&] {
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(box(), &out);
        messages = box()->findChildren<ZrMessageBox *>().size();
        if (openMessage())
            openMessage()->close();
    });
    press(Qt::Key_Return);
    QCOMPARE(messages, 1);
    QVERIFY(errors.count() >= 2);
    // The next one is shown again.
    bool isShown = false;
    QTimer::singleShot(0, box(), [&] {
        isShown = openMessage();
        if (isShown)
            openMessage()->close();
    });
    press(Qt::Key_Return);
    QVERIFY(isShown);
}

void tst_ZrSearchBoxKeys::theBoxMayEndBehindItsMessage()
{
    box()->setErrorCodeMsgBoxOn(true);
    m_scene->type("999");
    const QPointer<ZrSearchBox> watched(box());
    QTimer::singleShot(0, m_scene->window(), [this] { m_scene->endBox(); });
    press(Qt::Key_Return);
    QVERIFY(!watched);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_ZrSearchBoxKeys::aFocusThatLeavesIsQuietAtFirst()
{
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    m_scene->type("999");
    m_scene->other()->setFocus();
    QVERIFY(!box()->hasFocus());
    QCOMPARE(errors.count(), 0);
}

void tst_ZrSearchBoxKeys::aFocusThatLeavesAnUnknownCodeIsTold()
{
    box()->setEmitErrorAtFocusOut(true);
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    m_scene->type("999");
    m_scene->other()->setFocus();
    QCOMPARE(errors.count(), 1);
    QVERIFY(m_scene->other()->hasFocus());
}

void tst_ZrSearchBoxKeys::aFocusThatLeavesAPickOrNothingIsQuiet()
{
    box()->setEmitErrorAtFocusOut(true);
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    m_scene->type("600519");
    m_scene->other()->setFocus();
    box()->setFocus();
    box()->clear();
    m_scene->other()->setFocus();
    QCOMPARE(errors.count(), 0);
}

ZR_TEST_MAIN(tst_ZrSearchBoxKeys)
#include "tst_zrsearchboxkeys.moc"
