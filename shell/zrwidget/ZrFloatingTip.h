#pragma once

#include "zrwidget_global.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QString>

class QLabel;
class QWidget;

/// A tool tip whose text changes at each key press, at the cost of its text alone.
///
/// It does what QToolTip::showText does, and calls it each time. But where a style sheet is in force, the
/// toolkit dresses a tip anew for each text: it matches all rules again and lays the text out a second time,
/// which costs several times the key press itself. As long as only the text changes, it is put into the tip
/// that stands there, so that showText finds nothing left to do.
///
/// Shape:     one tip for one widget. It stays at least as long after the last text as the toolkit's own, 10
/// s,
///            and up to `refreshMs` longer: a rewritten tip doesn't start that time anew, so now and then a
///            text goes the toolkit's way.
/// Units:     global logical px.
/// Ownership: a value in its widget, which is borrowed; the tip belongs to the toolkit.
/// Threads:   GUI thread only.
/// Errors:    a tip that isn't as expected, by another toolkit or style, is shown by showText alone.
class ZRWIDGET_PRIVATE_EXPORT ZrFloatingTip
{
public:
    static constexpr int usualRefreshMs = 5000;

    explicit ZrFloatingTip(QWidget *widget, int refreshMs = usualRefreshMs);

    /// Plain text, or markup made by ZrPlainText::toolTip(). An empty text hides the tip.
    void show(const QPoint &point, const QString &text);

private:
    bool rewrite(const QPoint &point, const QString &text);
    QLabel *shownLabel() const;

    QWidget *const m_widget; // not owned: we are part of it
    const int m_refreshMs;
    QPointer<QLabel> m_label; // null before the first text and when the toolkit ended the tip
    QPoint m_point;
    QElapsedTimer m_sinceShown; // since the toolkit began to count the time of the tip
};
