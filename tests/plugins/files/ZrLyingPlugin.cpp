#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// Its meta data name the client's interface, its root object does not have it.
class ZrLyingPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "lying.json")
};

#include "ZrLyingPlugin.moc"
