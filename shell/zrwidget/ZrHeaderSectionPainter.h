#pragma once

#include "ZrHeaderSectionLayout.h"
#include "zrwidget_global.h"

#include <QtWidgets/QStyleOptionHeader>

class QHeaderView;
class QPainter;
class ZrHeaderHost;
class ZrHeaderViewPrivate;

/// Paints one section of a head, in six passes: frame, texts, lines, filter button, check box, tip.
///
/// Shape:     made for one section and one paint. It also notes in the shared state where filter button and
/// tip
///            now stand.
/// Ownership: borrows everything.
/// Threads:   GUI thread only.
/// Errors:    missing pictures paint nothing; a head outside of a table or tree has no filter button and no
///            check box, since the view names their pictures.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderSectionPainter
{
public:
    /// `option` describes the section without text and sort indicator; its rect is where the section stands.
    /// `dragging` is true for the copy that follows the pointer: it stands outside of its group and notes
    /// nothing.
    ZrHeaderSectionPainter(QPainter *painter, const QHeaderView &head, ZrHeaderViewPrivate &shared,
                           const QStyleOptionHeader &option, bool dragging);

    void paint();

private:
    void drawFrame();
    void drawTexts();
    void drawLines();
    void drawFilterButton();
    void drawCheckBox();
    void drawTip();

    QStyleOptionHeader frameOption(const QRect &rect, bool withIndicator) const;
    QVariant value(int role) const; // of the section, from the model
    bool showsIndicator() const;
    int labelMarginsPx() const;
    bool continuesGroup() const;

    QPainter *const m_painter;
    const QHeaderView &m_head;
    ZrHeaderViewPrivate &m_shared;
    const QStyleOptionHeader m_option;
    const int m_section;
    const int m_column; // logical
    const bool m_dragging;
    const ZrHeaderSectionLayout m_layout;
    ZrHeaderHost *const m_host; // null outside of a table or tree
    const bool m_grouped;
};
