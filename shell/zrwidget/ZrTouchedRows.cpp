#include "ZrTouchedRows.h"

#include "ZrFamilyInterface.h"

// Out of line, so that the class has one home for its virtual table.
ZrTouchedRows::~ZrTouchedRows() = default;

const ZrTouchedRows *ZrTouchedRows::of(const QObject *model)
{
    return zrFamilyInterface<ZrTouchedRows>(model);
}
