#include "ZrViewTestKit.h"
