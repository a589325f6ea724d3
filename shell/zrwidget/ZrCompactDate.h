#pragma once

#include "zrwidget_global.h"

#include <QtCore/QDate>

/// Reads a date in the form in which messages carry it: "20240131".
///
/// Shape:   the same dates as QDate::fromString with "yyyyMMdd"; that one interprets its format for each
///          call and would take most of the time of filling a grid.
/// Errors:  what is no such text gives an invalid date.
class ZRWIDGET_PRIVATE_EXPORT ZrCompactDate
{
public:
    static QDate parse(const QString &text);
};
