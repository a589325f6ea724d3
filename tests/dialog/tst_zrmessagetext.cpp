#include "DialogScene.h"
#include "ZrMessageText.h"
#include "ZrPlainText.h"
#include "ZrTestMain.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtWidgets/QScrollBar>

class tst_ZrMessageText : public QObject
{
    Q_OBJECT
private slots:
    void aMessageIsPlainTextToRead();
    void everyParagraphIsCentred();
    void aShortMessageStandsInTheMiddle();
    void aMessageAsHighAsItsPlaceBeginsAtTheTop();
    void theMeasuresAreThoseOfTheFont();
    void tabLeavesTheText();
    void aMessageOfWordsIsShownWhole_data();
    void aMessageOfWordsIsShownWhole();
    void aVeryLongMessageSaysThatItIsCut();
    void theWidthIsThatOfTheWholeMessage();

private:
    static QRect inkOf(ZrMessageText *text);
};

// The rectangle that holds all that isn't background.
QRect tst_ZrMessageText::inkOf(ZrMessageText *text)
{
    const QImage image = text->grab().toImage();
    const QRgb ground = image.pixel(1, 1);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

void tst_ZrMessageText::aMessageIsPlainTextToRead()
{
    ZrMessageText text;
    text.setMessage(DialogScene::markup());
    QCOMPARE(text.toPlainText(), DialogScene::markup());
    QVERIFY(text.isReadOnly());
    QVERIFY(!text.textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse));
    QVERIFY(text.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
}

void tst_ZrMessageText::everyParagraphIsCentred()
{
    ZrMessageText text;
    text.setFrameShape(QFrame::NoFrame);
    QCOMPARE(int(text.document()->defaultTextOption().alignment()), int(Qt::AlignHCenter | Qt::AlignVCenter));
    text.setMessage("one\ntwo");
    text.resize(300, 100);
    text.show();
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
        const QTextLine line = block.layout()->lineAt(0);
        const qreal left = line.naturalTextRect().left();
        const qreal right = text.document()->textWidth() - line.naturalTextRect().right();
        QVERIFY2(qAbs(left - right) <= 10, qPrintable(block.text())); // the document's own margins
    }
    QCOMPARE(int(text.alignment()), int(Qt::AlignHCenter | Qt::AlignVCenter));
}

void tst_ZrMessageText::aShortMessageStandsInTheMiddle()
{
    ZrMessageText text;
    text.setStyleSheet("QTextEdit { background: white; border: none; }");
    text.setMessage("HHHH");
    text.resize(300, 100);
    text.show();
    const QRect ink = inkOf(&text);
    QVERIFY(!ink.isNull());
    QVERIFY2(qAbs(ink.center().x() - 150) <= 3, qPrintable(QString::number(ink.center().x())));
    QVERIFY2(qAbs(ink.center().y() - 50) <= 4, qPrintable(QString::number(ink.center().y())));
    // Also after a change of size or of text.
    text.resize(300, 160);
    QVERIFY(qAbs(inkOf(&text).center().y() - 80) <= 4);
    text.setMessage("HHHH\nHHHH\nHHHH");
    QVERIFY(qAbs(inkOf(&text).center().y() - 80) <= 4);
}

void tst_ZrMessageText::aMessageAsHighAsItsPlaceBeginsAtTheTop()
{
    ZrMessageText text;
    text.setFrameShape(QFrame::NoFrame);
    text.setMessage(QString("line\n").repeated(40));
    text.resize(300, 100);
    text.show();
    QCOMPARE(text.viewport()->y(), 0);
    QVERIFY(text.verticalScrollBar()->maximum() > 0);
    QCOMPARE(text.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void tst_ZrMessageText::theMeasuresAreThoseOfTheFont()
{
    ZrMessageText text;
    text.setMessage("some words");
    QCOMPARE(text.textWidthPx(), text.fontMetrics().horizontalAdvance("some words"));
    QCOMPARE(text.lineHeightPx(), text.fontMetrics().height());
    // The style sheet's font, before the widget was ever shown.
    QWidget window;
    ZrMessageText inside(&window);
    inside.setMessage("some words");
    window.setStyleSheet("QTextEdit { font-size: 40px; }");
    QVERIFY(inside.lineHeightPx() >= 40);
}

void tst_ZrMessageText::tabLeavesTheText()
{
    const ZrMessageText text;
    QVERIFY(text.tabChangesFocus());
    QVERIFY(text.focusPolicy() & Qt::TabFocus);
}

void tst_ZrMessageText::aVeryLongMessageSaysThatItIsCut()
{
    ZrMessageText text;
    text.setMessage(DialogScene::withoutBlank());
    QVERIFY(text.toPlainText().endsWith(ZrPlainText::mark()));
    QVERIFY(text.toPlainText().size() < 4100);
    text.setMessage(QString("several words ").repeated(7000));
    QVERIFY(text.toPlainText().endsWith(ZrPlainText::mark()));
    QVERIFY(text.toPlainText().size() < 4100);
    text.setMessage(QString(100 * 1000, '\n'));
    QVERIFY(text.document()->blockCount() < 510);
}

void tst_ZrMessageText::theWidthIsThatOfTheWholeMessage()
{
    ZrMessageText text;
    text.setMessage(QString(3000, 'i')); // of which the first thousand are shown
    QVERIFY(text.toPlainText().size() < 1100);
    QCOMPARE(text.textWidthPx(), text.fontMetrics().horizontalAdvance(QString(3000, 'i')));
}

void tst_ZrMessageText::aMessageOfWordsIsShownWhole_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("a long paragraph") << QString("several words ").repeated(280);
    QTest::newRow("a long Chinese paragraph") << QString("价格超出当日涨跌幅限制").repeated(300);
    QTest::newRow("an address") << QString("see https://example.org/") + QString(200, 'a') + " for more";
}

void tst_ZrMessageText::aMessageOfWordsIsShownWhole()
{
    QFETCH(QString, message);
    ZrMessageText text;
    text.setMessage(message);
    QCOMPARE(text.toPlainText(), message);
}

ZR_TEST_MAIN(tst_ZrMessageText)
#include "tst_zrmessagetext.moc"
