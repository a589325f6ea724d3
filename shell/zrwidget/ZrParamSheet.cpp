#include "ZrParamSheet.h"

ZrParamSheet::~ZrParamSheet() = default;
