#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// A plugin file of the kind that the host finds in its plugin folder.
class ZrTestPlugin : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "ZrTestPlugin.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override
    {
        auto *const object = new QObject;
        object->setObjectName(QStringLiteral("made by a file"));
        return object;
    }
};

#include "ZrTestPlugin.moc"
