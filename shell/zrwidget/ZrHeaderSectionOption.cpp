#include "ZrHeaderSectionOption.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyleOptionHeader>

namespace {

bool isSelected(const QHeaderView &head, int section)
{
    // Asked first: the question for a whole column walks the rows.
    const QItemSelectionModel *const selection = head.selectionModel();
    return section >= 0 && selection && selection->hasSelection() &&
           selection->isColumnSelected(section, head.rootIndex());
}

bool intersectsSelection(const QHeaderView &head, int section)
{
    const QItemSelectionModel *const selection = head.selectionModel();
    return selection && selection->hasSelection() &&
           selection->columnIntersectsSelection(section, head.rootIndex());
}

QStyle::State sectionState(const QHeaderView &head, int section,
                           const ZrHeaderSectionOption::Pointer &pointer)
{
    QStyle::State state = QStyle::State_None;
    if (head.isEnabled())
        state |= QStyle::State_Enabled;
    if (head.window()->isActiveWindow())
        state |= QStyle::State_Active;
    if (!head.sectionsClickable())
        return state;
    if (section == pointer.hovered)
        state |= QStyle::State_MouseOver;
    if (section == pointer.pressed)
        return state | QStyle::State_Sunken;
    if (head.highlightSections() && intersectsSelection(head, section))
        state |= QStyle::State_On;
    if (head.highlightSections() && isSelected(head, section))
        state |= QStyle::State_Sunken;
    return state;
}

bool anyVisible(const QHeaderView &head, int firstVisual, int lastVisual)
{
    for (int visual = firstVisual; visual <= lastVisual; ++visual) {
        if (!head.isSectionHidden(head.logicalIndex(visual)))
            return true;
    }
    return false;
}

QStyleOptionHeader::SectionPosition positionOf(const QHeaderView &head, int visual)
{
    const bool first = !anyVisible(head, 0, visual - 1);
    const bool last = !anyVisible(head, visual + 1, head.count() - 1);
    if (first && last)
        return QStyleOptionHeader::OnlyOneSection;
    if (first)
        return QStyleOptionHeader::Beginning;
    return last ? QStyleOptionHeader::End : QStyleOptionHeader::Middle;
}

QStyleOptionHeader::SelectedPosition selectedPositionOf(const QHeaderView &head, int visual)
{
    const bool previous = isSelected(head, head.logicalIndex(visual - 1));
    const bool next = isSelected(head, head.logicalIndex(visual + 1));
    if (previous && next)
        return QStyleOptionHeader::NextAndPreviousAreSelected;
    if (previous)
        return QStyleOptionHeader::PreviousIsSelected;
    return next ? QStyleOptionHeader::NextIsSelected : QStyleOptionHeader::NotAdjacent;
}

void applyModel(QStyleOptionHeader *option, const QHeaderView &head)
{
    const auto value = [option, &head](int role) {
        return head.model()->headerData(option->section, head.orientation(), role);
    };
    const QVariant alignment = value(Qt::TextAlignmentRole);
    if (alignment.isValid())
        option->textAlignment = Qt::Alignment(alignment.toInt());
    const QVariant decoration = value(Qt::DecorationRole);
    option->icon = qvariant_cast<QIcon>(decoration);
    if (option->icon.isNull())
        option->icon = QIcon(qvariant_cast<QPixmap>(decoration));
    const QVariant foreground = value(Qt::ForegroundRole);
    if (foreground.canConvert<QBrush>())
        option->palette.setBrush(QPalette::ButtonText, qvariant_cast<QBrush>(foreground));
    const QVariant background = value(Qt::BackgroundRole);
    if (background.canConvert<QBrush>())
        option->palette.setBrush(QPalette::Button, qvariant_cast<QBrush>(background));
}

} // namespace

void ZrHeaderSectionOption::prepare(QStyleOptionHeader *option, const QHeaderView &head,
                                    const Pointer &pointer)
{
    const int visual = head.visualIndex(option->section);
    option->state |= sectionState(head, option->section, pointer);
    option->textAlignment = head.defaultAlignment();
    option->iconAlignment = Qt::AlignVCenter;
    option->orientation = head.orientation();
    if (head.model())
        applyModel(option, head);
    option->position = positionOf(head, visual);
    option->selectedPosition = selectedPositionOf(head, visual);
}
