#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

#include <functional>
#include <limits>
#include <memory>

/// What one row of the table measures, and how far it has to reach.
///
/// Shape: ours, the peer and the limit are the same work on the same data. The peer is what a user would
///        write with the toolkit alone; the limit is the bare work, or our own rate under easier conditions.
struct ZrBenchRow
{
    static constexpr double None = std::numeric_limits<double>::quiet_NaN();

    QString name; // "family/what"
    QString unit; // a rate when higherIsBetter, else a time or a size
    bool higherIsBetter = false;
    QString peerName;
    QString limitName;
    double peerReach = None;  // bound of ours / peer: the least when higher is better, else the most
    double limitReach = None; // the same of ours / limit
};

/// The three sides of a row. Each call is one repetition and gives one value in the row's unit; it does its
/// own preparation outside the part that it times. Sides may share state: a row is measured by one thread,
/// one side at a time. An empty function means that there is no such side.
struct ZrBenchSides
{
    std::function<double()> ours;
    std::function<double()> peer;
    std::function<double()> limit;
};

/// A row with the way to measure it. `make` prepares the sides; what they hold is freed with them.
struct ZrBenchCase
{
    ZrBenchRow row;
    std::function<ZrBenchSides()> make;
};

/// A measured row: medians, NaN where there is no such side.
struct ZrBenchResult
{
    ZrBenchRow row;
    double ours = ZrBenchRow::None;
    double peer = ZrBenchRow::None;
    double limit = ZrBenchRow::None;

    bool reachesPeer() const;
    bool reachesLimit() const;
};

/// Runs `repetitions` rounds of ours, peer, limit, so that what happens on the machine meanwhile falls on all
/// three.
/// With a `side` ("ours", "peer" or "limit") the others are left out: what a profiler should see alone.
ZrBenchResult runBench(const ZrBenchCase &benchCase, int repetitions, const QString &side = QString());

double medianOf(QVector<double> values);

/// Processor time of this thread in s. Other work on the machine doesn't count, and on an idle one it is what
/// a clock on the wall shows.
double threadSeconds();
/// Seconds of this thread's processor time that `work` takes; all that the grids do happens on one thread.
double secondsOf(const std::function<void()> &work);
/// Seconds on the wall, for work that goes over to another thread and back.
double wallSecondsOf(const std::function<void()> &work);

using ZrBenchCases = QVector<ZrBenchCase>;
ZrBenchCases gridUpdateBenches();
ZrBenchCases gridAppendBenches();
ZrBenchCases gridSortFilterBenches();
ZrBenchCases gridPaintBenches();
ZrBenchCases gridMemoryBenches();
ZrBenchCases mapBenches();
ZrBenchCases busBenches();
ZrBenchCases editorBenches();
ZrBenchCases comboBenches();
ZrBenchCases ladderBenches();
ZrBenchCases formBenches();
ZrBenchCases textBenches();
ZrBenchCases filterBenches();
ZrBenchCases searchBenches();
