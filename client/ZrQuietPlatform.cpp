#include "ZrQuietPlatform.h"

#include <QtCore/QString>

namespace {
QtMessageHandler previous = nullptr;

void filter(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    if (line != QLatin1String("This plugin does not support propagateSizeHints()"))
        previous(type, context, line);
}
} // namespace

void ZrQuietPlatform::install()
{
    const QtMessageHandler found = qInstallMessageHandler(filter);
    if (found != filter)
        previous = found;
}
