#include "ZrFaultRoad.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"

#include <QtCore/QVariantMap>

namespace {
QString streamKeyOf(const ZrBusItem &item)
{
    if (!item.asker.isEmpty())
        return QLatin1String("to ") + item.asker;
    return QString::number(static_cast<int>(item.kind)) + QLatin1Char(' ') + item.typeKey();
}

/// The back end's refusal in place of an answer: the request's own IDs stay, so that it finds its asker.
ZrBusItem refusalOf(const ZrBusItem &answer)
{
    QVariantMap record;
    const QVariantList records = answer.body.toList();
    const QVariantMap first = records.isEmpty() ? QVariantMap() : records.constFirst().toMap();
    for (const QString &field : {Vexlor_Fields::System::clientMsgID, Vexlor_Fields::System::traceID}) {
        if (first.contains(field))
            record.insert(field, first.value(field));
    }
    record.insert(Vexlor_Fields::System::msgType, Vexlor_MsgType::bussinessMsgReject);
    record.insert(Vexlor_Fields::System::hasFollowup, 0);
    record.insert(Vexlor_Fields::System::textDescription, QStringLiteral("rejected"));
    ZrBusItem refusal = answer;
    refusal.type = Vexlor_MsgType::bussinessMsgReject;
    refusal.body = QVariantList{record};
    return refusal;
}
} // namespace

ZrFaultRoad::ZrFaultRoad(Exits exits)
    : m_exits(std::move(exits))
{
}

void ZrFaultRoad::setSpec(const ZrFaultSpec &spec)
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_spec = spec;
    m_harmless = spec.isHarmless();
    for (auto it = m_streams.begin(); it != m_streams.end(); ++it)
        it.value()->dice = ZrFaultDice(spec.seed, it.key());
}

void ZrFaultRoad::send(const ZrBusItem &item)
{
    if (m_harmless) {
        m_exits.deliver(item);
        return;
    }
    const QString key = streamKeyOf(item);
    quint64 ticket = 0;
    ReadyList out;
    bool dropped = false;
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        const std::shared_ptr<Stream> stream = streamOf(key);
        const ZrFaultFate fate = stream->dice.roll(m_spec);
        dropped = fate.drop;
        if (!dropped)
            out = passThrough(item, fate, stream.get(), &ticket);
    }
    if (dropped)
        m_exits.dropped(item);
    leave(out);
    if (ticket != 0)
        m_exits.later(holdMs, [this, key, ticket] { release(key, ticket); });
}

void ZrFaultRoad::clear()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_streams.clear();
}

std::shared_ptr<ZrFaultRoad::Stream> ZrFaultRoad::streamOf(const QString &key)
{
    std::shared_ptr<Stream> &stream = m_streams[key];
    if (!stream)
        stream = std::make_shared<Stream>(ZrFaultDice(m_spec.seed, key));
    return stream;
}

ZrFaultRoad::ReadyList ZrFaultRoad::passThrough(const ZrBusItem &item, const ZrFaultFate &fate,
                                                Stream *stream, quint64 *ticket)
{
    const bool isAnswer = !item.asker.isEmpty();
    const ReadyList passed(fate.duplicate ? 2 : 1,
                           Ready{fate.reject && isAnswer ? refusalOf(item) : item, fate.delayMs});
    if (fate.reorder && stream->overtaken.items.empty()) {
        stream->overtaken = Hold{passed, ++m_lastTicket};
        *ticket = m_lastTicket;
        return ReadyList();
    }
    ReadyList out = passed;
    out.insert(out.end(), stream->overtaken.items.begin(), stream->overtaken.items.end());
    stream->overtaken = Hold();
    if (m_spec.burst <= 1)
        return out;
    Hold &gathering = stream->gathering;
    if (gathering.items.empty()) {
        gathering.ticket = ++m_lastTicket;
        *ticket = m_lastTicket;
    }
    gathering.items.insert(gathering.items.end(), out.begin(), out.end());
    if (gathering.items.size() < static_cast<size_t>(m_spec.burst))
        return ReadyList();
    out.swap(gathering.items);
    gathering = Hold();
    *ticket = 0;
    return out;
}

void ZrFaultRoad::release(const QString &key, quint64 ticket)
{
    ReadyList out;
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        const std::shared_ptr<Stream> stream = m_streams.value(key);
        if (!stream)
            return;
        for (Hold *hold : {&stream->overtaken, &stream->gathering}) {
            if (hold->ticket == ticket) {
                out = hold->items;
                *hold = Hold();
            }
        }
    }
    leave(out);
}

void ZrFaultRoad::leave(const ReadyList &out)
{
    for (const Ready &ready : out) {
        if (ready.delayMs <= 0)
            m_exits.deliver(ready.item);
        else
            m_exits.later(ready.delayMs, [this, item = ready.item] { m_exits.deliver(item); });
    }
}
