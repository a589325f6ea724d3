#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QString>

class QDebug;

/// One level of an order book, as the ladder shows and reports it.
///
/// Shape:   a plain value; it travels in queued signals once a ladder has been made, which registers it.
/// Units:   price and quantity as their venue counts them.
/// Threads: any.
struct ZrSecurityAskBidData
{
    int side = 0;       // 0 buyers, 1 sellers; -1 for the latest price, which belongs to neither
    int level = 0;      // 1 to 10, counted from the best price
    QString price;      // "—" where there is none
    int volume = 0;     // quantity at the level
    int spare = 0;      // the caller's own; carried along and read by nothing here
    QString volumeText; // quantity of the latest price, as it is shown
};

ZRWIDGET_EXPORT bool operator==(const ZrSecurityAskBidData &one, const ZrSecurityAskBidData &other);
ZRWIDGET_EXPORT bool operator!=(const ZrSecurityAskBidData &one, const ZrSecurityAskBidData &other);
ZRWIDGET_EXPORT QDebug operator<<(QDebug debug, const ZrSecurityAskBidData &data);
Q_DECLARE_METATYPE(ZrSecurityAskBidData)

/// Levels by their row in a book of twenty, from the top: 0 is the tenth of the sellers, 9 their best, 10 the
/// best of the buyers, 19 their tenth.
using ZrAskBidLevels = QMap<int, ZrSecurityAskBidData>;
