#include "ZrHeaderSectionPainter.h"

#include "ZrHeaderColumns.h"
#include "ZrHeaderHost.h"
#include "ZrHeaderView_p.h"
#include "ZrPlainText.h"
#include "ZrRoleKeys.h"
#include "ZrSkinPixmap.h"

#include <QtCore/QUrl>
#include <QtGui/QCursor>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>

namespace {

// Lines between sections leave this much free at their ends.
constexpr int lineGapPx = 3;

/// Notes where a part was painted, without detaching the map when nothing moved.
void note(QMap<int, QRect> &places, int column, const QRect &place)
{
    const auto known = places.constFind(column);
    if (known == places.cend() || *known != place)
        places.insert(column, place);
}

} // namespace

ZrHeaderSectionPainter::ZrHeaderSectionPainter(QPainter *painter, const QHeaderView &head,
                                               ZrHeaderViewPrivate &shared, const QStyleOptionHeader &option,
                                               bool dragging)
    : m_painter(painter)
    , m_head(head)
    , m_shared(shared)
    , m_option(option)
    , m_section(option.section)
    , m_column(ZrHeaderColumns::logicalColumn(head, option.section))
    , m_dragging(dragging)
    , m_layout(shared.layoutOf(head, option.section, option.rect, dragging))
    , m_host(ZrHeaderHost::of(&head))
    , m_grouped(!m_layout.topBand.isNull())
{
}

void ZrHeaderSectionPainter::paint()
{
    drawFrame();
    drawTexts();
    drawLines();
    drawFilterButton();
    drawCheckBox();
    drawTip();
}

void ZrHeaderSectionPainter::drawFrame()
{
    // The common style sets back the clip that it found, which takes a painter without one to an empty clip,
    // and nothing after would show. Restoring also sets the brush origin back.
    m_painter->save();
    // A pattern of the model's starts at the section, not at the window.
    const QVariant background = value(Qt::BackgroundRole);
    if (background.canConvert<QBrush>())
        m_painter->setBrushOrigin(m_option.rect.topLeft());
    const QStyleOptionHeader bottom = frameOption(m_layout.bottomBand, true);
    if (m_grouped) {
        // Each section of the run paints the whole band, but only where it stands itself: the band must not
        // cover the pictures of the sections that were painted before. CE_Header would set a clip of its own;
        // a head without text and mark is its section part, which doesn't.
        m_painter->save();
        m_painter->setClipRect(m_option.rect, Qt::IntersectClip);
        const QStyleOptionHeader top = frameOption(m_layout.topBand, false);
        m_head.style()->drawControl(QStyle::CE_HeaderSection, &top, m_painter, &m_head);
        m_painter->restore();
    }
    m_head.style()->drawControl(QStyle::CE_Header, &bottom, m_painter, &m_head);
    m_painter->restore();
}

QStyleOptionHeader ZrHeaderSectionPainter::frameOption(const QRect &rect, bool withIndicator) const
{
    QStyleOptionHeader option = m_option;
    option.rect = rect;
    // The label has a pass and a place of its own, and its icon goes with it.
    option.icon = QIcon();
    if (withIndicator && showsIndicator()) {
        option.sortIndicator = m_head.sortIndicatorOrder() == Qt::AscendingOrder
                                   ? QStyleOptionHeader::SortDown
                                   : QStyleOptionHeader::SortUp;
    }
    return option;
}

QVariant ZrHeaderSectionPainter::value(int role) const
{
    const QAbstractItemModel *const model = m_head.model();
    return model ? model->headerData(m_section, m_head.orientation(), role) : QVariant();
}

bool ZrHeaderSectionPainter::showsIndicator() const
{
    return m_head.isSortIndicatorShown() && m_head.sortIndicatorSection() == m_section;
}

void ZrHeaderSectionPainter::drawTexts()
{
    if (m_grouped) {
        const QString name =
            ZrPlainText::visiblePart(value(ZrGroupNameRole).toString(), m_layout.groupName.size());
        m_painter->save();
        m_painter->setClipRect(m_option.rect, Qt::IntersectClip);
        m_head.style()->drawItemText(m_painter, m_layout.groupName, Qt::AlignCenter, m_option.palette, true,
                                     name, QPalette::NoRole);
        m_painter->restore();
    }
    QStyleOptionHeader label = m_option;
    label.rect = m_layout.label;
    label.text = ZrPlainText::visiblePart(value(Qt::DisplayRole).toString(), label.rect.size());
    if (m_head.textElideMode() != Qt::ElideNone) {
        label.text = label.fontMetrics.elidedText(label.text, m_head.textElideMode(),
                                                  m_layout.label.width() - labelMarginsPx());
    }
    m_head.style()->drawControl(QStyle::CE_HeaderLabel, &label, m_painter, &m_head);
}

int ZrHeaderSectionPainter::labelMarginsPx() const
{
    const QStyle *const style = m_head.style();
    int margins = 2 * style->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &m_head);
    const auto arrow = Qt::Alignment(style->styleHint(QStyle::SH_Header_ArrowAlignment, nullptr, &m_head));
    if (showsIndicator() && (arrow & Qt::AlignVCenter))
        margins += style->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &m_head);
    if (!m_option.icon.isNull()) {
        margins += style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &m_head) +
                   style->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &m_head);
    }
    return margins;
}

void ZrHeaderSectionPainter::drawLines()
{
    if (!m_shared.gridColorSet)
        return;
    m_painter->save();
    m_painter->setPen(QPen(m_shared.gridColor, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    m_painter->setBrush(Qt::white);
    const QRect &section = m_option.rect;
    const int middle = m_layout.bottomBand.top();
    if (m_grouped)
        m_painter->drawLine(section.left(), middle, section.right(), middle);
    // The last section is the one at the last visual place, visible or not: the head of a left side table
    // ends with hidden sections, and its edge to the main table wants a line.
    const bool last = m_head.visualIndex(m_section) == m_head.count() - 1;
    if (!last && !m_dragging) {
        const int top = m_grouped && continuesGroup() ? middle : section.top() + lineGapPx;
        m_painter->drawLine(section.right(), top, section.right(), section.bottom() - lineGapPx);
    }
    m_painter->restore();
}

bool ZrHeaderSectionPainter::continuesGroup() const
{
    const int next = m_head.logicalIndex(m_head.visualIndex(m_section) + 1);
    return next >= 0 && !m_head.isSectionHidden(next) &&
           ZrHeaderColumns::groupId(m_head, next) == ZrHeaderColumns::groupId(m_head, m_section);
}

void ZrHeaderSectionPainter::drawFilterButton()
{
    if (!m_host || m_column < 0)
        return;
    if (!m_shared.isFilterable(m_column)) {
        // No button stands there any more, so that nothing may be hit.
        if (m_shared.filterButtonRects.contains(m_column))
            m_shared.filterButtonRects.remove(m_column);
        return;
    }
    // A tree has no filter popup, hence no place to note; the picture is required all the same.
    if (m_host->headKind() == ZrHeaderHost::Kind::Tree) {
        ZrSkinPixmap::draw(m_painter, m_layout.filterPicture,
                           m_host->headPicture(ZrHeaderHost::Picture::Tristate));
        return;
    }
    if (!m_dragging)
        note(m_shared.filterButtonRects, m_column, m_layout.filterButton);
    const QPoint pointer = m_head.viewport()->mapFromGlobal(QCursor::pos());
    ZrHeaderHost::Picture picture = ZrHeaderHost::Picture::Filter;
    if (!m_dragging && m_layout.filterButton.contains(pointer))
        picture = ZrHeaderHost::Picture::FilterHover;
    else if (m_host->isColumnFiltered(m_column))
        picture = ZrHeaderHost::Picture::Filtered;
    else if (!m_shared.filterButtonAlwaysVisible)
        return;
    ZrSkinPixmap::draw(m_painter, m_layout.filterPicture, m_host->headPicture(picture));
}

void ZrHeaderSectionPainter::drawCheckBox()
{
    if (!m_host || !m_shared.checkBoxShown || m_section != 0)
        return;
    ZrHeaderHost::Picture picture =
        m_shared.checked ? ZrHeaderHost::Picture::Check : ZrHeaderHost::Picture::Uncheck;
    if (m_shared.showsPartial())
        picture = ZrHeaderHost::Picture::Tristate;
    const QRect place = m_host->headKind() == ZrHeaderHost::Kind::Tree
                            ? ZrHeaderSectionLayout::treeCheckBox(m_option.rect)
                            : ZrHeaderSectionLayout::tableCheckBox(m_option.rect);
    ZrSkinPixmap::draw(m_painter, place, m_host->headPicture(picture));
}

void ZrHeaderSectionPainter::drawTip()
{
    if (!m_shared.hasTip(m_column)) {
        if (m_shared.tipRects.contains(m_column))
            m_shared.tipRects.remove(m_column);
        return;
    }
    if (!m_dragging)
        note(m_shared.tipRects, m_column, m_layout.tip);
    // The path begins with a slash of its own; the host's file name has two then, as other users of this
    // file.
    ZrSkinPixmap::draw(m_painter, m_layout.tip, QStringLiteral("/images/master/widget/help_pad.png"));
}
