#include "ZrBusCounters.h"

void ZrBusCounters::add(const QString &typeKey, qint64 ZrBusCount::*field, qint64 n)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_total.*field += n;
    m_byType[typeKey].*field += n;
}

ZrBusCount ZrBusCounters::total() const
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_total;
}

QHash<QString, ZrBusCount> ZrBusCounters::byType() const
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    return m_byType;
}

void ZrBusCounters::clear()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_total = ZrBusCount();
    m_byType.clear();
}
