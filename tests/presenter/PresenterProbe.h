#pragma once

#include "zrbase/ZrBus.h"
#include "ZrPresenterClass.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>

#include <functional>

class QThread;

/// What a receiver got, and on which thread.
struct ProbeCall
{
    QString receiver;
    int code = 0;
    QString pid;
    QVariant type;
    QVariant body;
    QThread *thread = nullptr;
    /// Field of the body's first record.
    QVariant value(const QString &field) const;
};

/// A presenter that keeps what its receivers get. The hooks run within the receiver; set them before traffic.
class PresenterProbe : public ZrPresenterClass
{
public:
    PresenterProbe(const QString &pid, IMessageInterface::ThreadType type, QObject *plugin = nullptr);
    ~PresenterProbe() override;

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcEventMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg) override;
    void initPresenter() override;

    /// Calls of one receiver, or of all.
    QList<ProbeCall> calls(const QString &receiver = QString()) const;
    std::function<void(const ProbeCall &)> hook;

private:
    void keep(const ProbeCall &call);
    mutable QMutex m_mutex;
    QList<ProbeCall> m_calls;
};

/// A participant that listens to one event type.
class EventProbe : public IMessageInterface
{
public:
    EventProbe(const QString &pid, int eventType);
    ~EventProbe() override;
    void ProcEventMsg(QString pid, QVariant msgType, QVariant msg) override;
    QList<ProbeCall> calls() const;

private:
    const QString m_pid;
    mutable QMutex m_mutex;
    QList<ProbeCall> m_calls;
};

/// What a service of the bus was asked, and the bus itself for the time of a test.
class BusBench
{
public:
    using Answers = QList<ZrBusAnswer>;

    BusBench();
    ~BusBench();
    /// Keeps each request of the type and gives these answers to it.
    void answer(const QString &msgType, std::function<Answers(const ZrBusRequest &)> service);
    QList<ZrBusRequest> requests() const;

private:
    mutable QMutex m_mutex;
    QList<ZrBusRequest> m_requests;
};

/// Takes all log lines while it lives, so that a test can hold them against what is promised. One at a time.
class LogCatcher
{
public:
    LogCatcher();
    ~LogCatcher();
    /// Lines of a kind, in order, with runs of blanks as they stand.
    QStringList lines(QtMsgType type) const;

private:
    Q_DISABLE_COPY(LogCatcher)
    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &text);
    QtMessageHandler m_before;
};

namespace Probe {
QVariantMap record(const QString &type, const QString &id, const QVariantMap &more = QVariantMap());
CMessageCommon *message(const QString &type, const QString &id, const QVariantMap &more = QVariantMap());
/// Answer of a type to a request, as one record.
ZrBusAnswer reply(const ZrBusRequest &request, const QString &type, const QVariantMap &more = QVariantMap());
QVariant body(const QString &id, const QVariantMap &more = QVariantMap());
/// To the subscribers of the type, as the back end would; has arrived when this returns.
void publish(ZrBusKind kind, const QVariant &type, const QVariant &body);
/// One tick of the presenter's clock, on its own thread, done when this returns.
void tick(ZrPresenterClass *presenter);
/// Asks the presenter to go and waits for it, its private part and its thread.
bool isGoneAfterDeleteLater(ZrPresenterClass *presenter);
/// The same for a presenter that somebody else has asked.
class Vanishing
{
public:
    explicit Vanishing(ZrPresenterClass *presenter);
    bool isDone() const;
    bool wait() const;

private:
    QPointer<QObject> m_presenter;
    QPointer<QObject> m_private;
    QPointer<QObject> m_thread;
};
} // namespace Probe
