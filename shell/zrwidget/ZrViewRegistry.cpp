#include "ZrViewRegistry.h"

#include <QtWidgets/QWidget>

namespace {

ZrViewRegistry *registryAt(QObject *widget)
{
    if (ZrViewRegistry *const own = qobject_cast<ZrViewRegistry *>(widget))
        return own;
    const QObjectList &children = widget->children();
    for (QObject *const child : children) {
        ZrViewRegistry *const registry =
            child->isWidgetType() ? nullptr : qobject_cast<ZrViewRegistry *>(child);
        if (registry)
            return registry;
    }
    return nullptr;
}

} // namespace

ZrViewRegistry::ZrViewRegistry()
    : m_self(std::make_shared<ZrViewRegistry *>(this))
{
}

ZrViewRegistry::~ZrViewRegistry()
{
    *m_self = nullptr;
}

ZrViewRegistry *ZrViewRegistry::of(QWidget *widget)
{
    for (QWidget *place = widget; place; place = place->parentWidget()) {
        if (ZrViewRegistry *const registry = registryAt(place))
            return registry;
    }
    return nullptr;
}

ZrViewRegistryPointer::ZrViewRegistryPointer(ZrViewRegistry *registry)
    : m_target(registry ? registry->m_self : nullptr)
{
}
