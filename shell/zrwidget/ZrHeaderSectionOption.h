#pragma once

#include "zrwidget_global.h"

class QHeaderView;
class QStyleOptionHeader;

/// Describes a section to the style as the base head does, which keeps its own way of doing so to itself.
///
/// Threads: GUI thread only.
/// Errors:  a head without model gives an option without icon, colours and selection.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderSectionOption
{
public:
    /// Sections under the pointer and under the pressed button; -1 for none.
    struct Pointer
    {
        int hovered = -1;
        int pressed = -1;
    };

    /// Fills `option`, whose rect and section are set: state, alignment, icon, colours, neighbours. Text and
    /// sort indicator are left to the caller, since not every pass of a section shows them.
    static void prepare(QStyleOptionHeader *option, const QHeaderView &head, const Pointer &pointer);

private:
    ZrHeaderSectionOption() = delete;
};
