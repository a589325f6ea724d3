#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Base of a plugin without a window.
///
/// Shape:     keeps what the host gives it as dynamic properties, whose names are in PluginPropety.
/// Ownership: normal QObject parent rules.
/// Threads:   that of its owner.
/// Errors:    an unset property is an invalid variant.
class ZRWIDGET_EXPORT ZrPluginBaseObject : public QObject
{
    Q_OBJECT
public:
    explicit ZrPluginBaseObject(QObject *parent = nullptr);
    ~ZrPluginBaseObject() override;

    virtual void doBeforeClose();

    void setPluginWidgetPropety(const QString &name, const QVariant &value);
    QVariant getPluginObjectPropety(const QString &name) const;
    /// "<menu ID>#<plugin ID>#_<index>".
    QString pluginInstanceID() const;

private:
    Q_DISABLE_COPY(ZrPluginBaseObject)
};
