#pragma once

#include "ZrPluginBaseWidget.h"

#include <QtCore/QStringList>

/// A plugin that notes what its frame does with it.
class PluginProbe : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    using ZrPluginBaseWidget::ZrPluginBaseWidget;

    void initPlugin() override;
    void refresh() override { calls.append(QStringLiteral("refresh")); }
    int isCloseable(QString &reason) override;
    void doBeforeClose() override { calls.append(QStringLiteral("doBeforeClose")); }
    void closeByUser() override { calls.append(QStringLiteral("closeByUser")); }
    void pluginGeometryMoved() override { ++moves; }
    void pluginSelectStateChanged(bool selected) override;
    void setBaseData(const QString &name, const QVariant &value) override;
    void setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value) override;

    QStringList calls;
    QString refusal;   // not empty: it can't be closed
    QString titleIcon; // set by initPlugin() without a signal
    int moves = 0;
    QVariantMap account;
    QVariantMap ownProperties;
    QWidget *titleWidgets[2] = {nullptr, nullptr}; // left and right, given to the title by initPlugin()
};
