#include "ZrTestMain.h"

#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

class ZrTestProcess::Private
{
public:
    QTemporaryDir home;
};

ZrTestProcess::ZrTestProcess()
    : d(new Private)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QByteArray home = d->home.path().toUtf8();
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home);
}

ZrTestProcess::~ZrTestProcess()
{
    delete d;
}
