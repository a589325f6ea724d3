#pragma once

#include "ZrLatencyMeter.h"

#include <QtCore/QVariantMap>

#include <vector>

/// What a plugin's grid did, as its reports and the window's frames tell it.
///
/// Shape:   a report follows each batch that went into the grid; the next frame shows it.
/// Units:   nanoseconds of ZrSteadyClock.
/// Threads: GUI thread only.
/// Errors:  a report that lacks something counts for what it has.
class ZrPluginMeter
{
public:
    void take(const QVariantMap &report);
    /// A frame that showed the grid is on the screen.
    void frameShown();

    qint64 updatesApplied() const { return m_updates; }
    qint64 frames() const { return m_frames; }
    const ZrLatencyMeter &toModel() const { return m_toModel; }
    const ZrLatencyMeter &toPixel() const { return m_toPixel; }
    /// As toPixel(), since the last call of this.
    ZrLatencyMeter takeRecentToPixel();

private:
    qint64 m_updates = 0;
    qint64 m_frames = 0;
    ZrLatencyMeter m_toModel;
    ZrLatencyMeter m_toPixel;
    ZrLatencyMeter m_recent;
    std::vector<qint64> m_unshownNs; // when the messages were sent whose rows the next frame shows
};
