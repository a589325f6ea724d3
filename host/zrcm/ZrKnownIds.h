#pragma once

#include "zrcm/zrcm_global.h"

#include <QtCore/QString>

/// The IDs that name something: an Id of any other text is null.
///
/// Shape:   each insert is undone by one remove, so that an object registered twice stays known.
/// Threads: any.
class ZRCM_EXPORT ZrKnownIds
{
public:
    static void insert(const QString &id);
    static void remove(const QString &id);
    static bool contains(const QString &id);

private:
    ZrKnownIds() = delete;
};
