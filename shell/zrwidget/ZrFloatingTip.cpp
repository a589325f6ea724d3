#include "ZrFloatingTip.h"

#include <QtGui/QScreen>
#include <QtGui/QTextDocument>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

namespace {
constexpr int ToolkitMs = 10000; // how long the toolkit leaves a tip of this length
// Markup and long texts are wrapped, which is the toolkit's affair.
constexpr int MostCharacters = 32;
} // namespace

ZrFloatingTip::ZrFloatingTip(QWidget *widget, int refreshMs)
    : m_widget(widget)
    , m_refreshMs(refreshMs)
{
}

void ZrFloatingTip::show(const QPoint &point, const QString &text)
{
    const bool isRewritten = rewrite(point, text);
    QToolTip::showText(point, text, m_widget, QRect(), ToolkitMs + m_refreshMs);
    if (isRewritten)
        return;
    m_point = point;
    m_label = shownLabel();
    m_sinceShown.start();
}

bool ZrFloatingTip::rewrite(const QPoint &point, const QString &text)
{
    const bool isSimple = !text.isEmpty() && text.size() <= MostCharacters && !Qt::mightBeRichText(text);
    const bool stands = m_label && m_label->isVisible() && !m_label->wordWrap() && point == m_point &&
                        m_sinceShown.elapsed() < m_refreshMs;
    if (!isSimple || !stands)
        return false;
    // The toolkit adds to the hint what the font needs; that stays.
    const QSize added = m_label->size() - m_label->sizeHint();
    const QString before = m_label->text();
    m_label->setText(text);
    const QRect place(m_label->pos(), m_label->sizeHint() + added);
    // At the edge of the screen a wider tip has to move.
    if (!m_label->screen()->geometry().contains(place)) {
        m_label->setText(before);
        return false;
    }
    m_label->resize(place.size());
    return true;
}

QLabel *ZrFloatingTip::shownLabel() const
{
    // The tip of a widget is its child, though a window of its own.
    return m_widget->findChild<QLabel *>(QStringLiteral("qtooltip_label"), Qt::FindDirectChildrenOnly);
}
