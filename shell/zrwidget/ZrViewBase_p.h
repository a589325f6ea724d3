#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

/// State of a ZrViewBase.
class ZrViewBasePrivate : public QObject
{
    Q_OBJECT
public:
    explicit ZrViewBasePrivate(QObject *view);

    QString caption; // under which the plugin keeps this grid's settings
    bool canCfgFromPluginSetting = false;
    bool rowCheckOnClickEnable = false; // a click anywhere in a row ticks it
};
