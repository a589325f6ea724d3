#include "ZrCellText.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

constexpr int mostFonts = 64;

// The characters that part lines, stand for objects or choose among texts of several lengths.
bool isPlain(QChar c)
{
    const ushort code = c.unicode();
    return (code >= 0x20 && code < 0x7f) ||
           (code >= 0xa0 && code != QChar::LineSeparator && code != QChar::ParagraphSeparator &&
            code != QChar::ObjectReplacementCharacter);
}

bool isPlain(const QString &text)
{
    return text.size() <= ZrCellText::longestText &&
           std::all_of(text.cbegin(), text.cend(), [](QChar c) { return isPlain(c); });
}

bool showsTextAlone(const QStyleOptionViewItem &option)
{
    constexpr auto ofText =
        QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::WrapText | QStyleOptionViewItem::Alternate;
    return !(option.features & ~QStyleOptionViewItem::ViewItemFeatures(ofText)) && option.icon.isNull() &&
           !(option.state & (QStyle::State_HasFocus | QStyle::State_Editing));
}

// Elsewhere the room for the text depends on the text.
bool givesTheTextAllRoom(const QStyleOptionViewItem &option)
{
    return option.showDecorationSelected && (option.decorationPosition == QStyleOptionViewItem::Left ||
                                             option.decorationPosition == QStyleOptionViewItem::Right);
}

QColor textColor(const QStyleOptionViewItem &option)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if (option.state & QStyle::State_Enabled)
        group = option.state & QStyle::State_Active ? QPalette::Normal : QPalette::Inactive;
    const bool selected = option.state & QStyle::State_Selected;
    return option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
}

uint lookOf(const QStyleOptionViewItem &option)
{
    return uint(option.displayAlignment) | uint(option.direction) << 16 | uint(option.textElideMode) << 18 |
           (option.features & QStyleOptionViewItem::WrapText ? 1U << 20 : 0U);
}

void breakLines(QTextLayout *layout, int widthPx)
{
    qreal height = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(widthPx);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout->endLayout();
}

} // namespace

/// One line, laid out for a cell; none when the text needs more than that.
class ZrCellText::Line
{
public:
    Line(const QStyleOptionViewItem &option, const QSize &size)
    {
        layOut(option, option.text, size.width());
        if (m_layout->lineCount() != 1) {
            m_layout.reset();
            return;
        }
        // The whole text's height places the line, not that of what is left of it.
        const QSize textSize = m_layout->boundingRect().size().toSize();
        m_top =
            QStyle::alignedRect(Qt::LayoutDirectionAuto, option.displayAlignment, textSize, {{0, 0}, size})
                .top();
        const QFontMetrics metrics(option.font);
        if (m_layout->lineAt(0).naturalTextWidth() > size.width())
            layOut(option, metrics.elidedText(option.text, option.textElideMode, size.width()), size.width());
    }

    bool isEmpty() const { return !m_layout; }

    void draw(QPainter *painter, const QPoint &cell) const
    {
        const QPointF place(cell.x(), cell.y() + m_top);
        for (int i = 0; i < m_layout->lineCount(); ++i)
            m_layout->lineAt(i).draw(painter, place);
    }

private:
    void layOut(const QStyleOptionViewItem &option, const QString &text, int widthPx)
    {
        const bool wrapped = option.features & QStyleOptionViewItem::WrapText;
        QTextOption textOption(QStyle::visualAlignment(option.direction, option.displayAlignment));
        textOption.setWrapMode(wrapped ? QTextOption::WordWrap : QTextOption::ManualWrap);
        textOption.setTextDirection(option.direction);
        m_layout = std::make_unique<QTextLayout>(text, option.font);
        m_layout->setCacheEnabled(true); // else each draw() shapes again
        m_layout->setTextOption(textOption);
        breakLines(m_layout.get(), widthPx);
    }

    std::unique_ptr<QTextLayout> m_layout;
    int m_top = 0; // px below the cell's top
};

ZrCellText::ZrCellText()
    : m_lines(mostLines)
{
    // Glyphs are numbers within a font that may now be another.
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, &ZrCellText::clear);
}

ZrCellText::~ZrCellText() = default;

std::shared_ptr<ZrCellText> ZrCellText::shared()
{
    static std::weak_ptr<ZrCellText> alive;
    std::shared_ptr<ZrCellText> one = alive.lock();
    if (!one) {
        one = std::make_shared<ZrCellText>();
        alive = one;
    }
    return one;
}

bool ZrCellText::draw(QPainter *painter, const QStyleOptionViewItem &option, QStyle *style)
{
    // A font of the cell's own is made anew at each paint, and would only fill the list of fonts.
    if (!showsTextAlone(option) || !givesTheTextAllRoom(option) ||
        !option.font.isCopyOf(option.widget->font()))
        return false;
    const int marginPx = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    const QRect room = option.rect.adjusted(marginPx, 0, -marginPx, 0);
    const Line *const text = option.text.isEmpty() ? nullptr : line(option, room.size());
    if (!option.text.isEmpty() && !text)
        return false;
    painter->save();
    painter->setClipRect(option.rect);
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    if (text) {
        painter->setPen(textColor(option));
        text->draw(painter, room.topLeft());
    }
    painter->restore();
    return true;
}

// Null when it is no single short line.
ZrCellText::Line *ZrCellText::line(const QStyleOptionViewItem &option, const QSize &size)
{
    if (size.isEmpty() || option.displayAlignment & Qt::AlignJustify || !isPlain(option.text))
        return nullptr;
    const Key key = {option.text, size, fontPlace(option.font), lookOf(option)};
    Line *found = m_lines.object(key);
    if (!found) {
        found = new Line(option, size);
        m_lines.insert(key, found);
    }
    return found->isEmpty() ? nullptr : found;
}

int ZrCellText::fontPlace(const QFont &font)
{
    if (m_lastFont < m_fonts.size() && m_fonts.at(m_lastFont).isCopyOf(font))
        return m_lastFont;
    const auto isSame = [&font](const QFont &held) { return held.isCopyOf(font); };
    const auto held = std::find_if(m_fonts.cbegin(), m_fonts.cend(), isSame);
    m_lastFont = int(held - m_fonts.cbegin());
    if (held == m_fonts.cend()) {
        if (m_fonts.size() == mostFonts)
            clear();
        m_lastFont = m_fonts.size();
        m_fonts.append(font);
    }
    return m_lastFont;
}

void ZrCellText::clear()
{
    m_lines.clear();
    m_fonts.clear();
    m_lastFont = 0;
}
