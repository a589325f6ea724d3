#include "ZrBenchReport.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cmath>

namespace {
const char *const ColumnFormat = "%-28s %-10s %12s %12s %12s  %-16s %-16s %s";

QByteArray number(double value)
{
    if (std::isnan(value))
        return "-";
    return QByteArray::number(value, 'f', value < 10 ? 3 : value < 1000 ? 1 : 0);
}

QByteArray comparison(double ours, double other, double bound, bool higherIsBetter)
{
    if (std::isnan(other))
        return "-";
    const QByteArray ratio = QByteArray::number(ours / other, 'f', 3);
    if (std::isnan(bound))
        return ratio;
    return ratio + (higherIsBetter ? " (>= " : " (<= ") + QByteArray::number(bound) + ")";
}

QJsonValue jsonNumber(double value)
{
    return std::isnan(value) ? QJsonValue() : QJsonValue(value);
}

QJsonValue jsonText(const QString &text, double value)
{
    return std::isnan(value) ? QJsonValue() : QJsonValue(text);
}
} // namespace

QString ZrBenchReport::head()
{
    return QString::asprintf(ColumnFormat, "name", "unit", "ours", "peer", "limit", "ours/peer", "ours/limit",
                             "");
}

QString ZrBenchReport::line(const ZrBenchResult &result)
{
    const ZrBenchRow &row = result.row;
    const QByteArray toPeer = comparison(result.ours, result.peer, row.peerReach, row.higherIsBetter);
    const QByteArray toLimit = comparison(result.ours, result.limit, row.limitReach, row.higherIsBetter);
    const bool reached = result.reachesPeer() && result.reachesLimit();
    return QString::asprintf(ColumnFormat, qPrintable(row.name), qPrintable(row.unit),
                             number(result.ours).constData(), number(result.peer).constData(),
                             number(result.limit).constData(), toPeer.constData(), toLimit.constData(),
                             reached ? "ok" : "MISS");
}

QByteArray ZrBenchReport::json(const QVector<ZrBenchResult> &results)
{
    QJsonArray array;
    for (const ZrBenchResult &result : results) {
        array.append(
            QJsonObject{{QStringLiteral("name"), result.row.name},
                        {QStringLiteral("unit"), result.row.unit},
                        {QStringLiteral("ours"), jsonNumber(result.ours)},
                        {QStringLiteral("peer"), jsonNumber(result.peer)},
                        {QStringLiteral("peer_name"), jsonText(result.row.peerName, result.peer)},
                        {QStringLiteral("limit"), jsonNumber(result.limit)},
                        {QStringLiteral("limit_name"), jsonText(result.row.limitName, result.limit)}});
    }
    return QJsonDocument(array).toJson();
}
