#pragma once

#include "zrbase/zrbase_global.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <mutex>

/// How many messages went where. Each field counts items, `delivered` counts receiver calls.
struct ZrBusCount
{
    qint64 put = 0;           // given to the bus by Put, PutEvent or a publish call
    qint64 answered = 0;      // answers that services gave
    qint64 delivered = 0;     // receiver calls that returned
    qint64 dropped = 0;       // lost by a fault
    qint64 undeliverable = 0; // nobody to give it to, or gone before its turn
};

/// The bus's book of traffic, in all and by type.
///
/// Threads: any.
class ZRBASE_EXPORT ZrBusCounters
{
public:
    void add(const QString &typeKey, qint64 ZrBusCount::*field, qint64 n = 1);
    ZrBusCount total() const;
    QHash<QString, ZrBusCount> byType() const;
    void clear();

private:
    mutable std::mutex m_mutex;
    ZrBusCount m_total;
    QHash<QString, ZrBusCount> m_byType;
};
