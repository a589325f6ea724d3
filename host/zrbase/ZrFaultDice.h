#pragma once

#include "ZrFaultSpec.h"

/// What the dice decided for one item.
struct ZrFaultFate
{
    bool drop = false;
    bool duplicate = false;
    bool reorder = false;
    bool reject = false;
    int delayMs = 0;
};

/// One stream's dice.
///
/// Shape:   for each item the same number of dice falls, so that a fault switched on or off doesn't
///          change the course of another.
/// Threads: one thread at a time.
class ZrFaultDice
{
public:
    ZrFaultDice(quint32 seed, const QString &streamKey);
    ZrFaultFate roll(const ZrFaultSpec &spec);

private:
    double next(); // from 0 to below 1

    quint64 m_state;
};
