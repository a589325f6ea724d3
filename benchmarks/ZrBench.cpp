#include "ZrBench.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include <time.h>

namespace {
// Whether ours / other keeps the bound; a side or a bound that isn't there asks for nothing.
bool keepsBound(double ours, double other, double bound, bool higherIsBetter)
{
    if (std::isnan(other) || std::isnan(bound))
        return true;
    const double ratio = ours / other;
    return higherIsBetter ? ratio >= bound : ratio <= bound;
}
} // namespace

bool ZrBenchResult::reachesPeer() const
{
    return keepsBound(ours, peer, row.peerReach, row.higherIsBetter);
}

bool ZrBenchResult::reachesLimit() const
{
    return keepsBound(ours, limit, row.limitReach, row.higherIsBetter);
}

double medianOf(QVector<double> values)
{
    if (values.isEmpty())
        return ZrBenchRow::None;
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    return values.size() % 2 == 1 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

double threadSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

double secondsOf(const std::function<void()> &work)
{
    const double start = threadSeconds();
    work();
    return threadSeconds() - start;
}

double wallSecondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

ZrBenchResult runBench(const ZrBenchCase &benchCase, int repetitions, const QString &side)
{
    const ZrBenchSides sides = benchCase.make();
    QVector<double> ours;
    QVector<double> peer;
    QVector<double> limit;
    const auto measure = [&side](const char *name, const std::function<double()> &work,
                                 QVector<double> &values) {
        if (work && (side.isEmpty() || side == QLatin1String(name)))
            values.append(work());
    };
    for (int i = 0; i < repetitions; ++i) {
        measure("ours", sides.ours, ours);
        measure("peer", sides.peer, peer);
        measure("limit", sides.limit, limit);
    }
    ZrBenchResult result;
    result.row = benchCase.row;
    result.ours = medianOf(ours);
    result.peer = medianOf(peer);
    result.limit = medianOf(limit);
    return result;
}
