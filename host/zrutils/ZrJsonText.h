#pragma once

#include <QtCore/QString>

class QJsonDocument;

/// Reads JSON that comes from outside.
///
/// Shape:   at most 8 million characters and 128 levels, so that whoever walks the document may recurse.
/// Threads: any.
/// Errors:  false, and the document stays as it was.
class ZrJsonText
{
public:
    static bool parse(const QString &text, QJsonDocument &document);
    /// Whether lists and objects stand in each other on more levels than allowed; the text need be no JSON.
    static bool isTooDeep(const QString &text);

private:
    ZrJsonText() = delete;
};
