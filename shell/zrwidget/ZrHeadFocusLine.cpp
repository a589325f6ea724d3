#include "ZrHeadFocusLine.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>

namespace {
constexpr int LinePx = 2;

// The main part: frozen parts are its children.
const QWidget *gridOf(const QWidget &head)
{
    const QWidget *grid = nullptr;
    for (const QWidget *up = head.parentWidget(); up && !up->isWindow(); up = up->parentWidget()) {
        if (qobject_cast<const QAbstractItemView *>(up))
            grid = up;
    }
    return grid;
}
} // namespace

ZrHeadFocusLine::ZrHeadFocusLine(QHeaderView *head)
    : QObject(head)
    , m_head(head)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { follow(now); });
}

void ZrHeadFocusLine::follow(const QWidget *focus)
{
    const QWidget *const grid = focus ? gridOf(*m_head) : nullptr;
    const bool isShown = grid && (grid == focus || grid->isAncestorOf(focus));
    if (isShown == m_shown)
        return;
    m_shown = isShown;
    m_head->viewport()->update();
}

void ZrHeadFocusLine::paint(QPainter *painter) const
{
    if (!m_shown)
        return;
    const QRect room = m_head->viewport()->rect();
    const int widthPx = qMin(room.width(), m_head->length() - m_head->offset());
    painter->fillRect(QRect(0, room.height() - LinePx, widthPx, LinePx),
                      m_head->palette().color(QPalette::Highlight));
}
