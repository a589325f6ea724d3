#include "ZrPluginBaseObject.h"

#include "zrdefine/PluginPropety.h"

ZrPluginBaseObject::ZrPluginBaseObject(QObject *parent)
    : QObject(parent)
{
}

ZrPluginBaseObject::~ZrPluginBaseObject() = default;

void ZrPluginBaseObject::doBeforeClose() {}

void ZrPluginBaseObject::setPluginWidgetPropety(const QString &name, const QVariant &value)
{
    setProperty(name.toLatin1().constData(), value);
}

QVariant ZrPluginBaseObject::getPluginObjectPropety(const QString &name) const
{
    return property(name.toLatin1().constData());
}

QString ZrPluginBaseObject::pluginInstanceID() const
{
    return getPluginObjectPropety(PluginPropety::PLUGININSTANCE_ID).toString();
}
