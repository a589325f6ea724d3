#include "ZrFilterOpener.h"

// Out of line, so that the class has one home for its virtual table.
ZrFilterOpener::~ZrFilterOpener() = default;
