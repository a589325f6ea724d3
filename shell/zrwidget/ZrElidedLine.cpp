#include "ZrElidedLine.h"

#include "ZrPlainText.h"

#include <QtGui/QFontMetrics>

QString ZrElidedLine::of(const QString &text, const QFontMetrics &metrics, int widthPx)
{
    // No more characters than pixels are worth measuring.
    const int most = qMax(1, widthPx);
    const QString line = ZrPlainText::caption(text, {most, 1, most});
    return metrics.elidedText(line, Qt::ElideRight, widthPx, Qt::TextShowMnemonic);
}
