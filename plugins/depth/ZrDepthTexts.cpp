#include "ZrDepthTexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>

void ZrDepthTexts::install()
{
    // A child of the application: it goes with it and not with the file, which is never unloaded.
    static QPointer<QTranslator> installed;
    delete installed; // takes itself away
    installed = new QTranslator(QCoreApplication::instance());
    if (installed->load(QLocale(), QStringLiteral("depth"), QStringLiteral("_"),
                        QStringLiteral(":/depth/i18n")))
        QCoreApplication::installTranslator(installed);
}
