#pragma once

#include "ZrBench.h"

#include <QtCore/QByteArray>

/// The measured rows as text and as JSON.
class ZrBenchReport
{
public:
    static QString head();
    /// One line of the table: values, ratios, what is required, and "ok" or "MISS".
    static QString line(const ZrBenchResult &result);
    /// An array of {"name", "unit", "ours", "peer", "peer_name", "limit", "limit_name"}; null where there is
    /// none.
    static QByteArray json(const QVector<ZrBenchResult> &results);
};
