#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

/// Groups the digits of a displayed number by threes.
///
/// Shape:   a separator between each three characters in front of the first full stop, counted from there to
///          the left; a leading minus sign stands apart. What is behind the stop stays.
/// Errors:  nothing checks for digits: a word is grouped just the same.
class ZRWIDGET_PRIVATE_EXPORT ZrDigitGrouping
{
public:
    static QString grouped(const QString &text, const QString &separator);
};
