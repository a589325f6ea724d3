#include "ZrAccountBox.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"

/// The account box in the title of a plugin.
class tst_ZrAccountBox : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void allAccountsComeFirst();
    void aPluginsAccountIsShownAndNotTold();
    void theUsersChoiceIsTold();
    void anUnknownAccountChoosesNothing();
    void aNameIsNoMarkupAndKeepsTheWidth();

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
};

namespace {
const QString number = Vexlor_Fields::UserAccount::tradingAccount;
} // namespace

void tst_ZrAccountBox::initTestCase()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrAccountBox::allAccountsComeFirst()
{
    const ZrAccountBox box;
    QVERIFY(box.count() > 2);
    QVERIFY(box.itemData(0).toMap().isEmpty());
    for (int i = 1; i < box.count(); ++i) {
        const QString account = box.itemData(i).toMap().value(number).toString();
        QVERIFY(!account.isEmpty());
        QVERIFY(box.itemText(i).startsWith(account));
    }
}

void tst_ZrAccountBox::aPluginsAccountIsShownAndNotTold()
{
    ZrAccountBox box;
    QSignalSpy told(&box, &ZrAccountBox::signalAccountChosen);
    box.showAccount(box.itemData(2).toMap());
    QCOMPARE(box.currentIndex(), 2);
    box.showAccount({});
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(told.size(), 0);
}

void tst_ZrAccountBox::theUsersChoiceIsTold()
{
    ZrAccountBox box;
    box.show();
    QSignalSpy told(&box, &ZrAccountBox::signalAccountChosen);
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toMap(), box.itemData(1).toMap());
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(told.at(1).at(0).toMap(), QVariantMap());
}

void tst_ZrAccountBox::anUnknownAccountChoosesNothing()
{
    ZrAccountBox box;
    box.setCurrentIndex(1);
    box.showAccount({{number, QStringLiteral("nobody's")}});
    QCOMPARE(box.currentIndex(), 1);
}

void tst_ZrAccountBox::aNameIsNoMarkupAndKeepsTheWidth()
{
    const ZrAccountBox before;
    const int widthPx = before.sizeHint().width();
    m_host.setAccounts({{{number, QStringLiteral("1")},
                         {Vexlor_Fields::UserAccount::tradingAccountName,
                          QStringLiteral("<b>&name</b>") + QString(5000, QLatin1Char('w'))}}});
    const ZrAccountBox box;
    QCOMPARE(box.sizeHint().width(), widthPx);
    for (int i = 0; i < box.count(); ++i)
        QVERIFY(i == 0 || box.itemText(i).contains(QLatin1String("<b>&name</b>")));
}

ZR_TEST_MAIN(tst_ZrAccountBox)
#include "tst_zraccountbox.moc"
