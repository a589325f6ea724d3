#pragma once

#include <QtCore/QList>
#include <QtCore/QVariantMap>

/// What a strategy description holds, in the form in which the host gives it away.
struct ZrStrategyDescription
{
    QList<QVariantMap> basic;   // parameters with one value
    QList<QVariantMap> initial; // one entry for each table
    QList<QVariantMap> running; // parameters that show how the strategy does
    QList<QVariantMap> results; // parameters that show what it did
    QList<QVariantMap> links;   // of basic: id, and id of what it depends on
    QVariantMap strategy;       // id, name, description
    QVariantMap settings;       // how the sheet is laid out
};

/// Reads strategy descriptions, see docs/strategy-description.md.
///
/// Shape:   a fault of a parameter or a table costs that one alone; any other fault costs the file. Whatever
///          is in the file, the time is short: sizes, counts and depths are bounded.
/// Threads: any.
/// Errors:  false and an empty description for a refused file; one line in the log for each fault.
class ZrStrategyReader
{
public:
    static bool read(const QString &path, ZrStrategyDescription *description);

private:
    ZrStrategyReader() = delete;
};
