#include "ZrHeaderSectionLayout.h"

const int ZrHeaderSectionLayout::picturePx = 16;

namespace {

// Room that a label gives up for a filter button or a tip, whatever the button's own size.
constexpr int labelRoomPx = 16;
constexpr int treeCheckShiftPx = 15;

} // namespace

ZrHeaderSectionLayout::ZrHeaderSectionLayout(const Input &input)
    : bottomBand(input.section)
{
    const QRect &section = input.section;
    const int margin = input.xMarginPx;
    if (!input.groupBand.isNull()) {
        topBand = input.groupBand;
        groupName =
            QRect(topBand.left() + margin, topBand.top(), topBand.width() - 2 * margin, topBand.height());
        // Twice the half: an odd height leaves its last pixel row to the background.
        bottomBand = QRect(section.left(), section.top() + section.height() / 2, section.width(),
                           section.height() / 2);
    }
    label = QRect(bottomBand.left() + margin, bottomBand.top(), bottomBand.width() - 2 * margin,
                  bottomBand.height());
    const int marks = int(input.filterable) + int(input.hasTip);
    // The marks stand against the edge, so the label's right margin is free again, once.
    if (marks > 0)
        label.setWidth(label.width() - marks * labelRoomPx + margin);
    const int buttonPx = input.filterButtonPx;
    filterButton = QRect(section.right() - buttonPx, bottomBand.top(), buttonPx, bottomBand.height());
    // Centred in the button's own area. In a grouped section that is the bottom band: centred in the whole
    // section, the picture would lie across the band line, and its upper half where a press meets nothing.
    filterPicture = QRect(filterButton.left(), bottomBand.top() + (bottomBand.height() - buttonPx) / 2,
                          buttonPx, buttonPx);
    tip = QRect(label.right(), (section.height() - picturePx) / 2 + section.top(), picturePx, picturePx);
}

QRect ZrHeaderSectionLayout::tableCheckBox(const QRect &section)
{
    return QRect(section.left() + (section.width() - picturePx) / 2,
                 section.top() + (section.height() - picturePx) / 2, picturePx, picturePx);
}

QRect ZrHeaderSectionLayout::treeCheckBox(const QRect &section)
{
    return tableCheckBox(section).translated(treeCheckShiftPx, 0);
}

QDebug operator<<(QDebug debug, const ZrHeaderSectionLayout &layout)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "ZrHeaderSectionLayout(topBand " << layout.topBand << ", bottomBand "
                    << layout.bottomBand << ", label " << layout.label << ", filterButton "
                    << layout.filterButton << ", tip " << layout.tip << ')';
    return debug;
}
