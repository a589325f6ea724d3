#pragma once

#include "ZrReferenceHost.h"

#include "zrbase/IMessageInterface.h"
#include "zrdefine/VexlorFields.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

#include <QtCore/QAtomicInt>
#include <QtCore/QMutex>
#include <QtCore/QStringList>
#include <QtCore/QThread>
#include <QtCore/QVariantMap>
#include <QtCore/QVector>

#include <functional>
#include <memory>

/// What one receiver call brought.
struct Heard
{
    QChar receiver; // M, E or Q
    QString pid;
    QString type;
    QVariantMap first; // record
    QThread *thread = nullptr;

    int number() const { return first.value(QStringLiteral("n")).toInt(); }
};

/// An endpoint that notes what it hears.
class Listener : public IMessageInterface
{
public:
    explicit Listener(const QString &pid, ThreadType type = SharedThread)
        : IMessageInterface(nullptr)
        , pid(pid)
    {
        Reg(pid, this, type);
    }
    ~Listener() override { UnReg(pid); }

    void ProcMsg(QString from, QVariant type, QVariant msg) override
    {
        note(QLatin1Char('M'), from, type, msg);
    }
    void ProcEventMsg(QString from, QVariant type, QVariant msg) override
    {
        note(QLatin1Char('E'), from, type, msg);
    }
    void ProcQuotationMsg(QString from, QVariant type, QVariant msg) override
    {
        note(QLatin1Char('Q'), from, type, msg);
    }

    void subscribe(const QString &type) { Sub(pid, type, 1); }
    void unsubscribe(const QString &type) { Sub(pid, type, 2); }

    QVector<Heard> heard() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_heard;
    }
    QVector<int> numbers() const
    {
        QVector<int> result;
        for (const Heard &one : heard())
            result.append(one.number());
        return result;
    }

    const QString pid;
    std::function<void(const Heard &)> onHeard; // set before anything is sent

private:
    void note(QChar receiver, const QString &from, const QVariant &type, const QVariant &msg)
    {
        CUnPackMessageCommon reader;
        reader.SetUnPackMsg(msg, false);
        const Heard one{receiver, from, type.toString(), reader.GetAllValue().value(0),
                        QThread::currentThread()};
        {
            const QMutexLocker locker(&m_mutex);
            m_heard.append(one);
        }
        if (onHeard)
            onHeard(one);
    }

    mutable QMutex m_mutex;
    QVector<Heard> m_heard;
};

/// Messages and events that are counted while they live.
class CountedMessage : public CMessageCommon
{
public:
    CountedMessage() { living.ref(); }
    ~CountedMessage() override { living.deref(); }
    static QAtomicInt living;
};

class CountedEvent : public CEventMessageCommon
{
public:
    CountedEvent() { living.ref(); }
    ~CountedEvent() override { living.deref(); }
    static QAtomicInt living;
};

inline QAtomicInt CountedMessage::living;
inline QAtomicInt CountedEvent::living;

inline QVariantMap numbered(int n)
{
    return QVariantMap{{QStringLiteral("n"), n}};
}

/// A request of one record with a number.
inline CMessageCommon *requestOf(const QString &type, int n)
{
    QVariantMap record = numbered(n);
    record.insert(Vexlor_Fields::System::msgType, type);
    record.insert(Vexlor_Fields::System::clientMsgID, QString::number(n));
    auto *const message = new CountedMessage;
    message->SetMsg(QVariantList{record});
    return message;
}

inline CEventMessageCommon *eventOf(const QString &source, int type, int n)
{
    auto *const event = new CountedEvent;
    event->SetSrcid(source);
    event->SetType(type);
    event->SetMsg(numbered(n));
    return event;
}

/// Answers each request with its own records, under another type.
inline ZrReferenceHost::Service echoService(const QString &answerType)
{
    return [answerType](const ZrReferenceHost::Request &request) {
        return QList<ZrReferenceHost::Answer>{
            {answerType, {numbered(request.records.constFirst().value(QStringLiteral("n")).toInt())}}};
    };
}

constexpr int longMs = 60000;
