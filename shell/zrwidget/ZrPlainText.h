#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QLabel;
class QTextEdit;
class QWidget;

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
    /// How much of a text is shown.
    struct Bound
    {
        int characters;
        int lines;
    };
    static constexpr Bound labelBound{1000, 20};       // what a wrapping label shows without filling a screen
    static constexpr Bound captionBound{200, 1};       // one line: titles, buttons, menu entries
    static constexpr Bound documentBound{16000, 4000}; // what a text edit lays out in a few ms

    /// For a label that wraps: plain text, no shortcut, word wrap on.
    static void setText(QLabel *label, const QString &text, Bound bound = labelBound);
    /// For a label of one line: as above without wrapping. The label may become narrower than its text, so
    /// that a long title doesn't set the width of its window.
    static void setCaption(QLabel *label, const QString &text, Bound bound = captionBound);
    /// Replaces the text of an edit, which wraps anywhere from now on. Keep alignment in the document's
    /// default text option: a replaced text takes its format from there.
    static void setText(QTextEdit *edit, const QString &text, Bound bound = documentBound);
    /// Adds a line at the end of an edit and leaves the cursor there. The bound is that of the line.
    static void appendLine(QTextEdit *edit, const QString &text, Bound bound = documentBound);
    static void setToolTip(QWidget *widget, const QString &text);

    /// For QToolTip::showText and QAction::setToolTip.
    static QString toolTip(const QString &text);
    /// For buttons, check boxes, tabs and menu entries: one line, with ampersands doubled, so that they show
    /// as one and are no shortcut.
    static QString caption(const QString &text, Bound bound = captionBound);
    /// The text, or its beginning and mark() when it's beyond the bound.
    static QString beginning(const QString &text, Bound bound);
    /// The text with places to break inside words too long for a line.
    static QString breakable(const QString &text);
    /// What stands where the rest was left out.
    static QString mark();

private:
    ZrPlainText() = delete;
};
