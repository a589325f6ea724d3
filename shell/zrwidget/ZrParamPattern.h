#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>
#include <QtCore/QVariantMap>

class ZrParamLink;

/// The pattern that bounds what can be typed into the line edit of a parameter.
///
/// Shape:     patterns are QRegExp's. The record's own pattern comes first, then that of its type; numbers
///            are unsigned, and the literal 10000000000000 stands beside them as the mark of "no limit".
/// Threads:   any.
/// Errors:    an empty pattern means that anything can be typed.
class ZRWIDGET_PRIVATE_EXPORT ZrParamPattern
{
public:
    /// For a new editor.
    static QString ofNew(const QVariantMap &record, const ZrParamLink &link);
    /// For an editor whose other parameter has changed; empty when the validator is to stay.
    static QString ofChanged(const ZrParamLink &link);

private:
    ZrParamPattern() = delete;
};
