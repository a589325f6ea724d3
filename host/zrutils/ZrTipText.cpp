#include "zrutils/ZrTipText.h"

#include <QtGui/QTextDocument>

namespace {
constexpr int longest = 4000; // characters shown
constexpr int widest = 120;   // characters of a line that needs no wrapping
constexpr int wrapAfter = 40; // characters of a word, before it may be broken

QString shortened(const QString &text)
{
    if (text.size() <= longest)
        return text;
    // Not between the halves of one character.
    const int end = text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest;
    return text.left(end) + QChar(0x2026);
}

bool hasWideLine(const QString &text)
{
    int start = 0;
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0; end = text.indexOf(QLatin1Char('\n'), start)) {
        if (end - start > widest)
            return true;
        start = end + 1;
    }
    return text.size() - start > widest;
}

/// With a place to break, that shows nothing, inside each long word.
QString breakable(const QString &text)
{
    QString result;
    int run = 0;
    for (const QChar unit : text) {
        if (run >= wrapAfter && !unit.isLowSurrogate() && !unit.isMark()) {
            result.append(QChar(0x200B));
            run = 0;
        }
        result.append(unit);
        run = unit.isSpace() ? 0 : run + 1;
    }
    return result;
}
} // namespace

QString ZrTipText::shown(const QString &text)
{
    const QString part = shortened(text);
    if (!Qt::mightBeRichText(part) && !hasWideLine(part))
        return part;
    QString escaped = breakable(part).toHtmlEscaped();
    escaped.replace(QLatin1Char('\n'), QLatin1String("<br/>"));
    return QStringLiteral("<span>") + escaped + QStringLiteral("</span>");
}
