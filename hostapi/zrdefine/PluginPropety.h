#pragma once

#include "zrdefine/zrdefine_global.h"

#include <QtCore/QString>

/// Names of the dynamic properties of a plugin widget, and keys of plugin events.
///
/// Shape:   distinct, non-empty Latin-1 texts; the values are the host's own.
/// Threads: constant after static initialisation; readable from any thread. Not readable from
///          the static initialisers of another library.
namespace PluginPropety {
extern ZRDEFINE_EXPORT const QString PLUGININSTANCE_ID;
extern ZRDEFINE_EXPORT const QString PLUGINWIDGET_TITLETEXT;
extern ZRDEFINE_EXPORT const QString PLUGINWIDGET_TITLEICON;
extern ZRDEFINE_EXPORT const QString PLUGINWIDGET_NORMALWIDTH;
extern ZRDEFINE_EXPORT const QString PLUGINWIDGET_NORMALHEIGHT;
extern ZRDEFINE_EXPORT const QString PLUGIN_CUSTOMPROP;
extern ZRDEFINE_EXPORT const QString PLUGIN_TITLE_HAS_ACCOUNT_WIDGET;
extern ZRDEFINE_EXPORT const QString PLUGIN_WIDGET_CLOSEBUTTONVISIABLE;
extern ZRDEFINE_EXPORT const QString PLUGIN_WIDGET_COPYBUTTONVISIABLE;
extern ZRDEFINE_EXPORT const QString PLUGIN_WIDGET_SETTINGBUTTONVISIABLE;
extern ZRDEFINE_EXPORT const QString PLUGIN_WIDGET_DOCKABLE;
extern ZRDEFINE_EXPORT const QString PLUGIN_WIDGET_FRESHABLE;
extern ZRDEFINE_EXPORT const QString PluginEventNotifyType;
extern ZRDEFINE_EXPORT const QString PluginPosLeft;
extern ZRDEFINE_EXPORT const QString PluginPosTop;
extern ZRDEFINE_EXPORT const QString PluginSelectState;
} // namespace PluginPropety
