#include "ZrPluginTitleBar.h"

#include "ZrPluginBaseWidget.h"

#include "ZrAccountBox.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/PluginPropety.h"

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtGui/QIcon>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

namespace {
constexpr int IconPx = 16;
constexpr int MostTitle = 200; // letters; more are no title
constexpr int LeastTitlePx = 24;

// A property may come from a file: only what lies below the skin's folder is a picture of it.
QString skinPicture(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    if (path.isEmpty() || QDir::isAbsolutePath(clean) || clean.startsWith(QLatin1String("..")) ||
        clean.contains(QLatin1Char(':')))
        return QString();
    const QString picture = QStringLiteral("ZRSkin:%1/%2").arg(ZrCore::instance()->getCurrentSkinId(), clean);
    return QFileInfo(picture).isFile() ? picture : QString(); // the toolkit would warn of each time it looks
}
} // namespace

ZrPluginTitleBar::ZrPluginTitleBar(ZrPluginBaseWidget *plugin, QWidget *parent)
    : QFrame(parent)
    , m_plugin(plugin)
{
    setObjectName(QStringLiteral("pluginTitleBar"));
    createParts();
    showProperty(QString());
    connect(ZrCore::instance(), &ZrCore::signalSkinChanged, this, &ZrPluginTitleBar::showIcon);
}

void ZrPluginTitleBar::createParts()
{
    m_icon = new QLabel(this);
    m_icon->setObjectName(QStringLiteral("pluginIcon"));
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("pluginTitle"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(LeastTitlePx);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_left = new QHBoxLayout;
    m_right = new QHBoxLayout;
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 4, 2);
    layout->setSpacing(4);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addLayout(m_left);
    layout->addLayout(m_right);
    addButton("pluginCopy", tr("Open another one"), &ZrPluginTitleBar::signalCopy);
    addButton("pluginSetting", tr("Settings"), &ZrPluginTitleBar::signalSetting);
    addButton("pluginRefresh", tr("Refresh"), &ZrPluginTitleBar::signalRefresh);
    addButton("pluginDock", tr("Float or dock"), &ZrPluginTitleBar::signalDock);
    addButton("pluginClose", tr("Close"), &ZrPluginTitleBar::signalClose);
}

QToolButton *ZrPluginTitleBar::addButton(const char *name, const QString &text, Signal signal)
{
    auto *const button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAccessibleName(text);
    button->setToolTip(text);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    connect(button, &QToolButton::clicked, this, signal);
    return button;
}

bool ZrPluginTitleBar::isOn(const QString &property, bool whenUnset) const
{
    const QVariant value = m_plugin ? m_plugin->getPluginWidgetPropety(property) : QVariant();
    return value.isValid() ? value.toBool() : whenUnset;
}

void ZrPluginTitleBar::showProperty(const QString &name)
{
    if (!m_plugin)
        return;
    const auto concerns = [&name](const QString &property) { return name.isEmpty() || name == property; };
    // A plugin that says nothing of docking may be docked and floated: that is the window's own matter.
    const struct
    {
        const QString &property;
        const char *button;
        bool whenUnset;
    } buttons[] = {{PluginPropety::PLUGIN_WIDGET_COPYBUTTONVISIABLE, "pluginCopy", true},
                   {PluginPropety::PLUGIN_WIDGET_SETTINGBUTTONVISIABLE, "pluginSetting", true},
                   {PluginPropety::PLUGIN_WIDGET_FRESHABLE, "pluginRefresh", false},
                   {PluginPropety::PLUGIN_WIDGET_DOCKABLE, "pluginDock", true},
                   {PluginPropety::PLUGIN_WIDGET_CLOSEBUTTONVISIABLE, "pluginClose", true}};
    for (const auto &entry : buttons) {
        if (concerns(entry.property))
            findChild<QToolButton *>(QLatin1String(entry.button), Qt::FindDirectChildrenOnly)
                ->setVisible(isOn(entry.property, entry.whenUnset));
    }
    if (concerns(PluginPropety::PLUGINWIDGET_TITLETEXT))
        showTitle();
    if (concerns(PluginPropety::PLUGINWIDGET_TITLEICON))
        showIcon();
    if (concerns(PluginPropety::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET))
        showAccountBox();
}

void ZrPluginTitleBar::showTitle()
{
    m_title = m_plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLETEXT)
                  .toString()
                  .left(MostTitle)
                  .simplified();
    m_text->setAccessibleName(m_title);
    elideTitle();
}

void ZrPluginTitleBar::elideTitle()
{
    m_text->setText(m_text->fontMetrics().elidedText(m_title, Qt::ElideRight, m_text->width()));
}

void ZrPluginTitleBar::showIcon()
{
    const QString path =
        m_plugin ? m_plugin->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_TITLEICON).toString()
                 : QString();
    const QString picture = skinPicture(path);
    const QPixmap pixmap = picture.isEmpty() ? QPixmap() : QIcon(picture).pixmap(IconPx, IconPx);
    m_icon->setPixmap(pixmap);
    m_icon->setVisible(!pixmap.isNull());
}

void ZrPluginTitleBar::showAccountBox()
{
    const bool wanted =
        m_plugin->getPluginWidgetPropety(PluginPropety::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET).toInt() != 0;
    if (wanted && !m_account) {
        m_account = new ZrAccountBox(this);
        static_cast<QHBoxLayout *>(layout())->insertWidget(layout()->indexOf(m_right) + 1, m_account);
        connect(m_account, &ZrAccountBox::signalAccountChosen, this, &ZrPluginTitleBar::signalAccountChosen);
    }
    if (m_account)
        m_account->setVisible(wanted);
}

void ZrPluginTitleBar::showAccount(const QVariantMap &account)
{
    if (m_account)
        m_account->showAccount(account);
}

void ZrPluginTitleBar::showSelected(bool selected)
{
    if (property("selected").toBool() == selected)
        return;
    setProperty("selected", selected);
    style()->unpolish(this);
    style()->polish(this);
}

void ZrPluginTitleBar::addCustomWidget(QWidget *widget, bool right)
{
    if (!widget || m_customWidgets.contains(widget))
        return;
    m_customWidgets.append(widget);
    const bool hidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    (right ? m_right : m_left)->addWidget(widget); // makes it our child
    // A widget that nobody has hidden comes into sight with its title.
    widget->setVisible(!hidden);
}

void ZrPluginTitleBar::removeCustomWidget(QWidget *widget)
{
    if (!m_customWidgets.removeOne(widget) || !widget)
        return;
    m_left->removeWidget(widget);
    m_right->removeWidget(widget);
    widget->hide();
    widget->setParent(m_plugin);
}

void ZrPluginTitleBar::giveBack()
{
    if (!m_plugin)
        return; // nobody is left to take them: they go with the title
    const QList<QPointer<QWidget>> widgets = m_customWidgets;
    for (const QPointer<QWidget> &widget : widgets)
        removeCustomWidget(widget);
}

void ZrPluginTitleBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layout()->activate(); // the title has its new width now
    elideTitle();
}

void ZrPluginTitleBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elideTitle();
}
