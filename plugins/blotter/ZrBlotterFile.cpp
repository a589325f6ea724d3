#include "ZrBlotterPlugin.h"
#include "ZrBlotterTexts.h"

#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// What the client finds in the plugin's file.
///
/// Threads: GUI thread only.
class ZrBlotterFile : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "blotter.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override
    {
        ZrBlotterTexts::install();
        return new ZrBlotterPlugin;
    }
};

#include "ZrBlotterFile.moc"
