#pragma once

#include "zrwidget_global.h"

#include "zrbase/IMessageInterface.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

class CEventMessageCommon;
class CMessageCommon;
class ZrPresenterClassPrivate;

/// A plugin's connection to the client's message bus. Plugins derive from it and override what they care
/// about.
///
/// Shape:     one endpoint on the bus under the plugin's instance ID. A request is fire and forget (Put),
///            asynchronous with a callback, synchronous in a nested event loop, or synchronous on a blocked
///            thread. Incoming messages are sorted by the client message ID of the request that caused them;
///            two open requests of one ID disturb each other.
/// Units:     request timeout in s, counted in whole ticks of a one-second clock; a blocked request's in ms.
/// Ownership: no parent. Made with new, ended by deleteLater() and by nothing else: messages may be under way
/// on
///            other threads. A message or event that was sent belongs to the bus; one that was refused
///            (result below 0, or dropped by Put) stays its caller's, an event that was dropped is deleted.
/// Threads:   with bit 0 of the thread type set the object lives on a thread of its own, which runs
/// initPresenter,
///            the clock and the timeout callbacks. The other receivers run on the bus's threads. All
///            operations but Sub may be called from any thread; Sub belongs to one.
/// Errors:    requests report ZrRequestResult codes: 0 success, 1 timeout, 2 rejected, 3 "Client_88", -1 no
///            message, -2 no records, -3 the presenter is being destroyed.
class ZRWIDGET_EXPORT ZrPresenterClass : public QObject
{
    Q_OBJECT
public:
    /// Without bit 0 of `type` there is no thread and no clock: initPresenter isn't called and nothing times
    /// out.
    ZrPresenterClass(const QString &pluginPid, QObject *plugin, IMessageInterface::ThreadType type);
    ~ZrPresenterClass() override;

    /// A message that answers no open request, or an answer that SubResponse let through.
    virtual void ProcMsg(QString pid, QVariant msgType, QVariant msg);
    virtual void ProcEventMsg(QString pid, QVariant msgType, QVariant msg);
    virtual void ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg);
    /// The end of an asynchronous request. `msgType` is the answer's for code 0 and the request's for all
    /// others. Called on the presenter's thread for a timeout, on a bus thread for an answer.
    virtual void ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg);
    /// Called once on the presenter's own thread, before its clock starts.
    virtual void initPresenter();

    /// Sends a message that nobody waits for; one without records is dropped.
    void Put(QString pid, CMessageCommon *msg);
    void PutEvent(QString pid, CEventMessageCommon *evt);
    /// Subscribes (`type` 1) or unsubscribes (2) a message type, each once however often it is asked.
    void Sub(QString pid, QVariant msgType, int type);
    void SubEvent(QString pid, QVariant msgType, int type);
    /// As Sub, for a type of which only answers to this presenter's own Put shall come in.
    void SubResponse(QString pid, QVariant msgType, int type);
    void setRelation(const QString &menuID, const QString &pluginInstanceID, int linkageType,
                     RelationColor_t group, int action);

    /// Waits in a nested event loop: user input and timers go on, so the caller may be entered again
    /// meanwhile. Interrupted by deleteLater() it gives 0 with an invalid response.
    int sendRequest_Sync(CMessageCommon *msg, QVariant &response);
    /// Blocks the calling thread, which must not be the one on which answers come in. Without a time the
    /// presenter's own holds. An answer that comes before the wait has begun is lost and the request times
    /// out.
    int sendRequest_Sync_Block(CMessageCommon *msg, QVariant &response, unsigned long timeoutMs);
    /// Returns at once; 0 tells that the request has left. The answers come through ProcAsyncCallBack.
    int sendRequest_Async(CMessageCommon *msg);
    /// The same for a message that is neither read nor changed; its ID and type are given here.
    int sendRequestNotCare_Async(const QString &clientMsgID, const QString &msgType, CMessageCommon *msg);

    /// Stamps the first record with the system node of the first account that the records name.
    void addSysNodeID(QList<QMap<QString, QVariant>> &records);
    QString pluginPid() const;
    int getRequestTimeOut() const;
    /// No bounds: 0 and below let every request expire at the next tick.
    void setRequestTimeOut(int seconds);

    ZrPresenterClassPrivate *getPrivate() const { return d; }

public slots:
    /// Hides QObject::deleteLater on purpose: tells the bus, ends every waiting request, and goes once the
    /// last call in progress has returned. From any thread, at any moment, also from within a call.
    void deleteLater();

signals:
    void signalDataLoadFinished();
    void signalDataLoading();
    void signalDataLoadTimeout();
    /// From here on nothing is sent any more. Emitted on the thread that called deleteLater().
    void signalDestroying(ZrPresenterClass *presenter);

private slots:
    void slotTimerOut();

private:
    Q_DISABLE_COPY(ZrPresenterClass)
    friend class ZrPresenterClassPrivate;
    ZrPresenterClassPrivate *d; // goes by its own deleteLater: it lives on its creator's thread
};
