#include "ComboScene.h"
#include "ZrMultiComboEdit.h"

class tst_ZrMultiComboEdit : public QObject
{
    Q_OBJECT
private slots:
    void itIsReadOnlyAndHasNoLongestText()
    {
        ZrMultiComboEdit edit;
        QVERIFY(edit.isReadOnly());
        const QString text(100000, QLatin1Char('x'));
        edit.setShownText(text);
        QCOMPARE(edit.text(), text);
    }

    void anyLengthFollowsAnyOther_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        const int most = ZrMultiComboEdit::longestLaidOut;
        for (const int first : {0, 5, most, most + 1, 100000}) {
            for (const int second : {0, 5, most, most + 1, 100000})
                QTest::addRow("%d after %d", second, first) << first << second;
        }
    }

    void anyLengthFollowsAnyOther()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        ZrMultiComboEdit edit;
        edit.setShownText(QString(first, QLatin1Char('a')));
        edit.setShownText(QString(second, QLatin1Char('b')));
        QCOMPARE(edit.text(), QString(second, QLatin1Char('b')));
        QCOMPARE(edit.cursorPosition(), 0);
        const int most = ZrMultiComboEdit::longestLaidOut;
        QCOMPARE(edit.echoMode() == QLineEdit::Normal, second <= most);
        // Screen readers get nothing of what isn't echoed.
        QCOMPARE(edit.accessibleDescription(), second > most ? edit.text().left(most) : QString());
    }

    // What is seen of a long text is the same, whether the base laid it out or not.
    void theBeginningIsSeenHoweverLongTheText()
    {
        ZrMultiComboEdit edit;
        edit.resize(150, 24);
        edit.setShownText(QString(900, QLatin1Char('W')));
        const QImage laidOut = edit.grab().toImage();
        edit.setShownText(QString(5000, QLatin1Char('W')));
        QCOMPARE(edit.grab().toImage(), laidOut);
        edit.setShownText(QString());
        QVERIFY(edit.grab().toImage() != laidOut);
    }

    void aTextThatFitsIsPaintedByTheBase()
    {
        ZrMultiComboEdit edit;
        QLineEdit plain;
        plain.setReadOnly(true);
        plain.setCursor(Qt::ArrowCursor);
        for (QLineEdit *const one : {static_cast<QLineEdit *>(&edit), &plain})
            one->resize(200, 24);
        edit.setShownText(QStringLiteral("A&B;C"));
        plain.setText(QStringLiteral("A&B;C"));
        plain.setCursorPosition(0);
        QCOMPARE(edit.grab().toImage(), plain.grab().toImage());
    }

    void aLongTextCanBeSelected()
    {
        ZrMultiComboEdit edit;
        edit.resize(150, 24);
        edit.setShownText(QString(500, QLatin1Char('W')));
        const QImage before = edit.grab().toImage();
        edit.selectAll();
        QCOMPARE(edit.selectedText().size(), 500);
        QVERIFY(edit.grab().toImage() != before);
    }

    void fromTheRightItBeginsAtTheRight()
    {
        ZrMultiComboEdit edit;
        edit.setLayoutDirection(Qt::RightToLeft);
        edit.setFrame(false);
        edit.resize(200, 24);
        edit.setShownText(QString(3000, QChar(0x05d0)));
        QVERIFY(!edit.grab().isNull());
    }
};

ZR_TEST_MAIN(tst_ZrMultiComboEdit)
#include "tst_zrmulticomboedit.moc"
