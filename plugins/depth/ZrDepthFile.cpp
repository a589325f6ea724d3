#include "ZrDepthPlugin.h"
#include "ZrDepthTexts.h"

#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// What the client finds in the plugin's file.
///
/// Threads: GUI thread only.
class ZrDepthFile : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "depth.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override
    {
        ZrDepthTexts::install();
        return new ZrDepthPlugin;
    }
};

#include "ZrDepthFile.moc"
