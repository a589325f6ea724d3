#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QLabel;
class QSize;
class QTextEdit;
class QWidget;

/// How much of a text is shown. A text beyond its characters or lines ends in a mark, and so does a line
/// beyond its own.
struct ZrTextBound
{
    int characters;
    int lines;
    int lineCharacters = 1000;
};

/// Puts a text that comes from outside (a message, a reason, a name, a log line) onto a widget: the one place
/// that makes such a text safe and cheap to show.
///
/// Safe: it's never read as markup, so no picture is read from disk and no link appears, and an ampersand is
/// no keyboard shortcut. Cheap: laying out costs milliseconds whatever the text, and a text without a blank
/// wraps instead of widening its window.
///
/// Shape:     a text within its bound is shown whole, and the widget's text() is that text. A longer one is
///            shown as its beginning and mark(); who needs the rest keeps the text itself. Labels break at
///            blanks only, so a word too long for a line gets places to break (U+200B, which shows nothing);
///            it can then be wrapped, and text() has those places too.
/// Units:     bounds in characters (UTF-16 units) and in lines.
/// Ownership: widgets are borrowed; null is ignored.
/// Threads:   GUI thread only; the functions from text to text, any.
/// Errors:    none.
class ZRWIDGET_PRIVATE_EXPORT ZrPlainText
{
public:
    using Bound = ZrTextBound;
    // A label lays its text out some six times. All of them together take 0.5 ms for 600 Latin characters, 3
    // ms for those that no font has. 20 lines don't fill a screen yet.
    static constexpr Bound labelBound{600, 20, 600};
    // One line: titles, buttons, menu entries.
    static constexpr Bound captionBound{200, 1, 200};
    // A word that an edit has to break costs the square of its length: 1,000 characters take 1.5 ms, 4,000
    // take 22 and 16,000 take 240; 1,000 that no font has take 10. 2,000 lines take 8 ms, and 20 when all of
    // them have to be laid out for a scroll to the end.
    static constexpr Bound documentBound{64000, 2000, 1000};

    /// For a label that wraps: plain text, no shortcut, word wrap on.
    static void setText(QLabel *label, const QString &text, Bound bound = labelBound);
    /// For a label of one line: as above without wrapping. The label may become narrower than its text, so
    /// that a long title doesn't set the width of its window.
    static void setCaption(QLabel *label, const QString &text, Bound bound = captionBound);
    /// Replaces the text of an edit, which wraps anywhere from now on. Keep alignment in the document's
    /// default text option: a replaced text takes its format from there.
    static void setText(QTextEdit *edit, const QString &text, Bound bound = documentBound);
    /// Adds a line at the end of an edit, scrolls to it and leaves the cursor there. The bound is that of the
    /// line alone: how much an edit gathers is its owner's concern.
    static void appendLine(QTextEdit *edit, const QString &text, Bound bound = documentBound);
    static void setToolTip(QWidget *widget, const QString &text);

    /// For QToolTip::showText and QAction::setToolTip.
    static QString toolTip(const QString &text);
    /// For buttons, check boxes, tabs and menu entries: one line, with ampersands doubled, so that they show
    /// as one and are no shortcut.
    static QString caption(const QString &text, Bound bound = captionBound);
    /// What of the text is within the bound, and mark() wherever something was left out.
    static QString beginning(const QString &text, Bound bound);
    /// The text, or its beginning and mark() when more than that can't be seen in a place of this size: what
    /// is painted needs no measuring of the rest. Costs nothing for a text that may fit.
    static QString visiblePart(const QString &text, const QSize &placePx);
    /// The text with places to break inside words too long for a line.
    static QString breakable(const QString &text);
    /// What stands where the rest was left out.
    static QString mark();

private:
    ZrPlainText() = delete;
};
