#pragma once

#include <QtCore/QList>
#include <QtCore/QVariantMap>

class ZrStrategyFaults;

/// A parameter's record and where it stands in its file.
struct ZrStrategyEntry
{
    QVariantMap record;
    QString where; // "basic[3]"
};

/// Holds the parameters of one form or table together: ids that occur once, dependencies that lead somewhere
/// and not in a circle.
///
/// Shape:   what can't stay is left out, then what depended on it, until the rest holds.
/// Threads: any.
/// Errors:  one line for each parameter left out.
class ZrStrategyLinks
{
public:
    static QList<QVariantMap> sound(const QList<ZrStrategyEntry> &entries, ZrStrategyFaults *faults);

private:
    ZrStrategyLinks() = delete;
};
