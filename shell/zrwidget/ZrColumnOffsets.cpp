#include "ZrColumnOffsets.h"

// Out of line, so that the class has one home for its virtual table.
ZrColumnOffsets::~ZrColumnOffsets() = default;

const ZrColumnOffsets *ZrColumnOffsets::of(const QObject *owner)
{
    if (!owner)
        return nullptr;
    // The cast goes through the meta object of a non-const object only; nothing is changed.
    if (const ZrColumnOffsets *const own = qobject_cast<ZrColumnOffsets *>(const_cast<QObject *>(owner)))
        return own;
    const QObjectList &children = owner->children();
    for (QObject *const child : children) {
        if (const ZrColumnOffsets *const offsets = qobject_cast<ZrColumnOffsets *>(child))
            return offsets;
    }
    return nullptr;
}
