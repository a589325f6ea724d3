#include "ZrPluginMeter.h"

#include "feed/ZrFeedClock.h"
#include "ZrClientFields.h"

#include <QtCore/QVector>

namespace {
constexpr size_t MostUnshown = 1000000; // of a grid that no frame shows, behind a tab
} // namespace

void ZrPluginMeter::take(const QVariantMap &report)
{
    const qint64 appliedNs = report.value(ZrPluginReport::appliedNs).toLongLong();
    const auto sentNs = report.value(ZrPluginReport::sentNs).value<QVector<qint64>>();
    for (const qint64 sent : sentNs)
        m_toModel.add(appliedNs - sent);
    m_updates += sentNs.size();
    const auto inSightNs = report.value(ZrPluginReport::inSightNs).value<QVector<qint64>>();
    if (m_unshownNs.size() < MostUnshown)
        m_unshownNs.insert(m_unshownNs.end(), inSightNs.cbegin(), inSightNs.cend());
}

void ZrPluginMeter::frameShown()
{
    const qint64 nowNs = ZrSteadyClock::steadyNs();
    ++m_frames;
    for (const qint64 sentNs : m_unshownNs) {
        m_toPixel.add(nowNs - sentNs);
        m_recent.add(nowNs - sentNs);
    }
    m_unshownNs.clear();
}

ZrLatencyMeter ZrPluginMeter::takeRecentToPixel()
{
    const ZrLatencyMeter result = m_recent;
    m_recent.clear();
    return result;
}
