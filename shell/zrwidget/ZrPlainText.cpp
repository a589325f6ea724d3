#include "ZrPlainText.h"

#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QSize>
#include <QtGui/QTextCursor>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTextEdit>

#include <limits>

namespace {

constexpr int longestWord = 24;      // characters; no word or number of the field is longer
constexpr int piece = 8;             // characters of a longer one that stay together
constexpr ushort breakHere = 0x200B; // zero width space

bool isLineEnd(QChar unit)
{
    return unit == QLatin1Char('\n') || unit == QLatin1Char('\r') || unit == QChar::LineSeparator ||
           unit == QChar::ParagraphSeparator;
}

/// Whether the toolkit breaks a line at this character by itself.
bool endsWord(QChar unit)
{
    constexpr ushort figureSpace = 0x2007, narrowNoBreakSpace = 0x202F;
    if (unit == QChar::Nbsp || unit.unicode() == figureSpace || unit.unicode() == narrowNoBreakSpace)
        return false;
    const QChar::Script script = unit.script();
    return unit.isSpace() || unit.unicode() == breakHere || script == QChar::Script_Han ||
           script == QChar::Script_Hiragana || script == QChar::Script_Katakana ||
           script == QChar::Script_Hangul;
}

/// Not between the halves of a character, and not before what is written over the one before.
bool mayStartLine(QChar unit)
{
    return !unit.isLowSurrogate() && !unit.isMark();
}

/// The last position up to `place`, not before `least`, at which a text may be cut.
int characterStart(const QString &text, int place, int least)
{
    while (place > least && place < text.size() && !mayStartLine(text.at(place)))
        --place;
    return place;
}

/// Where the last character ends that lies within the bound.
int boundedEnd(const QString &text, ZrPlainText::Bound bound)
{
    const int most = qMin(text.size(), qMax(0, bound.characters));
    int lines = 1;
    int end = 0;
    for (; end < most; ++end) {
        // "\r\n" is one end of line.
        const bool isSecondHalf =
            end > 0 && text.at(end) == QLatin1Char('\n') && text.at(end - 1) == QLatin1Char('\r');
        if (isLineEnd(text.at(end)) && !isSecondHalf && ++lines > bound.lines)
            break;
    }
    return characterStart(text, end, 0);
}

/// Where the line that `start` is in ends.
int lineEnd(const QString &text, int start)
{
    int end = start;
    while (end < text.size() && !isLineEnd(text.at(end)))
        ++end;
    return end;
}

/// The text, with mark() for what stands beyond `most` characters of a line.
QString withShortLines(const QString &text, int most)
{
    QString result;
    int done = 0; // of `text`, what `result` holds already or leaves out
    for (int start = 0; start < text.size();) {
        const int end = lineEnd(text, start);
        if (end - start > most) {
            const int kept = characterStart(text, start + qMax(0, most), start);
            result.append(text.midRef(done, kept - done)).append(ZrPlainText::mark());
            done = end;
        }
        start = end + 1;
    }
    // The usual text has no such line and is handed back as it came.
    return done == 0 ? text : result + text.midRef(done);
}

ZrPlainText::Bound withAnyLines(ZrPlainText::Bound bound)
{
    bound.lines = std::numeric_limits<int>::max();
    bound.lineCharacters = bound.characters;
    return bound;
}

/// Where the word that begins at `start` ends.
int wordEnd(const QString &text, int start)
{
    int end = start;
    while (end < text.size() && !endsWord(text.at(end)))
        ++end;
    return end;
}

void appendInPieces(QString *result, const QStringRef &word)
{
    int length = 0;
    for (const QChar unit : word) {
        if (length >= piece && mayStartLine(unit)) {
            result->append(QChar(breakHere));
            length = 0;
        }
        result->append(unit);
        ++length;
    }
}

QString onOneLine(QString text)
{
    for (QChar &unit : text) {
        if (isLineEnd(unit) || unit == QLatin1Char('\t'))
            unit = QLatin1Char(' ');
    }
    return text;
}

void makePlain(QLabel *label)
{
    label->setTextFormat(Qt::PlainText);
    // A label turns an ampersand into a shortcut for its buddy, and only then.
    label->setBuddy(nullptr);
}

void wrapAnywhere(QTextEdit *edit)
{
    edit->setLineWrapMode(QTextEdit::WidgetWidth);
    edit->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

} // namespace

void ZrPlainText::setText(QLabel *label, const QString &text, Bound bound)
{
    if (!label)
        return;
    makePlain(label);
    label->setWordWrap(true);
    label->setText(breakable(beginning(text, bound)));
}

void ZrPlainText::setCaption(QLabel *label, const QString &text, Bound bound)
{
    if (!label)
        return;
    makePlain(label);
    label->setWordWrap(false);
    // Without a minimum of its own a label claims the width of its text from the window.
    if (label->minimumWidth() == 0)
        label->setMinimumWidth(1);
    label->setText(onOneLine(beginning(text, withAnyLines(bound))));
}

void ZrPlainText::setText(QTextEdit *edit, const QString &text, Bound bound)
{
    if (!edit)
        return;
    wrapAnywhere(edit);
    edit->setPlainText(beginning(text, bound));
}

void ZrPlainText::appendLine(QTextEdit *edit, const QString &text, Bound bound)
{
    if (!edit)
        return;
    wrapAnywhere(edit);
    edit->moveCursor(QTextCursor::End);
    edit->insertPlainText(beginning(text, bound) + QStringLiteral("\r\n"));
    // The edit scrolls before it knows the height of what came in.
    edit->ensureCursorVisible();
}

void ZrPlainText::setToolTip(QWidget *widget, const QString &text)
{
    if (widget)
        widget->setToolTip(toolTip(text));
}

QString ZrPlainText::toolTip(const QString &text)
{
    return ZrCommonUtils::getMyTipString(text);
}

QString ZrPlainText::caption(const QString &text, Bound bound)
{
    QString line = onOneLine(beginning(text, withAnyLines(bound)));
    return line.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString ZrPlainText::beginning(const QString &text, Bound bound)
{
    const int end = boundedEnd(text, bound);
    if (end == text.size())
        return withShortLines(text, bound.lineCharacters);
    const QString part = withShortLines(text.left(end), bound.lineCharacters);
    return part.endsWith(mark()) ? part : part + mark();
}

QString ZrPlainText::visiblePart(const QString &text, const QSize &placePx)
{
    // No character is narrower than a pixel or lower than these.
    constexpr int leastLinePx = 4;
    const int lines = qMax(1, placePx.height() / leastLinePx);
    const int inLine = qMax(1, placePx.width());
    const int most =
        inLine > std::numeric_limits<int>::max() / lines ? std::numeric_limits<int>::max() : inLine * lines;
    return text.size() <= inLine ? text : beginning(text, {most, lines, inLine});
}

QString ZrPlainText::breakable(const QString &text)
{
    QString result;
    int done = 0; // of `text`, what `result` holds already
    for (int start = 0; start < text.size();) {
        const int end = wordEnd(text, start);
        if (end - start > longestWord) {
            result.append(text.midRef(done, start - done));
            appendInPieces(&result, text.midRef(start, end - start));
            done = end;
        }
        start = end + 1;
    }
    // The usual text has no such word and is handed back as it came.
    return done == 0 ? text : result + text.midRef(done);
}

QString ZrPlainText::mark()
{
    return QStringLiteral(" \u2026");
}
