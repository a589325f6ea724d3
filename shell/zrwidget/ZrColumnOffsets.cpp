#include "ZrColumnOffsets.h"

#include "ZrFamilyInterface.h"

// Out of line, so that the class has one home for its virtual table.
ZrColumnOffsets::~ZrColumnOffsets() = default;

const ZrColumnOffsets *ZrColumnOffsets::of(const QObject *owner)
{
    return zrFamilyInterface<ZrColumnOffsets>(owner);
}
