#include "ZrMessageText.h"

#include "ZrPlainText.h"

#include <QtGui/QAbstractTextDocumentLayout>

namespace {

// Of the narrowest letters these are twice as wide as any box.
constexpr int mostMeasured = 4000;
// Laying out 4,000 Chinese characters takes some 15 ms, as many Latin ones in words half of it.
constexpr ZrPlainText::Bound ofWords{4000, 500, 4000};
// An edit that has to break words takes the square of their length.
constexpr ZrPlainText::Bound ofLongWords{4000, 500, 1000};
constexpr int longWord = 300;

/// A message of words is shown whole, however long its paragraphs are.
ZrPlainText::Bound boundOf(const QString &text)
{
    int length = 0;
    for (const QChar unit : text) {
        // From here on lines may break at each character.
        const bool endsWord = unit.isSpace() || (unit >= QChar(0x2E80) && !unit.isSurrogate());
        length = endsWord ? 0 : length + 1;
        if (length > longWord)
            return ofLongWords;
    }
    return ofWords;
}

} // namespace

ZrMessageText::ZrMessageText(QWidget *parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    setAcceptRichText(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // In the document, from where each new text takes it; an edit's own is that of one paragraph.
    QTextOption option = document()->defaultTextOption();
    option.setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    document()->setDefaultTextOption(option);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &ZrMessageText::centre);
}

void ZrMessageText::setMessage(const QString &text)
{
    m_measured = text.left(mostMeasured);
    ZrPlainText::setText(this, text, boundOf(text));
    setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}

int ZrMessageText::textWidthPx() const
{
    polish();
    return fontMetrics().horizontalAdvance(m_measured);
}

int ZrMessageText::lineHeightPx() const
{
    polish();
    return fontMetrics().height();
}

// The style sheet's font is there only after polishing. The window goes first: a window that was never
// polished doesn't tell its parts of a new style sheet, and those that were would keep the old one.
void ZrMessageText::polish() const
{
    window()->ensurePolished();
    ensurePolished();
}

void ZrMessageText::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    centre();
}

// An edit has no vertical alignment: the place above the text is taken from the viewport.
void ZrMessageText::centre()
{
    const int placePx = contentsRect().height();
    const int textPx = int(document()->documentLayout()->documentSize().height());
    const int abovePx = qMax(0, (placePx - textPx) / 2);
    if (viewportMargins().top() != abovePx)
        setViewportMargins(0, abovePx, 0, 0);
}
