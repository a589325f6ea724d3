#pragma once

#include "ZrFeedDescription.h"

class ZrCsvLine;

/// Where the columns of one file stand, once its head line is known.
///
/// Shape:  numbers from 0; -1 for a column that the description does not name.
/// Errors: resolve() gives one sentence about the first column that the file does not have; a level
///         column that is missing counts as empty, since venues show fewer levels than a file may hold,
///         but the first one must be there.
class ZrFeedColumns
{
public:
    /// `names` are those of the head line or of the description; empty when neither has any.
    QString resolve(const ZrFeedFile &file, const QStringList &names);

    int time = -1;
    int sequence = -1;
    int security = -1;
    int exchange = -1;
    int side = -1;
    int kind = -1;
    int order = -1;
    int newOrder = -1;
    int buyOrder = -1;
    int sellOrder = -1;
    int price = -1;
    int quantity = -1;
    int phase = -1;
    int previousClose = -1;
    int last = -1;
    QVector<int> askPrices;
    QVector<int> askQuantities;
    QVector<int> bidPrices;
    QVector<int> bidQuantities;

private:
    int find(const ZrFeedColumn &column);
    QVector<int> findLevels(const ZrFeedPattern &pattern, int from, int to);

    QStringList m_names;
    QString m_error;
};
