#include "ZrLatencyMeter.h"

#include <cmath>

int ZrLatencyMeter::classOf(qint64 ns)
{
    if (ns < Steps)
        return int(ns);
    int doubling = 0;
    while ((ns >> doubling) >= 2 * Steps)
        ++doubling;
    return Steps * (doubling + 1) + int((ns >> doubling) - Steps);
}

// The largest value of the class.
qint64 ZrLatencyMeter::endOf(int index)
{
    if (index < Steps)
        return index;
    const int doubling = index / Steps - 1;
    // Unsigned: the last class ends at the largest number there is.
    return qint64(((quint64(index % Steps) + Steps + 1) << doubling) - 1);
}

void ZrLatencyMeter::add(qint64 durationNs)
{
    const qint64 ns = qMax<qint64>(0, durationNs);
    ++m_classes[size_t(classOf(ns))];
    ++m_count;
    m_maxNs = qMax(m_maxNs, ns);
}

void ZrLatencyMeter::clear()
{
    *this = ZrLatencyMeter();
}

double ZrLatencyMeter::percentileUs(double share) const
{
    const auto wanted = qMax<qint64>(1, qint64(std::ceil(share * double(m_count))));
    qint64 seen = 0;
    for (size_t i = 0; i < m_classes.size() && m_count > 0; ++i) {
        seen += m_classes[i];
        if (seen >= wanted)
            return double(qMin(endOf(int(i)), m_maxNs)) / 1000.0;
    }
    return 0;
}
