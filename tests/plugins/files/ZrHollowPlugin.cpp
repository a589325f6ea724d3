#include "zrcore/ZrCorePlugin.h"

#include <QtCore/QObject>

/// Declared, called, and offered by no library.
void zrNobodyOffersThis(int times);

class ZrHollowPlugin : public QObject, public ZrCorePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZrCorePlugin_iid FILE "hollow.json")
    Q_INTERFACES(ZrCorePlugin)
public:
    QObject *createObject() override
    {
        zrNobodyOffersThis(3);
        return new QObject;
    }
};

#include "ZrHollowPlugin.moc"
