#include "ZrRunReport.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>

#include <sys/resource.h>
#include <unistd.h>

namespace {
QJsonObject timesOf(const ZrLatencyMeter &meter)
{
    return {{QStringLiteral("p50"), meter.percentileUs(0.5)},
            {QStringLiteral("p99"), meter.percentileUs(0.99)},
            {QStringLiteral("max"), meter.maxUs()}};
}

QJsonArray runsOf(const QVector<ZrPluginRun> &plugins)
{
    QJsonArray runs;
    for (const ZrPluginRun &plugin : plugins)
        runs.append(QJsonObject{{QStringLiteral("id"), plugin.id},
                                {QStringLiteral("instance"), plugin.instance},
                                {QStringLiteral("rows"), plugin.rows}});
    return runs;
}

double secondsOf(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}
} // namespace

double ZrRunReport::cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}

double ZrRunReport::residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

QByteArray ZrRunReport::toJson() const
{
    const QJsonObject report = {{QStringLiteral("seconds"), seconds},
                                {QStringLiteral("messages_in"), messagesIn},
                                {QStringLiteral("messages_lost"), messagesLost},
                                {QStringLiteral("rows"), rows},
                                {QStringLiteral("updates_applied"), updatesApplied},
                                {QStringLiteral("frames"), frames},
                                {QStringLiteral("lines_skipped"), linesSkipped},
                                {QStringLiteral("plugins"), runsOf(plugins)},
                                {QStringLiteral("feed_to_model_us"), timesOf(feedToModel)},
                                {QStringLiteral("feed_to_pixel_us"), timesOf(feedToPixel)},
                                {QStringLiteral("cpu_seconds"), cpuSeconds()},
                                {QStringLiteral("rss_mb"), residentMegabytes()}};
    return QJsonDocument(report).toJson();
}

QString ZrRunReport::write(const QString &path) const
{
    QSaveFile file(path);
    const QByteArray text = toJson();
    const bool good = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
    return good ? QString() : QStringLiteral("the report %1 cannot be written.").arg(path);
}
