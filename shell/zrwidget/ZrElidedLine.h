#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QFontMetrics;

/// A text that comes from outside, as one line for a given width.
///
/// Shape:   for painting with Qt::TextShowMnemonic: ampersands are doubled, so that they show as one. What
///          doesn't fit ends in an ellipsis.
/// Units:   width in logical px.
/// Threads: those of the font metrics.
/// Errors:  none; the cost is bounded by the width, however long the text.
class ZRWIDGET_PRIVATE_EXPORT ZrElidedLine
{
public:
    static QString of(const QString &text, const QFontMetrics &metrics, int widthPx);

private:
    ZrElidedLine() = delete;
};
