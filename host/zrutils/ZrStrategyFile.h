#pragma once

#include <QtCore/QJsonObject>

class ZrStrategyFaults;

/// The JSON object of a strategy description.
///
/// Shape:   a plain file of at most a megabyte, nested no deeper than ZrJsonText allows. What is larger isn't
///          read at all.
/// Threads: any.
/// Errors:  an empty object and one refusal.
class ZrStrategyFile
{
public:
    static QJsonObject read(const QString &path, ZrStrategyFaults *faults);

private:
    ZrStrategyFile() = delete;
};
