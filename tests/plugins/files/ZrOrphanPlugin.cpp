#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

int zrOrphanCount();

/// Needs a library that lies in no place where the system looks.
class ZrOrphanPlugin : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "orphan.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override { return zrOrphanCount() > 0 ? new QObject : nullptr; }
};

#include "ZrOrphanPlugin.moc"
