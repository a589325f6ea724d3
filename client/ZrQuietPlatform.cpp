#include "ZrQuietPlatform.h"

#include <QtCore/QString>

namespace {
QtMessageHandler previous = nullptr;

void filter(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    for (const char *const helpless : {"propagateSizeHints()", "raise()", "grabbing the keyboard"}) {
        if (line == QStringLiteral("This plugin does not support %1").arg(QLatin1String(helpless)))
            return;
    }
    previous(type, context, line);
}
} // namespace

void ZrQuietPlatform::install()
{
    const QtMessageHandler found = qInstallMessageHandler(filter);
    if (found != filter)
        previous = found;
}
