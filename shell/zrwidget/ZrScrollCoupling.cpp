#include "ZrScrollCoupling.h"

#include <QtWidgets/QScrollBar>

void ZrScrollCoupling::apply(int sourceValue, const QAbstractSlider *source, QAbstractSlider *target)
{
    if (!source || !target)
        return;
    // 64 bits: a grid of a million rows scrolled by pixels overflows the product of two ints.
    const qint64 sourceRange = qint64(source->maximum()) - source->minimum();
    if (sourceRange <= 0)
        return;
    const qint64 targetRange = qint64(target->maximum()) - target->minimum();
    const qint64 passed = qint64(sourceValue) - source->minimum();
    target->setValue(int(passed * targetRange / sourceRange + target->minimum()));
}

void ZrScrollCoupling::coupleValues(QScrollBar *first, QScrollBar *second)
{
    QObject::connect(first, &QScrollBar::valueChanged, second, &QScrollBar::setValue);
    QObject::connect(second, &QScrollBar::valueChanged, first, &QScrollBar::setValue);
}
