#include "ZrPluginDock.h"

#include "ZrMessageBox.h"
#include "ZrPluginBaseWidget_p.h"

#include "ZrPluginTitleBar.h"

#include "zrdefine/PluginPropety.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>

namespace {
constexpr int LeastSidePx = 100;
constexpr int MostSidePx = 8000;
constexpr int ConfirmButton = 1;
constexpr int OnParent = 1;

// The tab of a dock would take an ampersand for a shortcut.
QString asTabText(const QString &title)
{
    QString text = title;
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}
} // namespace

ZrPluginDock::ZrPluginDock(ZrPluginBaseWidget *plugin, QWidget *parent)
    : QDockWidget(parent)
    , m_plugin(plugin)
    , m_title(new ZrPluginTitleBar(plugin, this))
{
    setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable |
                QDockWidget::DockWidgetFloatable);
    setTitleBarWidget(m_title);
    setWidget(plugin);
    connectTitle();
    connectPlugin();
    connectRegistry();
    showProperty(QString());
    connect(this, &QDockWidget::topLevelChanged, this, &ZrPluginDock::takeNormalSize);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { followFocus(now); });
}

ZrPluginDock::~ZrPluginDock()
{
    // The title would take the plugin's own widgets with it, and the plugin still knows them.
    m_title->giveBack();
    delete m_plugin;
}

void ZrPluginDock::connectTitle()
{
    connect(m_title, &ZrPluginTitleBar::signalCopy, this, [this] { emit signalCopyWanted(m_pluginId); });
    connect(m_title, &ZrPluginTitleBar::signalDock, this, [this] { setFloating(!isFloating()); });
    connect(m_title, &ZrPluginTitleBar::signalClose, this, [this] { close(); });
    connect(m_title, &ZrPluginTitleBar::signalSetting, m_plugin.data(),
            [this] { m_plugin->getPrivate()->slotPluginSettingBtnClicked(); });
    connect(m_title, &ZrPluginTitleBar::signalRefresh, m_plugin.data(), [this] { m_plugin->refresh(); });
    connect(m_title, &ZrPluginTitleBar::signalAccountChosen, m_plugin->getPrivate(),
            &ZrPluginBaseWidgetPrivate::slotPluginCurrentAccountChanged);
}

void ZrPluginDock::connectPlugin()
{
    ZrPluginBaseWidget *const plugin = m_plugin;
    connect(plugin, &ZrPluginBaseWidget::signalClosePluginWidget, this, &ZrPluginDock::closeForPlugin);
    connect(plugin, &ZrPluginBaseWidget::signalPluginWidgetSizeChanged, this,
            [this] { takeNormalSize(isFloating()); });
    connect(plugin, &ZrPluginBaseWidget::signalPluginWidgetMinimumSizeChanged, this,
            [this] { updateGeometry(); });
    connect(plugin, &ZrPluginBaseWidget::signalSendDataToMainFrame, this, &ZrPluginDock::signalData);
    connect(plugin, &QObject::destroyed, this, &QObject::deleteLater);
}

void ZrPluginDock::connectRegistry()
{
    const ZrPluginBaseWidgetPrivate *const registry = m_plugin->getPrivate();
    connect(registry, &ZrPluginBaseWidgetPrivate::signalPluginPropetyChanged, this,
            &ZrPluginDock::showProperty);
    connect(
        registry, &ZrPluginBaseWidgetPrivate::signalAddPluginCustomWidget, m_title,
        [this](const QString &, QWidget *widget, bool right) { m_title->addCustomWidget(widget, right); });
    connect(registry, &ZrPluginBaseWidgetPrivate::signalDeletePluginCustomWidget, m_title,
            [this](const QString &, QWidget *widget) { m_title->removeCustomWidget(widget); });
    connect(registry, &ZrPluginBaseWidgetPrivate::signalSetCurrentAccount, m_title,
            [this](const QString &, const QVariantMap &account) { m_title->showAccount(account); });
}

void ZrPluginDock::showProperty(const QString &name)
{
    m_title->showProperty(name);
    setWindowTitle(asTabText(m_title->title()));
}

void ZrPluginDock::takeNormalSize(bool floating)
{
    if (!floating || !m_plugin)
        return;
    const int widthPx = m_plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH).toInt();
    const int heightPx = m_plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT).toInt();
    // The properties may come from a file.
    if (widthPx >= LeastSidePx && heightPx >= LeastSidePx)
        resize(qMin(widthPx, MostSidePx), qMin(heightPx, MostSidePx));
}

void ZrPluginDock::followFocus(QWidget *now)
{
    // Without a focus the whole client has lost it: the user comes back to where they were.
    if (!now || !m_plugin)
        return;
    const bool inside = now == this || isAncestorOf(now);
    if (inside == m_selected)
        return;
    m_selected = inside;
    m_title->showSelected(inside);
    m_plugin->setPluginWidgetSelected(inside);
}

void ZrPluginDock::closeEvent(QCloseEvent *event)
{
    QString reason;
    if (m_plugin && m_plugin->isCloseable(reason) != 0) {
        event->ignore();
        tellRefusal(reason);
        return;
    }
    if (m_plugin) {
        m_plugin->closeByUser();
        m_plugin->doBeforeClose();
    }
    event->accept();
    deleteLater();
}

// No nested event loop: plugin and dock may go while the reason is read.
void ZrPluginDock::tellRefusal(const QString &reason)
{
    auto *const box = new ZrMessageBox(m_title->title(), reason, ConfirmButton, this, OnParent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

// A plugin that asks for its own end isn't asked whether it may be closed.
void ZrPluginDock::closeForPlugin()
{
    if (m_plugin)
        m_plugin->doBeforeClose();
    hide();
    deleteLater();
}

void ZrPluginDock::moveEvent(QMoveEvent *event)
{
    QDockWidget::moveEvent(event);
    if (m_plugin)
        m_plugin->pluginGeometryMoved();
}
