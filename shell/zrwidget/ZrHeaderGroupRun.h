#pragma once

#include "zrwidget_global.h"

#include <QtCore/QRect>

class QHeaderView;

/// The run of neighbouring sections that share one group band.
///
/// Shape:   first and last visual index, both included; hidden sections count and have no width.
/// Threads: GUI thread only.
/// Errors:  a section that the head doesn't have gives an empty run (-1 to -1), whose band is the section's
/// own.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderGroupRun
{
public:
    /// The run around a section. The walk to the right never compares the last section: a run that reaches
    /// the section before it takes the last one in, whatever its group. Required; the last section paints its
    /// own frame over the part of the band that it lends.
    static ZrHeaderGroupRun of(const QHeaderView &head, int section);

    int first() const { return m_first; }
    int last() const { return m_last; }
    /// The band over the whole run, for a section that stands at `section`: its upper half, widened by the
    /// other sections of the run.
    QRect band(const QRect &section) const;

private:
    int m_first = -1;
    int m_last = -1;
    int m_leftPx = 0;  // width of the run before the section
    int m_rightPx = 0; // and after it
};
