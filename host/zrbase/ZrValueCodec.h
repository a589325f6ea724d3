#pragma once

#include "zrbase/zrbase_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

/// Writes and reads the values that records hold, for files that may come back damaged.
///
/// Shape:   nothing, bool, whole numbers, double, text, bytes, date, time, moment, list and map. Any other
/// type
///          is written as its text. The toolkit's own form of a QVariant isn't used: a damaged one
///          reserves gigabytes, recurses without bound and makes objects of any registered type.
/// Threads: any.
/// Errors:  read() gives false for damaged bytes, for more than maxDepth nested containers and for
///          bytes left over.
class ZRBASE_EXPORT ZrValueCodec
{
public:
    static constexpr int maxDepth = 32;

    static QByteArray write(const QVariant &value);
    static bool read(const QByteArray &bytes, QVariant *value);
};
