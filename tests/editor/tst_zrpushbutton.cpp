#include "EditorScene.h"
#include "SheetColours.h"
#include "ZrPlainText.h"
#include "ZrPushButton.h"
#include "ZrTestMain.h"

#include <QtGui/QHoverEvent>
#include <QtWidgets/QHBoxLayout>

class tst_ZrPushButton : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void aNewButtonHasTheStatedValues();
    void aShownButtonStillHasThem();
    void itIsASkinnedView();
    void itWearsTheSheetOfTheSkin();
    void aValidSheetReplacesTheLast();
    void aDifferentValueRepaints_data();
    void aDifferentValueRepaints();
    void pointerAndFocusCheckIt_data();
    void pointerAndFocusCheckIt();
    void theKeyboardsFocusChecksIt();
    void aClickIsForgottenWhenThePointerLeaves();
    void aClickUnderThePointerTakesTheLookAway();
    void theLastChangeWins();
    void widgetsInTheButtonCountWhenTheyAreWatched();
    void otherObjectsDontCount();
    void noEventIsSwallowed();
    void theSpaceBarClicks();
    void eachStateHasItsOwnLook_data();
    void eachStateHasItsOwnLook();
    void textsCanBeRead_data();
    void textsCanBeRead();
    void outsideTextMakesNoShortcut();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
    static void hover(QObject *object, QEvent::Type type);
    std::unique_ptr<EditorHost> m_host;
};

void tst_ZrPushButton::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    m_host = std::make_unique<EditorHost>();
    QVERIFY(m_host->isReady());
}

void tst_ZrPushButton::cleanupTestCase()
{
    m_quiet.reset();
}

void tst_ZrPushButton::init()
{
    QVERIFY(m_host->host.setSkin("dark"));
}

void tst_ZrPushButton::hover(QObject *object, QEvent::Type type)
{
    QHoverEvent event(type, QPointF(5, 5), QPointF(-1, -1));
    QCoreApplication::sendEvent(object, &event);
}

void tst_ZrPushButton::aNewButtonHasTheStatedValues()
{
    const ZrPushButton button;
    QCOMPARE(button.margin(), 5);
    QCOMPARE(button.raduis(), 6);
    QVERIFY(!button.bgColor().isValid());
    QCOMPARE(button.borderColor(), QColor("#4fb7ff"));
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    const ZrPushButton named(QStringLiteral("Send"));
    QCOMPARE(named.text(), QString("Send"));
}

void tst_ZrPushButton::aShownButtonStillHasThem()
{
    ZrPushButton button;
    button.grab();
    QCOMPARE(button.margin(), 5);
    QCOMPARE(button.raduis(), 6);
    QVERIFY(!button.bgColor().isValid());
    QCOMPARE(button.borderColor(), QColor("#4fb7ff"));
}

void tst_ZrPushButton::itIsASkinnedView()
{
    ZrPushButton button;
    QVERIFY(button.qt_metacast("IZrSkin"));
    QVERIFY(button.qt_metacast("com.orbenlake.Plugin.ISkin"));
    QCOMPARE(qobject_cast<IZrSkin *>(static_cast<QObject *>(&button)), static_cast<IZrSkin *>(&button));
}

void tst_ZrPushButton::itWearsTheSheetOfTheSkin()
{
    ZrPushButton button;
    const QString dark = EditorHost::sheet("dark", "zrpushbutton.css");
    const QString light = EditorHost::sheet("light", "zrpushbutton.css");
    QVERIFY(!dark.isEmpty() && !light.isEmpty() && dark != light);
    QCOMPARE(button.styleSheet(), dark);
    QVERIFY(m_host->host.setSkin("light"));
    QCOMPARE(button.styleSheet(), light);
}

void tst_ZrPushButton::aValidSheetReplacesTheLast()
{
    ZrPushButton button;
    button.loadSkin(QStringLiteral("ZrPushButton { color: #010203; }"));
    QCOMPARE(button.styleSheet(), QString("ZrPushButton { color: #010203; }"));
    button.loadSkin(QVariant());
    QCOMPARE(button.styleSheet(), QString("ZrPushButton { color: #010203; }"));
    button.loadSkin(QString(""));
    QCOMPARE(button.styleSheet(), QString());
}

void tst_ZrPushButton::aDifferentValueRepaints_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("other");

    QTest::newRow("margin") << QByteArray("margin") << QVariant(5) << QVariant(9);
    QTest::newRow("radius") << QByteArray("raduis") << QVariant(6) << QVariant(0);
    QTest::newRow("background") << QByteArray("bgColor") << QVariant(QColor()) << QVariant(QColor(Qt::red));
    QTest::newRow("border") << QByteArray("borderColor") << QVariant(QColor("#4fb7ff"))
                            << QVariant(QColor(Qt::green));
}

void tst_ZrPushButton::aDifferentValueRepaints()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, first);
    QFETCH(QVariant, other);
    ZrPushButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    PaintCounter paints(&button);
    button.repaint();
    QCoreApplication::processEvents();
    const int before = paints.count;
    QVERIFY(before > 0);
    QVERIFY(button.setProperty(property.constData(), first));
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, before);
    QVERIFY(button.setProperty(property.constData(), other));
    QTRY_VERIFY(paints.count > before);
    QCOMPARE(button.property(property.constData()), other);
}

void tst_ZrPushButton::pointerAndFocusCheckIt_data()
{
    QTest::addColumn<bool>("byFocus");
    QTest::newRow("pointer") << false;
    QTest::newRow("focus") << true;
}

void tst_ZrPushButton::pointerAndFocusCheckIt()
{
    QFETCH(bool, byFocus);
    ZrPushButton button;
    const auto change = [&](bool comes) {
        if (byFocus) {
            QFocusEvent event(comes ? QEvent::FocusIn : QEvent::FocusOut);
            QCoreApplication::sendEvent(&button, &event);
        } else {
            hover(&button, comes ? QEvent::HoverEnter : QEvent::HoverLeave);
        }
    };
    change(true);
    QVERIFY(button.isChecked());
    change(true);
    QVERIFY(button.isChecked());
    change(false);
    QVERIFY(!button.isChecked());
}

void tst_ZrPushButton::theKeyboardsFocusChecksIt()
{
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const first = new ZrPushButton("One");
    auto *const second = new ZrPushButton("Two");
    row->addWidget(first);
    row->addWidget(second);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTRY_VERIFY(first->hasFocus());
    QVERIFY(first->isChecked() && !second->isChecked());
    QTest::keyClick(&window, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QVERIFY(!first->isChecked() && second->isChecked());
}

void tst_ZrPushButton::aClickIsForgottenWhenThePointerLeaves()
{
    ZrPushButton button("Send");
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(button.isChecked());
    hover(&button, QEvent::HoverLeave);
    QVERIFY(!button.isChecked());
}

void tst_ZrPushButton::aClickUnderThePointerTakesTheLookAway()
{
    ZrPushButton button("Send");
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    hover(&button, QEvent::HoverEnter);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!button.isChecked());
    hover(&button, QEvent::HoverLeave);
    QVERIFY(!button.isChecked());
}

void tst_ZrPushButton::theLastChangeWins()
{
    ZrPushButton button;
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(&button, &in);
    hover(&button, QEvent::HoverEnter);
    hover(&button, QEvent::HoverLeave);
    QVERIFY(!button.isChecked());
}

void tst_ZrPushButton::widgetsInTheButtonCountWhenTheyAreWatched()
{
    ZrPushButton button;
    QWidget inner(&button);
    QWidget innermost(&inner);
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(&innermost, &in);
    QVERIFY(!button.isChecked());
    innermost.installEventFilter(&button);
    QCoreApplication::sendEvent(&innermost, &in);
    QVERIFY(button.isChecked());
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&innermost, &out);
    QVERIFY(!button.isChecked());
}

void tst_ZrPushButton::otherObjectsDontCount()
{
    ZrPushButton button;
    QWidget other;
    other.installEventFilter(&button);
    hover(&other, QEvent::HoverEnter);
    QVERIFY(!button.isChecked());
}

void tst_ZrPushButton::noEventIsSwallowed()
{
    ZrPushButton button;
    for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut, QEvent::Show, QEvent::KeyPress}) {
        QEvent event(type);
        QVERIFY(!button.eventFilter(&button, &event));
    }
}

void tst_ZrPushButton::theSpaceBarClicks()
{
    ZrPushButton button("Send");
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
}

void tst_ZrPushButton::eachStateHasItsOwnLook_data()
{
    QTest::addColumn<QString>("skin");
    QTest::newRow("dark") << "dark";
    QTest::newRow("light") << "light";
}

void tst_ZrPushButton::eachStateHasItsOwnLook()
{
    QFETCH(QString, skin);
    QVERIFY(m_host->host.setSkin(skin));
    QWidget window;
    auto *const row = new QHBoxLayout(&window);
    auto *const button = new ZrPushButton("Send");
    row->addWidget(button);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->clearFocus();
    const auto look = [button] { return button->grab().toImage(); };
    const QImage normal = look();
    hover(button, QEvent::HoverEnter);
    const QImage hovered = look();
    hover(button, QEvent::HoverLeave);
    button->setFocus();
    QTRY_VERIFY(button->hasFocus());
    const QImage focused = look();
    button->setDown(true);
    const QImage pressed = look();
    button->setDown(false);
    button->setEnabled(false);
    const QImage disabled = look();
    const QList<QImage> looks = {normal, hovered, focused, pressed, disabled};
    for (int i = 0; i < looks.size(); ++i)
        QCOMPARE(looks.indexOf(looks.at(i)), i);
}

void tst_ZrPushButton::textsCanBeRead_data()
{
    eachStateHasItsOwnLook_data();
}

void tst_ZrPushButton::textsCanBeRead()
{
    QFETCH(QString, skin);
    const auto rules = SheetColours::read(EditorHost::sheet(skin, "zrpushbutton.css"), QColor());
    QCOMPARE(rules.size(), 5);
    for (const SheetColours &rule : rules) {
        QVERIFY2(SheetColours::contrast(rule.text, rule.background) >= 4.5, qPrintable(rule.selector));
    }
}

void tst_ZrPushButton::outsideTextMakesNoShortcut()
{
    ZrPushButton button(ZrPlainText::caption(QStringLiteral("<b>Bid</b> & Ask")));
    QVERIFY(button.shortcut().isEmpty());
    button.setText(ZrPlainText::caption(QString(100000, 'x')));
    QVERIFY(button.text().size() < 1000);
}

ZR_TEST_MAIN(tst_ZrPushButton)
#include "tst_zrpushbutton.moc"
