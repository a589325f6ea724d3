#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

#include <cstdlib>

/// Ends the process while it is loaded.
class ZrFallingPlugin : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "falling.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    ZrFallingPlugin() { std::abort(); }
    QObject *createObject() override { return nullptr; }
};

#include "ZrFallingPlugin.moc"
