#include "ZrFrozenGrid.h"

// Out of line, so that each class has one home for its virtual table.
ZrFrozenGrid::~ZrFrozenGrid() = default;

ZrFrozenHost::~ZrFrozenHost() = default;
