#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

class CMessageCommon;

/// Results of a request, as sendRequest_* return them and ProcAsyncCallBack gets them.
enum ZrRequestResult {
    ZrRequestSuccess = 0,
    ZrRequestTimeout = 1,
    ZrRequestRejected = 2,
    ZrRequestClient88 = 3,
    ZrRequestNoMessage = -1,
    ZrRequestNoRecords = -2,
    ZrRequestDestroying = -3
};

/// What a presenter reads from an outgoing message and writes back into it.
///
/// Ownership: the message is borrowed for the time of a call.
/// Threads:   any; one object on one thread.
/// Errors:    a body that can't be read has no records.
class ZRWIDGET_PRIVATE_EXPORT ZrRequestMessage
{
public:
    using Record = QMap<QString, QVariant>;

    explicit ZrRequestMessage(const CMessageCommon &msg);

    QString clientMsgID;
    QString msgType;
    QList<Record> records;

    bool isEmpty() const { return records.isEmpty(); }
    /// Tells the back end how the sender waits. Needs a record.
    void setRequestType(const QString &requestType);
    /// Stamps the system node and replaces the message's body by the records.
    void finish(CMessageCommon *msg);

    /// Writes the system node that serves the first account found into the first record, unless it names one.
    /// The node goes there even when the account stands in a later record: the bus routes by the first one.
    static void addSysNodeID(QList<Record> &list);
    /// The body that stands in for an answer which did not come; readable like an answer.
    static QVariant timeoutBody(const QString &clientMsgID);
};
