#include "ZrLabelRoom.h"

QSize ZrLabelRoom::least(const QSize &wholeText)
{
    return {qMin(wholeText.width(), mostPx), wholeText.height()};
}
