#pragma once

#include <QtCore/QString>

/// Texts of the column files in the user's language.
///
/// Shape: a column file is data, so its titles pass no translation when it is read; this looks them up.
///        A title that is not known here stays as it is.
class ZrColumnTexts
{
public:
    static QString title(const QString &text);
    /// Caption of a band of the grouped head.
    static QString band(const QString &word);
};
