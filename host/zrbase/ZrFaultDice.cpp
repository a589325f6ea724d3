#include "ZrFaultDice.h"

// Not the toolkit's hash, which differs between processors, nor a standard distribution, which differs
// between libraries: a run must repeat anywhere.
ZrFaultDice::ZrFaultDice(quint32 seed, const QString &streamKey)
    : m_state(14695981039346656037ULL ^ seed)
{
    for (const QChar c : streamKey)
        m_state = (m_state ^ c.unicode()) * 1099511628211ULL;
}

ZrFaultFate ZrFaultDice::roll(const ZrFaultSpec &spec)
{
    ZrFaultFate fate;
    fate.drop = next() < spec.drop;
    fate.duplicate = next() < spec.duplicate;
    fate.reorder = next() < spec.reorder;
    fate.reject = next() < spec.reject;
    const bool delayed = next() < spec.delayed;
    const int span = spec.delayMaxMs - spec.delayMinMs + 1;
    const int delayMs = spec.delayMinMs + static_cast<int>(next() * span);
    fate.delayMs = delayed ? delayMs : 0;
    return fate;
}

double ZrFaultDice::next()
{
    m_state += 0x9e3779b97f4a7c15ULL;
    quint64 mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebULL;
    mixed ^= mixed >> 31;
    return static_cast<double>(mixed >> 11) / 9007199254740992.0; // 2 to the 53rd
}
