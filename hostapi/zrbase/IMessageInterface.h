#pragma once

#include "zrbase/zrbase_global.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

class CEventMessageCommon;
class CMessageCommon;

/// Index of a linkage group's colour: 0 to 4.
enum RelationColor_t {
    RelationColorFirst = 0,
    RelationColorSecond = 1,
    RelationColorThird = 2,
    RelationColorFourth = 3,
    RelationColorFifth = 4
};

/// Endpoint of one participant on the client's message bus.
///
/// `pid` is the participant's ID: for a plugin its instance ID. `msgType` is a message or event
/// type, `type` 1 subscribes and 2 unsubscribes.
/// `pid` in the receivers is who sent it: for an answer the ID that asked, empty for what the back end sent
/// unasked.
/// Ownership: Put and PutEvent take what they are given; the bus never owns an endpoint. Its destruction ends
/// its
///            registrations. deleteLater() is put off while a receiver runs on another thread; deleting an
///            endpoint at once is only for when no call can be running.
/// Threads:   Put and PutEvent from any thread; the receivers run on a thread that the bus chooses
///            by ThreadType, in order for one endpoint; all else on one thread at a time.
/// Errors:    messages to nobody are dropped.
class ZRBASE_EXPORT IMessageInterface : public QObject
{
    Q_OBJECT
public:
    /// How an endpoint works. Bit 0: the participant keeps a thread of its own for its clock. Bit 1:
    /// the bus calls the receivers on a thread made for this endpoint instead of the shared one.
    enum ThreadType {
        SharedThread = 0,
        PresenterThread = 1,
        ReceiverThread = 2,
        PresenterAndReceiverThread = 3
    };

    explicit IMessageInterface(QObject *parent);
    ~IMessageInterface() override;

    /// Receives a message: `msg` is its body.
    virtual void ProcMsg(QString pid, QVariant msgType, QVariant msg);
    /// Receives an event.
    virtual void ProcEventMsg(QString pid, QVariant msgType, QVariant msg);
    /// Receives market data.
    virtual void ProcQuotationMsg(QString pid, QVariant msgType, QVariant msg);

    /// Registers the endpoint; the receivers are called from then on. A null endpoint or an empty
    /// ID is ignored; a second registration under one ID takes the first one's place.
    void Reg(QString pid, IMessageInterface *endpoint, IMessageInterface::ThreadType type);
    /// Ends the registration: no call of a receiver begins afterwards. One that is running goes on and isn't
    /// waited for, since it may itself be waiting for the caller. An unknown ID is ignored.
    void UnReg(QString pid);
    /// Sends a message and returns at once; an answer comes through ProcMsg. Null is ignored.
    void Put(QString pid, CMessageCommon *msg);
    /// Sends an event and returns at once. Null is ignored.
    void PutEvent(QString pid, CEventMessageCommon *evt);
    void Sub(QString pid, QVariant msgType, int type);
    void SubEvent(QString pid, QVariant msgType, int type);
    /// Links (`action` 1) or unlinks (2) a plugin with one linkage group of one menu: the bus relays
    /// linkage data among the plugins of one group and type.
    void setRelation(const QString &menuID, const QString &pluginInstanceID, int linkageType,
                     RelationColor_t group, int action);

protected:
    bool event(QEvent *event) override;

private:
    Q_DISABLE_COPY(IMessageInterface)
    class Private;
    Private *d;
};
