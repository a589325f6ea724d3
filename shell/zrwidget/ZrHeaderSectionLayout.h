#pragma once

#include "zrwidget_global.h"

#include <QtCore/QDebug>
#include <QtCore/QRect>

/// Where the parts of one section of a head stand.
///
///     grouped                           plain
///     +--------------------------+      +--------------------------+
///     | group name (topBand) ... |      | label            [v] (?) |
///     +--------------------------+      +--------------------------+
///     | label            [v] (?) |
///     +--------------------------+
///
/// Shape:   computed from the section's rect; the head paints by it, and hits are tested by it, so that a
///          press meets what this head shows even when several heads share their state.
/// Units:   logical px, in the coordinates of the section's rect.
/// Threads: any.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderSectionLayout
{
public:
    /// What decides about the places.
    struct Input
    {
        QRect section;
        QRect groupBand; // band of the whole run; null for a plain section
        int xMarginPx = 0;
        int filterButtonPx = 16;
        bool filterable = false;
        bool hasTip = false;
    };
    /// Size of check box and tip pictures.
    static const int picturePx;

    explicit ZrHeaderSectionLayout(const Input &input);

    QRect topBand;       // null for a plain section
    QRect bottomBand;    // the section itself for a plain one
    QRect groupName;     // null for a plain section
    QRect label;         // less the room for filter button and tip
    QRect filterButton;  // as high as the section or its bottom band: what a press may hit
    QRect filterPicture; // the painted part, centred in filterButton
    QRect tip;           // centred in the section's whole height, grouped or not

    /// Place of the check box; in a tree it leaves room for the branch marks below it.
    static QRect tableCheckBox(const QRect &section);
    static QRect treeCheckBox(const QRect &section);
};

ZRWIDGET_PRIVATE_EXPORT QDebug operator<<(QDebug debug, const ZrHeaderSectionLayout &layout);
