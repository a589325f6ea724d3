#include "PluginProbe.h"

#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

void PluginProbe::initPlugin()
{
    calls.append(QStringLiteral("initPlugin"));
    setPluginWidgetTitle(QStringLiteral("Probe"));
    setProperty(PluginPropety::PLUGINWIDGET_TITLEICON.toLatin1().constData(), titleIcon); // told to nobody
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(new QLineEdit(this));
    titleWidgets[0] = new QWidget(this);
    titleWidgets[1] = new QWidget(this);
    addPluginCustomWidget(titleWidgets[0], AddCustomWidget, CustomWidgetLeft);
    addPluginCustomWidget(titleWidgets[1], AddCustomWidget, CustomWidgetRight);
}

int PluginProbe::isCloseable(QString &reason)
{
    if (refusal.isEmpty())
        return ZrPluginBaseWidget::isCloseable(reason);
    reason = refusal;
    return 1;
}

void PluginProbe::pluginSelectStateChanged(bool selected)
{
    calls.append(selected ? QStringLiteral("selected") : QStringLiteral("left"));
}

void PluginProbe::setBaseData(const QString &name, const QVariant &value)
{
    if (name == Constants::USER_ACCOUNT)
        account = value.toMap();
}

void PluginProbe::setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value)
{
    ownProperties.insert(name, value);
}
