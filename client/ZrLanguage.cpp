#include "ZrLanguage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

void ZrLanguage::install(QCoreApplication *app, const QString &language)
{
    if (!language.isEmpty())
        QLocale::setDefault(QLocale(language));
    const QLocale locale;
    // Some texts stand in the sources in Chinese, others in English: who reads neither gets English
    // throughout.
    const auto load = [app, &locale](const QString &name, const QString &folder) {
        auto *const translator = new QTranslator(app);
        if (translator->load(locale, name, QStringLiteral("_"), folder) ||
            translator->load(name + QStringLiteral("_en"), folder))
            QCoreApplication::installTranslator(translator);
        else
            delete translator;
    };
    load(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    load(QStringLiteral("zrwidget"), QStringLiteral(":/client/i18n"));
    load(QStringLiteral("client"), QStringLiteral(":/client/i18n"));
}
