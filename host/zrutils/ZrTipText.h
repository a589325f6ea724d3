#pragma once

#include <QtCore/QString>

/// Makes the text of a tool tip from a text that comes from outside.
///
/// Shape:   what a tool tip shows as it stands, stays. A text that would be read as markup, or with a line
/// too long
///          for the screen, is escaped into markup that shows exactly its characters and can be wrapped
///          anywhere; what is longer than 4,000 characters ends in an ellipsis.
/// Threads: any.
class ZrTipText
{
public:
    static QString shown(const QString &text);

private:
    ZrTipText() = delete;
};
