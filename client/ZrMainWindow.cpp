#include "ZrMainWindow.h"

#include "showcase/ZrShowcaseDocks.h"
#include "ZrBlotterPanel.h"
#include "ZrBlotterToolBar.h"
#include "ZrPluginsDock.h"
#include "ZrStatusLine.h"
#include "ZrTableView.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

ZrMainWindow::ZrMainWindow(const QStringList &skins, const QString &skin, int maxRows)
    : m_blotter(new ZrBlotterPanel(QStringLiteral(":/client/columns/blotter.xml"), this))
    , m_toolBar(new ZrBlotterToolBar(m_blotter, skins, skin, maxRows, this))
    , m_status(new ZrStatusLine(this))
{
    setObjectName(QStringLiteral("workstation"));
    setWindowTitle(tr("Trading workstation"));
    addToolBar(m_toolBar);
    addDocks();
    addShowcaseButton();
    setStatusBar(m_status);
    resize(1600, 900);
    connect(m_toolBar, &ZrBlotterToolBar::signalSkinChosen, this, &ZrMainWindow::signalSkinChosen);
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("client/workstation.css"));
}

void ZrMainWindow::addDocks()
{
    auto *const dock = new QDockWidget(tr("Order blotter"), this);
    dock->setObjectName(QStringLiteral("blotter"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->setWidget(m_blotter);
    m_blotter->view()->setTableViewCaption(tr("Order blotter"));
    addDockWidget(Qt::TopDockWidgetArea, dock);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    m_showcase = new ZrShowcaseDocks(this, dock);
}

void ZrMainWindow::addShowcaseButton()
{
    auto *const button = new QToolButton(m_toolBar);
    button->setObjectName(QStringLiteral("showcaseButton"));
    button->setText(tr("Showcase"));
    button->setToolTip(tr("A page for each widget, with all its states"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(m_showcase->makeMenu(button));
    m_toolBar->addSeparator();
    m_toolBar->addWidget(button);
}

void ZrMainWindow::addPlugins(ZrPluginCatalogue *catalogue)
{
    m_plugins = new ZrPluginsDock(catalogue, this);
    m_plugins->placeIn(this, findChild<QDockWidget *>(QStringLiteral("blotter"), Qt::FindDirectChildrenOnly));
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
