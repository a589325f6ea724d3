#include "ZrMainWindow.h"

#include "desk/ZrDeskToolBar.h"
#include "desk/ZrPluginDesk.h"
#include "desk/ZrPluginDock.h"
#include "showcase/ZrShowcaseDocks.h"
#include "ZrPluginsDock.h"
#include "ZrStatusLine.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

ZrMainWindow::ZrMainWindow(const QStringList &skins, const QString &skin)
    : m_toolBar(new ZrDeskToolBar(skins, skin, this))
    , m_desk(new ZrPluginDesk(this, QStringLiteral("desk")))
    , m_status(new ZrStatusLine(this))
    , m_showcase(new ZrShowcaseDocks(this, nullptr))
{
    setObjectName(QStringLiteral("workstation"));
    setWindowTitle(tr("Trading workstation"));
    addToolBar(m_toolBar);
    m_toolBar->addMenu(QStringLiteral("showcaseButton"), tr("Showcase"),
                       tr("A page for each widget, with all its states"), m_showcase->makeMenu(m_toolBar));
    setStatusBar(m_status);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    resize(1600, 900);
    connectParts();
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("client/workstation.css"));
}

void ZrMainWindow::connectParts()
{
    connect(m_toolBar, &ZrDeskToolBar::signalSkinChosen, this, &ZrMainWindow::signalSkinChosen);
    connect(m_desk, &ZrPluginDesk::signalOpened, this,
            [this] { m_showcase->setFront(m_desk->docks().value(0)); });
}

void ZrMainWindow::addPlugins(ZrPluginCatalogue *catalogue)
{
    m_plugins = new ZrPluginsDock(catalogue, this);
    m_plugins->placeIn(this, m_desk->docks().value(0));
    m_toolBar->addWidget(m_plugins->makeButton(m_toolBar));
}

void ZrMainWindow::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrMainWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    emit signalClosed();
}
