#pragma once

#include "zrwidget_global.h"

#include <QtGui/QColor>

/// The colour of what neither rises nor falls, in the current skin.
///
/// Shape:   it stands in the static configuration, where an administrator changes it for all clients at once:
///          it is looked up at each use and kept nowhere, so that a change shows with the next paint.
/// Threads: GUI thread only.
/// Errors:  without a usable entry, black.
class ZRWIDGET_PRIVATE_EXPORT ZrBalanceColor
{
public:
    static constexpr int alpha = 200;

    static QColor current();

private:
    ZrBalanceColor() = delete;
};
