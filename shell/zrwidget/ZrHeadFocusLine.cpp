#include "ZrHeadFocusLine.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>

namespace {
constexpr int LinePx = 2;

// The main part: frozen parts are its children.
QWidget *gridOf(const QWidget &head)
{
    QWidget *grid = nullptr;
    for (QWidget *up = head.parentWidget(); up; up = up->isWindow() ? nullptr : up->parentWidget()) {
        if (qobject_cast<QAbstractItemView *>(up))
            grid = up;
    }
    return grid;
}
} // namespace

ZrHeadFocusLine::ZrHeadFocusLine(QHeaderView *head)
    : QObject(head)
    , m_head(head)
{
    head->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &ZrHeadFocusLine::follow);
    findGrid();
}

bool ZrHeadFocusLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_head && (event->type() == QEvent::ParentChange || event->type() == QEvent::Show))
        findGrid();
    // Besides the application's word: a grid in a graphics scene has a focus that the application doesn't
    // know.
    if (watched == m_grid && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        follow();
    return QObject::eventFilter(watched, event);
}

void ZrHeadFocusLine::findGrid()
{
    QWidget *const grid = gridOf(*m_head);
    if (grid == m_grid)
        return;
    if (m_grid)
        m_grid->removeEventFilter(this);
    m_grid = grid;
    if (grid)
        grid->installEventFilter(this);
    follow();
}

void ZrHeadFocusLine::follow()
{
    const bool isShown = m_grid && (m_grid->hasFocus() || m_grid->isAncestorOf(QApplication::focusWidget()));
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
