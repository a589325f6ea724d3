#pragma once

#include "ZrLatencyMeter.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

/// One plugin at the end of a run.
struct ZrPluginRun
{
    QString id;
    QString instance;
    qint64 rows = 0; // of all its grids
};

/// What one run of the workstation came to, written as one JSON object.
///
/// Errors: write() gives one sentence or nothing; the file is written beside its place and renamed.
struct ZrRunReport
{
    double seconds = 0;
    qint64 messagesIn = 0;
    qint64 messagesLost = 0;
    qint64 rows = 0;
    qint64 updatesApplied = 0;
    qint64 frames = 0;
    qint64 linesSkipped = 0;
    QVector<ZrPluginRun> plugins; // in the order in which they were opened
    ZrLatencyMeter feedToModel;   // this and what else speaks of a grid: of the first plugin
    ZrLatencyMeter feedToPixel;

    /// With the processor time and the memory of this process added.
    QByteArray toJson() const;
    QString write(const QString &path) const;

    static double cpuSeconds();
    static double residentMegabytes();
};
