#include "ZrTristateRows.h"

// Out of line, so that the virtual table has one home.
ZrTristateRows::~ZrTristateRows() = default;
