#include "FrameScene.h"
#include "ZrPlainText.h"
#include "ZrTestMain.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

namespace {

constexpr int HundredKilobytes = 100 * 1024;

const QChar breakHere(0x200B);
const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80"); // two UTF-16 units

/// Outside texts that a widget might take for more than text.
void addHostileRows()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("picture") << QStringLiteral("<img src=\"file:///x.png\">");
    QTest::newRow("link") << QStringLiteral("<a href=\"http://x\">click</a>");
    QTest::newRow("document") << QStringLiteral(
        "<!DOCTYPE html><html><head><style>*{}</style></head></html>");
    QTest::newRow("entity") << QStringLiteral("&lt;b&gt; &amp; &#65;");
    QTest::newRow("shortcut") << QStringLiteral("&Sell && &buy");
    QTest::newRow("style sheet") << QStringLiteral("} * { background: red; }");
}

/// 100 kB without a place to break, of several kinds.
void addEndlessRows()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("Latin") << QString(HundredKilobytes, 'W');
    QTest::newRow("Chinese") << QString(HundredKilobytes / 3, QChar(0x8BA4));
    QTest::newRow("Chinese full stops") << QString(HundredKilobytes / 3, QChar(0x3002));
    QTest::newRow("Arabic") << QString(HundredKilobytes / 2, QChar(0x0645));
    QTest::newRow("accents over one letter") << "a" + QString(HundredKilobytes / 2, QChar(0x0301));
    QTest::newRow("a script that no font has") << QString(HundredKilobytes / 3, QChar(0x0E01));
    QTest::newRow("private use") << QString(HundredKilobytes / 3, QChar(0xE000));
    QTest::newRow("scripts in turn") << QString::fromUtf8("认W\xD9\x85").repeated(HundredKilobytes / 6);
    QTest::newRow("pairs") << emoji.repeated(HundredKilobytes / 4);
    QTest::newRow("no-break spaces") << QString(HundredKilobytes / 2, QChar::Nbsp);
    QTest::newRow("line ends") << QString(HundredKilobytes, '\n');
    QTest::newRow("tabs") << QString(HundredKilobytes, '\t');
    QTest::newRow("markup") << QStringLiteral("<b>").repeated(HundredKilobytes / 3);
    QTest::newRow("NUL") << QString(HundredKilobytes, QChar(0));
}

} // namespace

class tst_ZrPlainText : public QObject
{
    Q_OBJECT
private slots:
    void aTextWithinItsBoundIsKept_data();
    void aTextWithinItsBoundIsKept();
    void aLongerTextEndsInTheMark_data();
    void aLongerTextEndsInTheMark();
    void aLineBeyondItsBoundEndsInTheMark_data();
    void aLineBeyondItsBoundEndsInTheMark();
    void aLongWordGetsPlacesToBreak_data();
    void aLongWordGetsPlacesToBreak();
    void noCharacterIsBroken();
    void aCaptionIsOneLineWithoutAShortcut_data();
    void aCaptionIsOneLineWithoutAShortcut();

    void aLabelShowsMarkupAsItStands_data() { addHostileRows(); }
    void aLabelShowsMarkupAsItStands();
    void aLabelMakesNoShortcut();
    void anEditShowsMarkupAsItStands_data() { addHostileRows(); }
    void anEditShowsMarkupAsItStands();
    void aButtonShowsItsAmpersands();
    void aToolTipShowsMarkupAsItStands();

    void anEndlessTextFitsALabel_data() { addEndlessRows(); }
    void anEndlessTextFitsALabel();
    void anEndlessCaptionFitsALabel_data() { addEndlessRows(); }
    void anEndlessCaptionFitsALabel();
    void anEndlessTextFitsAnEdit_data() { addEndlessRows(); }
    void anEndlessTextFitsAnEdit();
    void aLongLogIsCut();
    void anEndlessLineFitsTheEditItIsAppendedTo();
    void whatIsOutOfSightIsLeftOut_data();
    void whatIsOutOfSightIsLeftOut();
    void nothingIsDoneToNothing();
};

void tst_ZrPlainText::aTextWithinItsBoundIsKept_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("one line, full") << QStringLiteral("1234567890");
    QTest::newRow("three lines, full") << QStringLiteral("a\nb\nc");
    QTest::newRow("ends of all kinds") << QStringLiteral("a\r\nb\rc");
    QTest::newRow("pairs, full") << emoji.repeated(5);
}

void tst_ZrPlainText::aTextWithinItsBoundIsKept()
{
    QFETCH(QString, text);
    QCOMPARE(ZrPlainText::beginning(text, {10, 3, 10}), text);
}

void tst_ZrPlainText::aLongerTextEndsInTheMark_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("characters");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("kept");

    QTest::newRow("one character too many") << "12345678901" << 10 << 3 << "1234567890";
    QTest::newRow("one line too many") << "a\nb\nc\nd" << 10 << 3 << "a\nb\nc";
    QTest::newRow("one line, but it ends") << "a\n" << 10 << 1 << "a";
    QTest::newRow("Windows' line ends count once") << "a\r\nb\r\nc\r\nd" << 100 << 3 << "a\r\nb\r\nc";
    QTest::newRow("Unicode's line ends count")
        << QStringLiteral("a\u2028b\u2029c") << 100 << 2 << QStringLiteral("a\u2028b");
    QTest::newRow("not within a pair") << emoji.repeated(6) << 3 << 3 << emoji;
    QTest::newRow("not before an accent") << QStringLiteral("abcde\u0301") << 5 << 3 << "abcd";
    QTest::newRow("nothing allowed") << "abc" << 0 << 3 << "";
    QTest::newRow("less than nothing allowed") << "abc" << -1 << 3 << "";
}

void tst_ZrPlainText::aLongerTextEndsInTheMark()
{
    QFETCH(QString, text);
    QFETCH(int, characters);
    QFETCH(int, lines);
    QFETCH(QString, kept);
    QCOMPARE(ZrPlainText::beginning(text, {characters, lines, 100}), kept + ZrPlainText::mark());
}

void tst_ZrPlainText::aLineBeyondItsBoundEndsInTheMark_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // with '|' for the mark

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("full lines") << "12345\n12345\r\n12345"
                                << "12345\n12345\r\n12345";
    QTest::newRow("first line") << "123456\n12"
                                << "12345|\n12";
    QTest::newRow("line between") << "1\n1234567\n1"
                                  << "1\n12345|\n1";
    QTest::newRow("last line") << "1\n1234567"
                               << "1\n12345|";
    QTest::newRow("all lines, Windows' ends") << "123456\r\n123456\r\n"
                                              << "12345|\r\n12345|\r\n";
    QTest::newRow("not within a pair") << "1234" + emoji << "1234|";
    QTest::newRow("not before an accent, in a later line") << QStringLiteral("1\n12345\u0301") << "1\n1234|";
    QTest::newRow("a line of accents alone") << "1\n" + QString(9, QChar(0x0301)) << "1\n|";
    QTest::newRow("cut within a long line: one mark") << "1\n" + QString(99, '2') << "1\n22222|";
    QTest::newRow("cut within a short line")
        << QStringLiteral("1234\n").repeated(9) << "1234\n1234\n1234\n1234|";
}

void tst_ZrPlainText::aLineBeyondItsBoundEndsInTheMark()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(ZrPlainText::beginning(text, {24, 4, 5}), expected.replace('|', ZrPlainText::mark()));
}

void tst_ZrPlainText::aLongWordGetsPlacesToBreak_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // with '|' for a place to break

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("words") << "Order 600000 was refused by the exchange"
                           << "Order 600000 was refused by the exchange";
    QTest::newRow("24 characters") << QString(24, 'x') << QString(24, 'x');
    QTest::newRow("25 characters") << QString(25, 'x') << "xxxxxxxx|xxxxxxxx|xxxxxxxx|x";
    QTest::newRow("among others") << "a " + QString(25, 'x') + "\nb"
                                  << "a xxxxxxxx|xxxxxxxx|xxxxxxxx|x\nb";
    QTest::newRow("two of them") << QString(25, 'x') + ' ' + QString(26, 'y')
                                 << "xxxxxxxx|xxxxxxxx|xxxxxxxx|x yyyyyyyy|yyyyyyyy|yyyyyyyy|yy";
    QTest::newRow("Chinese breaks by itself") << QString(60, QChar(0x8BA4)) << QString(60, QChar(0x8BA4));
    QTest::newRow("no-break spaces hold together")
        << QString(25, QChar::Nbsp)
        << QString(8, QChar::Nbsp) + '|' + QString(8, QChar::Nbsp) + '|' + QString(8, QChar::Nbsp) + '|' +
               QChar(QChar::Nbsp);
}

void tst_ZrPlainText::aLongWordGetsPlacesToBreak()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(ZrPlainText::breakable(text).replace(breakHere, QLatin1Char('|')), expected);
    // What has its places already gets no more.
    const QString once = ZrPlainText::breakable(text);
    QCOMPARE(ZrPlainText::breakable(once), once);
}

void tst_ZrPlainText::noCharacterIsBroken()
{
    const QString letters = QStringLiteral("e\u0301").repeated(30);
    for (const QString &piece : ZrPlainText::breakable(letters).split(breakHere))
        QVERIFY(!piece.isEmpty() && !piece.at(0).isMark());
    for (const QString &piece : ZrPlainText::breakable(emoji.repeated(40)).split(breakHere))
        QVERIFY(!piece.isEmpty() && !piece.at(0).isLowSurrogate());
}

void tst_ZrPlainText::aCaptionIsOneLineWithoutAShortcut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << "Orders"
                           << "Orders";
    QTest::newRow("ampersand") << "P&L"
                               << "P&&L";
    QTest::newRow("several") << "&a &&b &"
                             << "&&a &&&&b &&";
    QTest::newRow("lines") << "a\nb\tc\r\nd"
                           << "a b c  d";
    QTest::newRow("Unicode's lines") << QStringLiteral("a\u2028b") << "a b";
    QTest::newRow("long") << QString(201, 'x') << QString(200, 'x') + ZrPlainText::mark();
}

void tst_ZrPlainText::aCaptionIsOneLineWithoutAShortcut()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(ZrPlainText::caption(text), expected);
}

void tst_ZrPlainText::aLabelShowsMarkupAsItStands()
{
    QFETCH(QString, text);
    QLabel label;
    ZrPlainText::setText(&label, text);
    QCOMPARE(label.text().remove(breakHere), text);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QVERIFY(label.wordWrap());
    ZrPlainText::setCaption(&label, text);
    QCOMPARE(label.text(), text);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QVERIFY(!label.wordWrap());
}

void tst_ZrPlainText::aLabelMakesNoShortcut()
{
    QWidget window;
    auto *const first = new QLineEdit(&window);
    auto *const buddy = new QLineEdit(&window);
    auto *const label = new QLabel(&window);
    label->setBuddy(buddy);
    ZrPlainText::setCaption(label, QStringLiteral("&Buy"));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTRY_VERIFY(first->hasFocus());
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    QVERIFY(first->hasFocus());
    QCOMPARE(label->buddy(), nullptr);
}

void tst_ZrPlainText::anEditShowsMarkupAsItStands()
{
    QFETCH(QString, text);
    QTextEdit edit;
    ZrPlainText::setText(&edit, text);
    QCOMPARE(edit.toPlainText(), text);
    ZrPlainText::appendLine(&edit, text);
    QCOMPARE(edit.toPlainText(), text + text + '\n');
    QVERIFY(edit.textCursor().atEnd());
}

void tst_ZrPlainText::aButtonShowsItsAmpersands()
{
    QPushButton button(ZrPlainText::caption(QStringLiteral("&Buy")));
    QVERIFY(button.shortcut().isEmpty());
}

void tst_ZrPlainText::aToolTipShowsMarkupAsItStands()
{
    QWidget widget;
    ZrPlainText::setToolTip(&widget, QStringLiteral("<b>x</b>"));
    QCOMPARE(widget.toolTip(), ZrPlainText::toolTip(QStringLiteral("<b>x</b>")));
    QVERIFY(widget.toolTip().contains(QStringLiteral("&lt;b&gt;x&lt;/b&gt;")));
    ZrPlainText::setToolTip(&widget, QStringLiteral("plain"));
    QCOMPARE(widget.toolTip(), QStringLiteral("plain"));
}

void tst_ZrPlainText::anEndlessTextFitsALabel()
{
    QFETCH(QString, text);
    QWidget window;
    auto *const label = new QLabel;
    auto *const layout = new QHBoxLayout(&window);
    layout->addWidget(label);
    ZrPlainText::setText(label, text);
    QVERIFY2(layout->totalMinimumSize().width() <= 300,
             qPrintable(QString::number(layout->totalMinimumSize().width())));
    QVERIFY(label->text().endsWith(ZrPlainText::mark()));
}

void tst_ZrPlainText::anEndlessCaptionFitsALabel()
{
    QFETCH(QString, text);
    QWidget window;
    auto *const label = new QLabel;
    auto *const layout = new QHBoxLayout(&window);
    layout->addWidget(label);
    ZrPlainText::setCaption(label, text);
    QVERIFY(layout->totalMinimumSize().width() <= 300);
    // A minimum of the caller's own stays.
    label->setMinimumWidth(80);
    ZrPlainText::setCaption(label, text);
    QCOMPARE(label->minimumWidth(), 80);
}

void tst_ZrPlainText::anEndlessTextFitsAnEdit()
{
    QFETCH(QString, text);
    QTextEdit edit;
    edit.resize(300, 200);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    edit.clear();
    ZrPlainText::setText(&edit, text);
    FrameScene::shot(&edit);
    QCOMPARE(edit.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(edit.size(), QSize(300, 200));
}

void tst_ZrPlainText::aLongLogIsCut()
{
    const QString text = QStringLiteral("09:15:00 order 12345 was taken by the market\n").repeated(3000);
    QTextEdit edit;
    edit.resize(300, 200);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    edit.clear();
    ZrPlainText::setText(&edit, text);
    FrameScene::shot(&edit);
    QVERIFY(edit.toPlainText().endsWith(ZrPlainText::mark()));
}

void tst_ZrPlainText::anEndlessLineFitsTheEditItIsAppendedTo()
{
    const QString text(HundredKilobytes, 'W');
    QTextEdit edit;
    edit.resize(300, 200);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    ZrPlainText::appendLine(&edit, text);
    FrameScene::shot(&edit);
    QCOMPARE(edit.horizontalScrollBar()->maximum(), 0);
}

void tst_ZrPlainText::whatIsOutOfSightIsLeftOut_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QSize>("place");
    QTest::addColumn<int>("expected"); // characters kept
    QTest::newRow("fits") << 80 << QSize(80, 20) << 80;
    QTest::newRow("one more than pixels") << 81 << QSize(80, 20) << 80;
    QTest::newRow("endless") << HundredKilobytes << QSize(80, 20) << 80;
    QTest::newRow("no place") << 10 << QSize(0, 0) << 1;
    QTest::newRow("no size") << 10 << QSize() << 1;
}

void tst_ZrPlainText::whatIsOutOfSightIsLeftOut()
{
    QFETCH(int, length);
    QFETCH(QSize, place);
    QFETCH(int, expected);
    const QString text(length, 'W');
    const QString seen = ZrPlainText::visiblePart(text, place);
    QCOMPARE(seen, length == expected ? text : text.left(expected) + ZrPlainText::mark());
}

void tst_ZrPlainText::nothingIsDoneToNothing()
{
    ZrPlainText::setText(static_cast<QLabel *>(nullptr), QStringLiteral("x"));
    ZrPlainText::setText(static_cast<QTextEdit *>(nullptr), QStringLiteral("x"));
    ZrPlainText::setCaption(nullptr, QStringLiteral("x"));
    ZrPlainText::appendLine(nullptr, QStringLiteral("x"));
    ZrPlainText::setToolTip(nullptr, QStringLiteral("x"));
}

ZR_TEST_MAIN(tst_ZrPlainText)
#include "tst_zrplaintext.moc"
