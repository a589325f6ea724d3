#include "ZrFeedMonitor.h"

#include "ZrClientFields.h"

#include "zrdefine/VexlorMsgType.h"
#include "zrmsg/CUnPackMessageCommon.h"

namespace {
constexpr qint64 MostNumbers = Q_INT64_C(2000000000); // a quarter of a gigabyte of marks
constexpr int Subscribe = 1;
constexpr int Unsubscribe = 2;

QStringList messageTypes()
{
    return {ZrClientMsgType::order, Vexlor_MsgType::executionReport, ZrClientMsgType::trade,
            ZrClientMsgType::depth};
}
} // namespace

ZrFeedMonitor::ZrFeedMonitor(const QString &pluginPid)
    : ZrPresenterClass(pluginPid, nullptr, IMessageInterface::PresenterAndReceiverThread)
{
}

void ZrFeedMonitor::open()
{
    const QStringList types = messageTypes();
    for (const QString &type : types)
        Sub(pluginPid(), type, Subscribe);
}

void ZrFeedMonitor::detach()
{
    const QStringList types = messageTypes();
    for (const QString &type : types)
        Sub(pluginPid(), type, Unsubscribe);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_open = false;
    m_seen = nullptr;
}

void ZrFeedMonitor::setSeenCall(const SeenCall &seen)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_seen = seen;
}

void ZrFeedMonitor::count(qint64 number)
{
    ++m_received;
    if (number < 0 || number >= MostNumbers)
        return;
    if (size_t(number) >= m_numbers.size())
        m_numbers.resize(size_t(number) + size_t(number) / 2 + 1024);
    if (!m_numbers[size_t(number)])
        ++m_distinct;
    m_numbers[size_t(number)] = true;
}

void ZrFeedMonitor::ProcMsg(QString pid, QVariant msgType, QVariant msg)
{
    Q_UNUSED(pid)
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(msg, false);
    const QString type = msgType.toString();
    const bool isOrder = type == ZrClientMsgType::order || type == Vexlor_MsgType::executionReport;
    const QList<QVariantMap> records = reader.GetAllValue();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open)
        return;
    for (const QVariantMap &record : records) {
        const qint64 number = record.value(ZrClientFields::seqNo, -1).toLongLong();
        count(number);
        if (m_seen)
            m_seen(number, isOrder);
    }
}
