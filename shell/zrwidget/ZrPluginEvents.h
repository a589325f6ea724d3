#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>
#include <QtCore/QVariantMap>

class QWidget;

/// What happens to a plugin, as events on the bus.
///
/// Shape:     each type has its bit in the plugin's notify flags and its own fields beside the instance ID.
/// Units:     sizes and places in logical px; places are global.
/// Threads:   GUI thread only.
/// Errors:    any other type is no event and has no bit.
class ZRWIDGET_PRIVATE_EXPORT ZrPluginEvents
{
public:
    enum Type { Initialized = 65555, ClosedByUser = 65556, Selected = 65557, Resized = 65558, Moved = 65559 };

    static bool isEvent(int type);
    /// The bit that switches the event on.
    static int flagOf(int type);
    /// The event's fields. `widget` is the plugin.
    static QVariantMap record(int type, const QString &instanceId, const QWidget &widget, bool selected);

private:
    ZrPluginEvents() = delete;
};
