#include "zrdefine/PluginPropety.h"

namespace PluginPropety {
const QString PLUGININSTANCE_ID = QStringLiteral("PlugininstanceId");
const QString PLUGINWIDGET_TITLETEXT = QStringLiteral("PluginwidgetTitletext");
const QString PLUGINWIDGET_TITLEICON = QStringLiteral("PluginwidgetTitleicon");
const QString PLUGINWIDGET_NORMALWIDTH = QStringLiteral("PluginwidgetNormalwidth");
const QString PLUGINWIDGET_NORMALHEIGHT = QStringLiteral("PluginwidgetNormalheight");
const QString PLUGIN_CUSTOMPROP = QStringLiteral("PluginCustomprop");
const QString PLUGIN_TITLE_HAS_ACCOUNT_WIDGET = QStringLiteral("PluginTitleHasAccountWidget");
const QString PLUGIN_WIDGET_CLOSEBUTTONVISIABLE = QStringLiteral("PluginWidgetClosebuttonvisiable");
const QString PLUGIN_WIDGET_COPYBUTTONVISIABLE = QStringLiteral("PluginWidgetCopybuttonvisiable");
const QString PLUGIN_WIDGET_SETTINGBUTTONVISIABLE = QStringLiteral("PluginWidgetSettingbuttonvisiable");
const QString PLUGIN_WIDGET_DOCKABLE = QStringLiteral("PluginWidgetDockable");
const QString PLUGIN_WIDGET_FRESHABLE = QStringLiteral("PluginWidgetFreshable");
const QString PluginEventNotifyType = QStringLiteral("PluginEventNotifyType");
const QString PluginPosLeft = QStringLiteral("PluginPosLeft");
const QString PluginPosTop = QStringLiteral("PluginPosTop");
const QString PluginSelectState = QStringLiteral("PluginSelectState");
} // namespace PluginPropety
