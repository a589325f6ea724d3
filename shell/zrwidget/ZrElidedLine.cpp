#include "ZrElidedLine.h"

#include "ZrPlainText.h"

#include <QtGui/QFontMetrics>

QString ZrElidedLine::of(const QString &text, const QFontMetrics &metrics, int widthPx)
{
    // No more characters than pixels are worth measuring.
    const QString line = ZrPlainText::caption(text, {qMax(1, widthPx), 1});
    return metrics.elidedText(line, Qt::ElideRight, widthPx, Qt::TextShowMnemonic);
}
