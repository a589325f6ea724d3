#include "ZrMainWindow.h"

#include "ZrBlotterPanel.h"
#include "ZrBlotterToolBar.h"
#include "ZrStatusLine.h"
#include "ZrTableView.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtWidgets/QDockWidget>

ZrMainWindow::ZrMainWindow(const QStringList &skins, const QString &skin, int maxRows)
    : m_blotter(new ZrBlotterPanel(QStringLiteral(":/client/columns/blotter.xml"), this))
    , m_toolBar(new ZrBlotterToolBar(m_blotter, skins, skin, maxRows, this))
    , m_status(new ZrStatusLine(this))
{
    setObjectName(QStringLiteral("workstation"));
    setWindowTitle(tr("Trading workstation"));
    auto *const dock = new QDockWidget(tr("Order blotter"), this);
    dock->setObjectName(QStringLiteral("blotter"));
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    dock->setWidget(m_blotter);
    m_blotter->view()->setTableViewCaption(tr("Order blotter"));
    addToolBar(m_toolBar);
    addDockWidget(Qt::TopDockWidgetArea, dock);
    setStatusBar(m_status);
    resize(1600, 900);
    connect(m_toolBar, &ZrBlotterToolBar::signalSkinChosen, this, &ZrMainWindow::signalSkinChosen);
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("client/workstation.css"));
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
