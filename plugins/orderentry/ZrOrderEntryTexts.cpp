#include "ZrOrderEntryTexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>

void ZrOrderEntryTexts::install()
{
    // A child of the application: it goes with it and not with the file, which is never unloaded.
    static QPointer<QTranslator> installed;
    delete installed; // takes itself away
    installed = new QTranslator(QCoreApplication::instance());
    if (installed->load(QLocale(), QStringLiteral("orderentry"), QStringLiteral("_"),
                        QStringLiteral(":/orderentry/i18n")))
        QCoreApplication::installTranslator(installed);
}
