#pragma once

#include <QtCore/QString>

class QCoreApplication;

/// The language of all texts: the workstation's, the library's and the toolkit's.
class ZrLanguage
{
public:
    /// `language` is "zh_CN", "en", or empty for that of the locale; one that there is not gets English. Also
    /// sets the default locale, by which numbers are written.
    static void install(QCoreApplication *app, const QString &language);
};
