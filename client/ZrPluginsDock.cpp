#include "ZrPluginsDock.h"

#include "ZrPluginCatalogue.h"
#include "ZrPluginsPanel.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QToolButton>

ZrPluginsDock::ZrPluginsDock(ZrPluginCatalogue *catalogue, QWidget *parent)
    : QDockWidget(tr("Plugins"), parent)
    , m_panel(new ZrPluginsPanel(catalogue, this))
    , m_isUrgent(!catalogue->endedLastStart().isEmpty())
{
    setObjectName(QStringLiteral("plugins"));
    setWidget(m_panel);
    // Shown alone it would stay behind the dock that it shares its place with.
    connect(toggleViewAction(), &QAction::triggered, this, [this](bool shown) {
        if (shown)
            raise();
    });
}

void ZrPluginsDock::placeIn(QMainWindow *window, QDockWidget *front)
{
    window->addDockWidget(Qt::TopDockWidgetArea, this);
    if (front)
        window->tabifyDockWidget(front, this);
    setVisible(m_isUrgent);
    if (m_isUrgent)
        raise();
}

QToolButton *ZrPluginsDock::makeButton(QWidget *parent) const
{
    auto *const button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("pluginsButton"));
    button->setDefaultAction(toggleViewAction());
    button->setToolTip(tr("Which plugin files are loaded, and why others are not"));
    return button;
}
