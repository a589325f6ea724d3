#pragma once

#include <QtCore/QtGlobal>

#include <array>

/// Collects durations and tells their median, 99th percentile and maximum.
///
/// Shape:   constant memory: classes whose width is a 32nd of their value, so that a percentile is at
///          most 3 % too high. The maximum is exact.
/// Units:   microseconds out, nanoseconds in; a negative duration counts as zero.
/// Threads: one at a time.
class ZrLatencyMeter
{
public:
    void add(qint64 durationNs);
    void clear();
    qint64 count() const { return m_count; }
    /// The duration that `share` (0 to 1) of all do not exceed; 0 without any.
    double percentileUs(double share) const;
    double maxUs() const { return double(m_maxNs) / 1000.0; }

private:
    static constexpr int Steps = 32; // classes for each doubling
    static int classOf(qint64 ns);
    static qint64 endOf(int index);

    std::array<qint64, 64 * Steps> m_classes{};
    qint64 m_count = 0;
    qint64 m_maxNs = 0;
};
