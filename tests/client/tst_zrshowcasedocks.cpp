#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrShowcaseDocks.h"
#include "ZrShowcasePage.h"
#include "ZrTestMain.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>

/// Docks of the showcase: made on demand, behind the dock in front.
class tst_ZrShowcaseDocks : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void noPageIsMadeBeforeItIsWanted();
    void aPageStandsBehindTheDockInFront();
    void aPageIsMadeOnce();
    void aClosedPageOpensAgain();
    void anUnknownPageOpensNothing();
    void withoutADockInFrontPagesStandBehindEachOther();
    void theMenuLeadsToEachPage();

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<QMainWindow> m_window;
    QDockWidget *m_front = nullptr;
    ZrShowcaseDocks *m_docks = nullptr;
};

void tst_ZrShowcaseDocks::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrShowcaseDocks::init()
{
    m_window = std::make_unique<QMainWindow>();
    m_front = new QDockWidget(QStringLiteral("front"), m_window.get());
    m_window->addDockWidget(Qt::TopDockWidgetArea, m_front);
    m_docks = new ZrShowcaseDocks(m_window.get(), m_front);
    m_window->resize(900, 600);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_ZrShowcaseDocks::noPageIsMadeBeforeItIsWanted()
{
    QVERIFY(!m_docks->ids().isEmpty());
    QCOMPARE(m_window->findChildren<QDockWidget *>().size(), 1);
    QVERIFY(m_window->findChildren<ZrShowcasePage *>().isEmpty());
}

void tst_ZrShowcaseDocks::aPageStandsBehindTheDockInFront()
{
    const QString id = m_docks->ids().constFirst();
    QDockWidget *const dock = m_docks->open(id);
    QCOMPARE(dock->objectName(), QStringLiteral("showcase-") + id);
    QCOMPARE(dock->windowTitle(), qobject_cast<ZrShowcasePage *>(dock->widget())->title());
    QCOMPARE(m_window->tabifiedDockWidgets(m_front), QList<QDockWidget *>{dock});
    QTRY_VERIFY(dock->widget()->isVisible());
    QTRY_VERIFY(m_front->visibleRegion().isEmpty());
}

void tst_ZrShowcaseDocks::aPageIsMadeOnce()
{
    const QString id = m_docks->ids().constFirst();
    QDockWidget *const dock = m_docks->open(id);
    QCOMPARE(m_docks->open(id), dock);
    QCOMPARE(m_window->findChildren<QDockWidget *>().size(), 2);
}

void tst_ZrShowcaseDocks::aClosedPageOpensAgain()
{
    const QString id = m_docks->ids().constFirst();
    QDockWidget *const dock = m_docks->open(id);
    dock->close();
    QVERIFY(dock->isHidden());
    QCOMPARE(m_docks->open(id), dock);
    QTRY_VERIFY(dock->widget()->isVisible());
}

void tst_ZrShowcaseDocks::anUnknownPageOpensNothing()
{
    QVERIFY(!m_docks->open(QStringLiteral("nothing")));
    QCOMPARE(m_window->findChildren<QDockWidget *>().size(), 1);
}

void tst_ZrShowcaseDocks::withoutADockInFrontPagesStandBehindEachOther()
{
    delete m_front; // closed by its user
    QDockWidget *const first = m_docks->open(m_docks->ids().value(0));
    QDockWidget *const second = m_docks->open(m_docks->ids().value(1));
    QCOMPARE(m_window->tabifiedDockWidgets(first), QList<QDockWidget *>{second});
    auto *const front = new QDockWidget(QStringLiteral("another"), m_window.get());
    m_window->addDockWidget(Qt::BottomDockWidgetArea, front);
    front->show();
    m_docks->setFront(front);
    QDockWidget *const third = m_docks->open(QStringLiteral("push-button"));
    QCOMPARE(m_window->tabifiedDockWidgets(front), QList<QDockWidget *>{third});
}

void tst_ZrShowcaseDocks::theMenuLeadsToEachPage()
{
    QMenu *const menu = m_docks->makeMenu(m_window.get());
    QStringList titles;
    const QList<QAction *> actions = menu->actions();
    for (QAction *const action : actions) {
        if (!action->isSeparator())
            titles.append(action->text());
    }
    QCOMPARE(titles.size(), m_docks->ids().size());
    QVERIFY(!actions.constFirst()->isSeparator());
    QVERIFY(!actions.constLast()->isSeparator());
    actions.constFirst()->trigger();
    const auto *const dock =
        m_window->findChild<QDockWidget *>(QStringLiteral("showcase-") + m_docks->ids().constFirst());
    QVERIFY(dock);
    QCOMPARE(dock->windowTitle(), titles.constFirst());
}

ZR_TEST_MAIN(tst_ZrShowcaseDocks)
#include "tst_zrshowcasedocks.moc"
