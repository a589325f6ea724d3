#include "ZrKeyNames.h"
#include "ZrTestMain.h"

class tst_ZrKeyNames : public QObject
{
    Q_OBJECT
private slots:
    void keysAreCalled_data();
    void keysAreCalled();
    void functionKeysAreNumbered();
    void printableCharactersAreTheirOwnNames();
    void nothingElseHasAName();
};

void tst_ZrKeyNames::keysAreCalled_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("expected");

    const struct
    {
        Qt::Key key;
        const char *expected;
    } rows[] = {{Qt::Key_Escape, "Esc"},
                {Qt::Key_Tab, "Tab"},
                {Qt::Key_Backtab, "Shift+Tab"},
                {Qt::Key_Backspace, "BackSpace"},
                {Qt::Key_Return, "Return"},
                {Qt::Key_Enter, "Enter"},
                {Qt::Key_Insert, "Ins"},
                {Qt::Key_Delete, "Del"},
                {Qt::Key_Pause, "Pause"},
                {Qt::Key_Print, "Print"},
                {Qt::Key_SysReq, "SysReq"},
                {Qt::Key_Clear, "Clear"},
                {Qt::Key_Home, "Home"},
                {Qt::Key_End, "End"},
                {Qt::Key_Left, "Left"},
                {Qt::Key_Up, "Up"},
                {Qt::Key_Right, "Right"},
                {Qt::Key_Down, "Down"},
                {Qt::Key_PageUp, "PgUp"},
                {Qt::Key_PageDown, "PgDown"},
                {Qt::Key_Shift, "Shift"},
                {Qt::Key_Control, "Ctrl"},
                {Qt::Key_Meta, "Win"},
                {Qt::Key_Alt, "Alt"},
                {Qt::Key_AltGr, "Ctrl+Alt+"},
                {Qt::Key_CapsLock, "CapsLock"},
                {Qt::Key_NumLock, "NumLock"},
                {Qt::Key_ScrollLock, "ScrollLock"},
                {Qt::Key_F1, "F1"},
                {Qt::Key_F35, "F35"},
                {Qt::Key_Space, "Space"},
                {Qt::Key_A, "A"},
                {Qt::Key_Plus, "+"},
                {Qt::Key_0, "0"}};
    for (const auto &row : rows)
        QTest::newRow(row.expected) << int(row.key) << QString::fromLatin1(row.expected);
}

void tst_ZrKeyNames::keysAreCalled()
{
    QFETCH(int, key);
    QFETCH(QString, expected);
    QCOMPARE(ZrKeyNames::name(key), expected);
}

void tst_ZrKeyNames::functionKeysAreNumbered()
{
    for (int number = 1; number <= 35; ++number)
        QCOMPARE(ZrKeyNames::name(Qt::Key_F1 + number - 1), QStringLiteral("F%1").arg(number));
    QCOMPARE(ZrKeyNames::name(Qt::Key_F35 + 1), QString());
}

void tst_ZrKeyNames::printableCharactersAreTheirOwnNames()
{
    for (int key = 33; key <= 126; ++key) {
        const bool isLowerCase = key >= 'a' && key <= 'z';
        QCOMPARE(ZrKeyNames::name(key), isLowerCase ? QString() : QString(QChar(key)));
    }
}

void tst_ZrKeyNames::nothingElseHasAName()
{
    // 28 keys with names of their own, the space bar, F1 to F35, and 68 characters.
    QCOMPARE(ZrKeyNames::table().size(), 28 + 1 + 35 + 68);
    for (const int key :
         {int(Qt::Key_VolumeUp), int(Qt::Key_unknown), int(Qt::Key_Menu), 0, -1, 31, 127, 0xE9})
        QVERIFY(ZrKeyNames::name(key).isEmpty());
}

ZR_TEST_GUILESS_MAIN(tst_ZrKeyNames)
#include "tst_zrkeynames.moc"
