#include "ZrOrderEntryPlugin.h"
#include "ZrOrderEntryTexts.h"

#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// What the client finds in the plugin's file.
///
/// Threads: GUI thread only.
class ZrOrderEntryFile : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "orderentry.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override
    {
        ZrOrderEntryTexts::install();
        return new ZrOrderEntryPlugin;
    }
};

#include "ZrOrderEntryFile.moc"
