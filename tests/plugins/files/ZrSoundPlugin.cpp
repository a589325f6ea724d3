#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// A plugin file with nothing wrong.
class ZrSoundPlugin : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "sound.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override
    {
        auto *const object = new QObject;
        object->setObjectName(QStringLiteral("sound"));
        return object;
    }
};

#include "ZrSoundPlugin.moc"
