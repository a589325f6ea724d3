#pragma once

#include "zrwidget_global.h"

#include <zrutils/ZrRecordTypes.h>

/// One range among the choices of a column filter.
///
/// Shape: the text "low — high" under the display role and nothing else. The popup splits the text at the
///        separator to build its conditions, so the form is an interface.
class ZRWIDGET_PRIVATE_EXPORT ZrRangeChoice
{
public:
    /// A blank, an em dash and a blank.
    static QString separator();
    static ItemRoleMap make(const QString &low, const QString &high);
};
