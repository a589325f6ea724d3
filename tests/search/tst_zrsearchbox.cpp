#include "SearchScene.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRandomGenerator>
#include <QtGui/QRegExpValidator>

#include "zrdefine/Constants.h"
#include "ZrSymbolMatcher.h"
#include "ZrSymbolText.h"

/// What is typed narrows the list; the only row left is the pick; a pick is told later.
class tst_ZrSearchBox : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void aNewBoxIsEmptyAnd120Wide();
    void theValidatorTakesCodesOnly_data();
    void theValidatorTakesCodesOnly();
    void theMetaObjectHasTheSignalsInOrder();
    void theFirstKeyAsksForTheSecurities();
    void withoutLeaveNothingIsAskedFor();
    void aTypeLimitsTheSecurities();
    void aListOfTheCallersIsSearched();
    void theListIsTheCallersUntilSomethingIsTyped();
    void aTextNarrowsTheList();
    void theFirstRowIsCurrent();
    void aSearchKeyFindsItsSecurity();
    void aCutShowsTheFirstHundred();
    void aCutCanBeLifted();
    void containsFindsInTheMiddle();
    void anUnknownModeFindsNothing();
    void thePopupStandsUnderTheField();
    void clearingHidesTheListAndFillsIt();
    void theOnlyRowIsPicked();
    void aShortTextWaits();
    void deletingNeverPicks();
    void theLeastLengthCanBeSet();
    void aPickBySearchKeyShowsTheCode();
    void aPickIsToldLaterNameFirst();
    void aPickIsToldAfterTheDelay();
    void aSecondPickTakesTheFirstOnesPlace();
    void thePickIsLogged();
    void anotherClockIsNotThePicks();
    void editingLosesThePick();
    void aPickedSymbolIsShownShort_data();
    void aPickedSymbolIsShownShort();
    void setSymbolTellsNothing();
    void theSameSymbolChangesNothing();
    void theListCanBeOpenedAndHidden();
    void endingTheBoxInASlotIsHarmless_data();
    void endingTheBoxInASlotIsHarmless();
    void randomTextsShowWhatTheMatcherFinds();

private:
    ZrSearchBox *box() const { return m_scene->box(); }

    std::unique_ptr<SearchScene> m_scene;
};

void tst_ZrSearchBox::init()
{
    m_scene = std::make_unique<SearchScene>();
    QVERIFY(m_scene->isReady());
}

void tst_ZrSearchBox::cleanup()
{
    m_scene.reset();
}

void tst_ZrSearchBox::aNewBoxIsEmptyAnd120Wide()
{
    ZrSearchBox fresh;
    QCOMPARE(fresh.width(), 120);
    QLineEdit plain;
    plain.adjustSize();
    QCOMPARE(fresh.height(), plain.height());
    QCOMPARE(fresh.text(), QString());
    QCOMPARE(fresh.getSymbol(), QString());
    QVERIFY(!fresh.listViewVisiable());
    QVERIFY(fresh.findChild<ZrCompleter *>());
}

void tst_ZrSearchBox::theValidatorTakesCodesOnly_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("digits and letters") << "6aZ9"
                                        << "6aZ9";
    QTest::newRow("full stop and blank") << "6. 0-"
                                         << "60";
    QTest::newRow("eight at the most") << "123456789"
                                       << "12345678";
}

void tst_ZrSearchBox::theValidatorTakesCodesOnly()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    m_scene->type(typed);
    QCOMPARE(box()->text(), expected);
    const auto *const validator = qobject_cast<const QRegExpValidator *>(box()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->regExp().pattern(), QString("[a-zA-Z0-9]{1,8}"));
    QCOMPARE(validator->parent(), box());
}

void tst_ZrSearchBox::theMetaObjectHasTheSignalsInOrder()
{
    const QMetaObject &meta = ZrSearchBox::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(names,
             QStringList({"selectStockNameChange(QString)", "selectStockCodeChange(QString)",
                          "signalStockCodeClear()", "signalErrorCode()", "slotSetCompleter(QString)",
                          "slotCompleteText(QModelIndex)", "completerFocusOutEvent()", "slotErrorCode()"}));
}

void tst_ZrSearchBox::theFirstKeyAsksForTheSecurities()
{
    QCOMPARE(m_scene->rows(), QStringList());
    m_scene->type("6");
    QCOMPARE(m_scene->rows(),
             QStringList({SearchScene::row("600519.SH", "Maotai"), SearchScene::row("600520.SH", "Wenfeng"),
                          SearchScene::row("688001.SH", "Kechuang")}));
    // Only while there are none: the host isn't asked again.
    m_scene->host()->setSecurities({});
    m_scene->type("0");
    QCOMPARE(m_scene->rows().size(), 2);
}

void tst_ZrSearchBox::withoutLeaveNothingIsAskedFor()
{
    box()->setSearchAllWhenEmpty(false);
    m_scene->type("6");
    QCOMPARE(m_scene->rows(), QStringList());
    QVERIFY(!box()->listViewVisiable());
}

void tst_ZrSearchBox::aTypeLimitsTheSecurities()
{
    box()->setSecurityType("Index");
    m_scene->type("000001");
    QCOMPARE(m_scene->rows(), QStringList(SearchScene::row("000001.SH", "Composite")));
    QCOMPARE(box()->getSymbol(), QString("000001.SH"));
    // The type stays the one that is asked for, once there are no securities.
    box()->setSecurityList({});
    box()->clear();
    m_scene->type("6");
    QCOMPARE(m_scene->rows(), QStringList());
    box()->setSecurityType("");
    m_scene->type("0");
    QCOMPARE(m_scene->rows().size(), 2);
}

void tst_ZrSearchBox::aListOfTheCallersIsSearched()
{
    QCOMPARE(box()->setSecurityList({"900001.X", "900002.X | Two | KEYTWO"}), 0);
    m_scene->type("9");
    QCOMPARE(m_scene->rows(), QStringList({"900001.X", SearchScene::row("900002.X", "Two")}));
    box()->clear();
    m_scene->type("key");
    QCOMPARE(m_scene->rows(), QStringList(SearchScene::row("900002.X", "Two")));
}

void tst_ZrSearchBox::theListIsTheCallersUntilSomethingIsTyped()
{
    const QStringList list = {"900001.X", "900002.X | Two | KEYTWO"};
    box()->setSecurityList(list);
    QCOMPARE(m_scene->rows(), list);
}

void tst_ZrSearchBox::aTextNarrowsTheList()
{
    m_scene->type("60051");
    QCOMPARE(m_scene->rows(), QStringList(SearchScene::row("600519.SH", "Maotai")));
    QVERIFY(box()->listViewVisiable());
    m_scene->press(Qt::Key_Backspace);
    QCOMPARE(m_scene->rows().size(), 2);
    m_scene->type("x");
    QCOMPARE(m_scene->rows(), QStringList());
    QVERIFY(!box()->listViewVisiable());
}

void tst_ZrSearchBox::theFirstRowIsCurrent()
{
    m_scene->type("600");
    QCOMPARE(m_scene->currentRow(), 0);
    m_scene->press(Qt::Key_Down);
    QCOMPARE(m_scene->currentRow(), 1);
    m_scene->type("5");
    QCOMPARE(m_scene->currentRow(), 0);
}

void tst_ZrSearchBox::aSearchKeyFindsItsSecurity()
{
    m_scene->type("gz");
    QCOMPARE(m_scene->rows(), QStringList(SearchScene::row("600519.SH", "Maotai")));
    QVERIFY(box()->listViewVisiable());
    QCOMPARE(box()->getSymbol(), QString());
}

void tst_ZrSearchBox::aCutShowsTheFirstHundred()
{
    QStringList list;
    for (int i = 0; i < 150; ++i)
        list.append(QString("%1.SH").arg(600149 - i));
    box()->setSecurityList(list);
    m_scene->type("60");
    QCOMPARE(m_scene->rows().size(), 100);
    QCOMPARE(m_scene->rows().constFirst(), QString("600050.SH"));
    QCOMPARE(m_scene->rows().constLast(), QString("600149.SH"));
    box()->setMaxFilterShowSize(2);
    m_scene->type("0");
    QCOMPARE(m_scene->rows(), QStringList({"600148.SH", "600149.SH"}));
}

void tst_ZrSearchBox::aCutCanBeLifted()
{
    QStringList list;
    for (int i = 0; i < 150; ++i)
        list.append(QString("%1.SH").arg(600000 + i));
    box()->setSecurityList(list);
    box()->setMaxFilterShowSize(0);
    m_scene->type("6");
    QCOMPARE(m_scene->rows().size(), 150);
}

void tst_ZrSearchBox::containsFindsInTheMiddle()
{
    m_scene->type("519");
    QCOMPARE(m_scene->rows(), QStringList());
    box()->clear();
    box()->setSearchMode(2);
    QCOMPARE(m_scene->completer()->filterMode(), Qt::MatchFlags(Qt::MatchContains));
    m_scene->type("519");
    QCOMPARE(m_scene->rows(), QStringList(SearchScene::row("600519.SH", "Maotai")));
    box()->setSearchMode(1);
    QCOMPARE(m_scene->completer()->filterMode(), Qt::MatchFlags(Qt::MatchStartsWith));
}

void tst_ZrSearchBox::anUnknownModeFindsNothing()
{
    box()->setSearchMode(3);
    m_scene->type("6");
    QCOMPARE(m_scene->rows(), QStringList());
    QCOMPARE(m_scene->completer()->filterMode(), Qt::MatchFlags(Qt::MatchStartsWith));
}

void tst_ZrSearchBox::thePopupStandsUnderTheField()
{
    m_scene->type("6");
    QCOMPARE(m_scene->popup()->pos(), box()->mapToGlobal(QPoint(0, box()->height() - 2)));
    QCOMPARE(m_scene->popup()->width(), 300);
}

void tst_ZrSearchBox::clearingHidesTheListAndFillsIt()
{
    box()->setMaxFilterShowSize(2);
    m_scene->type("5");
    QVERIFY(box()->listViewVisiable());
    m_scene->press(Qt::Key_Backspace);
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(m_scene->rows(), QStringList({SearchScene::row("600519.SH", "Maotai"),
                                           SearchScene::row("600520.SH", "Wenfeng")}));
    box()->setMaxFilterShowSize(0);
    m_scene->type("5");
    box()->clear();
    QCOMPARE(m_scene->rows().size(), 6);
}

void tst_ZrSearchBox::theOnlyRowIsPicked()
{
    m_scene->type("60051");
    QCOMPARE(box()->getSymbol(), QString());
    m_scene->type("9");
    QCOMPARE(box()->getSymbol(), QString("600519.SH"));
    QCOMPARE(box()->text(), QString("600519"));
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBox::aShortTextWaits()
{
    m_scene->type("688");
    QCOMPARE(m_scene->rows().size(), 1);
    QCOMPARE(box()->getSymbol(), QString());
    QVERIFY(box()->listViewVisiable());
    QCOMPARE(m_scene->currentRow(), 0);
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBox::deletingNeverPicks()
{
    box()->setMinMatchLength(4);
    m_scene->type("6880");
    QCOMPARE(box()->getSymbol(), QString("688001.SH"));
    m_scene->press(Qt::Key_Backspace);
    QCOMPARE(box()->text(), QString("68800"));
    QCOMPARE(box()->getSymbol(), QString());
    QCOMPARE(m_scene->rows().size(), 1);
    QVERIFY(box()->listViewVisiable());
    m_scene->press(Qt::Key_Backspace);
    QCOMPARE(box()->getSymbol(), QString());
    // As long as the last text is enough again.
    m_scene->type("0");
    QCOMPARE(box()->getSymbol(), QString("688001.SH"));
}

void tst_ZrSearchBox::theLeastLengthCanBeSet()
{
    box()->setMinMatchLength(1);
    m_scene->type("5");
    QCOMPARE(box()->getSymbol(), QString("510300.SH"));
    QCOMPARE(box()->text(), QString("510300"));
}

void tst_ZrSearchBox::aPickBySearchKeyShowsTheCode()
{
    box()->setMinMatchLength(4);
    m_scene->type("gzmt");
    QCOMPARE(box()->getSymbol(), QString("600519.SH"));
    QCOMPARE(box()->text(), QString("600519"));
    // The code is longer than the key was; deleting from it picks nothing either.
    m_scene->press(Qt::Key_Backspace);
    QCOMPARE(box()->text(), QString("60051"));
    QCOMPARE(box()->getSymbol(), QString());
}

void tst_ZrSearchBox::aPickIsToldLaterNameFirst()
{
    QStringList told;
    connect(box(), &ZrSearchBox::selectStockNameChange, this, [&](const QString &name) { told << name; });
    connect(box(), &ZrSearchBox::selectStockCodeChange, this, [&](const QString &code) { told << code; });
    m_scene->type("600519");
    QCOMPARE(told, QStringList());
    m_scene->ringPickTimer();
    QCOMPARE(told, QStringList({"Maotai", "600519"}));
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBox::aPickIsToldAfterTheDelay()
{
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    QSignalSpy codes(box(), &ZrSearchBox::selectStockCodeChange);
    QElapsedTimer since;
    since.start();
    m_scene->type("600519");
    QTRY_COMPARE(codes.count(), 1);
    // A coarse clock may be a twentieth early.
    QVERIFY2(since.elapsed() >= 250 - 25, qPrintable(QString::number(since.elapsed())));
    QCOMPARE(names.count(), 1);
    QCOMPARE(m_scene->pickTimers().size(), 0);
}

void tst_ZrSearchBox::aSecondPickTakesTheFirstOnesPlace()
{
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    m_scene->type("600519");
    const QVector<int> first = m_scene->pickTimers();
    QCOMPARE(first.size(), 1);
    box()->clear();
    m_scene->type("600520");
    QCOMPARE(m_scene->pickTimers(), first);
    m_scene->ringPickTimer();
    QCOMPARE(names.count(), 1);
    QCOMPARE(names.at(0).at(0).toString(), QString("Wenfeng"));
}

void tst_ZrSearchBox::thePickIsLogged()
{
    m_scene->type("600519");
    QTest::ignoreMessage(QtDebugMsg, "000000000000000000000 \"600519.SH\"");
    m_scene->ringPickTimer();
}

void tst_ZrSearchBox::anotherClockIsNotThePicks()
{
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    m_scene->type("600519");
    QTimerEvent other(m_scene->pickTimers().value(0) + 1000);
    QCoreApplication::sendEvent(box(), &other);
    QCOMPARE(names.count(), 0);
    QCOMPARE(m_scene->pickTimers().size(), 1);
}

void tst_ZrSearchBox::editingLosesThePick()
{
    QSignalSpy cleared(box(), &ZrSearchBox::signalStockCodeClear);
    m_scene->type("600519");
    QCOMPARE(cleared.count(), 0);
    m_scene->type("1");
    QCOMPARE(cleared.count(), 1);
    QCOMPARE(box()->getSymbol(), QString());
    m_scene->type("2");
    QCOMPARE(cleared.count(), 1);
    box()->setSymbol("600520.SH");
    box()->clear();
    QCOMPARE(cleared.count(), 2);
}

void tst_ZrSearchBox::aPickedSymbolIsShownShort_data()
{
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with a market") << "600519.SH"
                                   << "600519";
    QTest::newRow("without one") << "600519"
                                 << "600519";
    QTest::newRow("two full stops") << "BRK.B.N"
                                    << "BRK.B";
    QTest::newRow("none") << ""
                          << "";
}

void tst_ZrSearchBox::aPickedSymbolIsShownShort()
{
    QFETCH(QString, symbol);
    QFETCH(QString, expected);
    box()->setSymbol("000001.SZ");
    box()->setSymbol(symbol);
    QCOMPARE(box()->text(), expected);
    QCOMPARE(box()->getSymbol(), symbol);
}

void tst_ZrSearchBox::setSymbolTellsNothing()
{
    QSignalSpy names(box(), &ZrSearchBox::selectStockNameChange);
    QSignalSpy codes(box(), &ZrSearchBox::selectStockCodeChange);
    QSignalSpy cleared(box(), &ZrSearchBox::signalStockCodeClear);
    QSignalSpy errors(box(), &ZrSearchBox::signalErrorCode);
    box()->setSymbol("600519.SH");
    box()->setSymbol("600520.SH");
    box()->setSymbol("");
    QCOMPARE(m_scene->pickTimers().size(), 0);
    QVERIFY(!box()->listViewVisiable());
    QCOMPARE(names.count() + codes.count() + cleared.count() + errors.count(), 0);
}

void tst_ZrSearchBox::theSameSymbolChangesNothing()
{
    box()->setSymbol("600519.SH");
    QSignalSpy texts(box(), &QLineEdit::textChanged);
    box()->setSymbol("600519.SH");
    QCOMPARE(texts.count(), 0);
    // Of another market: the same code.
    box()->setSymbol("600519.SZ");
    QCOMPARE(texts.count(), 0);
    QCOMPARE(box()->getSymbol(), QString("600519.SZ"));
}

void tst_ZrSearchBox::theListCanBeOpenedAndHidden()
{
    box()->popCompleter(true);
    QVERIFY(!box()->listViewVisiable()); // nothing to show
    box()->setSecurityType("");
    box()->popCompleter(true);
    QVERIFY(box()->listViewVisiable());
    QCOMPARE(m_scene->popup()->pos(), box()->mapToGlobal(QPoint(0, box()->height() - 2)));
    QCOMPARE(m_scene->popup()->width(), 300);
    box()->popCompleter(false);
    QVERIFY(!box()->listViewVisiable());
}

void tst_ZrSearchBox::endingTheBoxInASlotIsHarmless_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("name") << QByteArray(SIGNAL(selectStockNameChange(QString)));
    QTest::newRow("code") << QByteArray(SIGNAL(selectStockCodeChange(QString)));
    QTest::newRow("cleared") << QByteArray(SIGNAL(signalStockCodeClear()));
}

void tst_ZrSearchBox::endingTheBoxInASlotIsHarmless()
{
    QFETCH(QByteArray, signal);
    m_scene->type("600519");
    QSignalSpy spy(box(), signal.constData());
    const QPointer<ZrSearchBox> watched(box());
    // A spy is called before: the context of a connection made later.
    QObject end;
    connect(&end, &QObject::objectNameChanged, this, [this] { m_scene->endBox(); });
    QObject relay;
    connect(box(), &ZrSearchBox::selectStockNameChange, &relay, [&] {
        if (signal == SIGNAL(selectStockNameChange(QString)))
            end.setObjectName("now");
    });
    connect(box(), &ZrSearchBox::selectStockCodeChange, &relay, [&] {
        if (signal == SIGNAL(selectStockCodeChange(QString)))
            end.setObjectName("now");
    });
    connect(box(), &ZrSearchBox::signalStockCodeClear, &relay, [&] {
        if (signal == SIGNAL(signalStockCodeClear()))
            end.setObjectName("now");
    });
    if (signal == SIGNAL(signalStockCodeClear()))
        // Not by a key: the toolkit's own editor goes on with the field after a change of its text.
        QMetaObject::invokeMethod(box(), "slotSetCompleter", Q_ARG(QString, "6"));
    else
        m_scene->ringPickTimer();
    QVERIFY(!watched);
    QCOMPARE(spy.count(), 1);
}

void tst_ZrSearchBox::randomTextsShowWhatTheMatcherFinds()
{
    QRandomGenerator random(26);
    QStringList list;
    for (int i = 0; i < 300; ++i) {
        QString symbol;
        for (int digit = 0; digit < 6; ++digit)
            symbol.append(QChar('0' + random.bounded(3)));
        list.append(QStringList({symbol + ".SH", "n", QString(QChar('a' + random.bounded(3)))})
                        .join(Constants::SymbolSearch_Split));
    }
    box()->setSecurityList(list);
    const ZrSymbolText::Parted parted = ZrSymbolText::parted(list);
    ZrSymbolMatcher matcher;
    matcher.setLists(parted.securities, parted.searchKeys);
    box()->setMaxFilterShowSize(20);
    for (int round = 0; round < 300; ++round) {
        const int mode = 1 + random.bounded(2);
        box()->setSearchMode(mode);
        QString text;
        const int size = 1 + random.bounded(5); // too short for a pick
        for (int i = 0; i < size; ++i)
            text.append(QString("012ab").at(random.bounded(5)));
        box()->clear(); // the same text again changes nothing
        box()->setText(text);
        const QStringList expected = matcher.matches(text, mode, 20);
        QCOMPARE(m_scene->rows(), expected);
        QCOMPARE(box()->listViewVisiable(), !expected.isEmpty());
    }
}

ZR_TEST_MAIN(tst_ZrSearchBox)
#include "tst_zrsearchbox.moc"
