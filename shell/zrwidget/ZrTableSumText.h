#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariant>

/// How the summary line writes a total: digits in fours, two blanks between them, two decimals for a double.
///
/// Errors: a value that is no number stays as it is.
class ZRWIDGET_PRIVATE_EXPORT ZrTableSumText
{
public:
    static QVariant of(const QVariant &total);

private:
    static QString grouped(QString text);
};
