#include "ZrDeskToolBar.h"
#include "ZrTestMain.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

/// The workstation's tool bar.
class tst_ZrDeskToolBar : public QObject
{
    Q_OBJECT
private slots:
    void theSkinInUseIsChosen();
    void aSkinIsTold();
    void eachPluginCanBeOpened();
    void aTitleFromAFileIsNoShortcut();
};

namespace {
const QStringList skins = {QStringLiteral("dark"), QStringLiteral("light"), QStringLiteral("own")};

QToolButton *openPluginButton(const ZrDeskToolBar &bar)
{
    return bar.findChild<QToolButton *>(QStringLiteral("openPluginButton"));
}
} // namespace

void tst_ZrDeskToolBar::theSkinInUseIsChosen()
{
    const ZrDeskToolBar bar(skins, QStringLiteral("light"));
    const auto *const choice = bar.findChild<QComboBox *>(QStringLiteral("skinChoice"));
    QCOMPARE(choice->currentData().toString(), QStringLiteral("light"));
    QCOMPARE(choice->itemText(2), QStringLiteral("own")); // one that has no name of ours
}

void tst_ZrDeskToolBar::aSkinIsTold()
{
    const ZrDeskToolBar bar(skins, QStringLiteral("dark"));
    QSignalSpy chosen(&bar, &ZrDeskToolBar::signalSkinChosen);
    bar.findChild<QComboBox *>(QStringLiteral("skinChoice"))->setCurrentIndex(1);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toString(), QStringLiteral("light"));
}

void tst_ZrDeskToolBar::eachPluginCanBeOpened()
{
    ZrDeskToolBar bar(skins, QStringLiteral("dark"));
    QVERIFY(!openPluginButton(bar)->isEnabled());
    bar.setPlugins({{QStringLiteral("a"), QStringLiteral("First")}, {QStringLiteral("b"), QString()}});
    QVERIFY(openPluginButton(bar)->isEnabled());
    QSignalSpy chosen(&bar, &ZrDeskToolBar::signalPluginChosen);
    const QList<QAction *> actions = openPluginButton(bar)->menu()->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.at(0)->text(), QStringLiteral("First"));
    QCOMPARE(actions.at(1)->text(), QStringLiteral("b")); // without a title the ID
    actions.at(1)->trigger();
    QCOMPARE(chosen.at(0).at(0).toString(), QStringLiteral("b"));
    bar.setPlugins({});
    QVERIFY(!openPluginButton(bar)->isEnabled());
}

void tst_ZrDeskToolBar::aTitleFromAFileIsNoShortcut()
{
    ZrDeskToolBar bar(skins, QStringLiteral("dark"));
    bar.setPlugins(
        {{QStringLiteral("a"), QStringLiteral("Fish &\nChips") + QString(5000, QLatin1Char('w'))}});
    const QString text = openPluginButton(bar)->menu()->actions().constFirst()->text();
    QVERIFY(text.startsWith(QLatin1String("Fish && Chips")));
    QVERIFY(text.size() < 110);
}

ZR_TEST_MAIN(tst_ZrDeskToolBar)
#include "tst_zrdesktoolbar.moc"
