#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

class ZrPresenterClassPrivate;

/// One message on its way in: sorted by the request that caused it, then handed to whoever waits for it.
///
/// Shape:     classification and action are two sections of the presenter's mutex. A request that the clock
/// or its
///            own call ended between them is left alone, and the message goes where it would have gone had it
///            come a moment later.
/// Ownership: borrows the presenter, which a call in progress keeps alive.
/// Threads:   the bus thread that brings the message.
/// Errors:    a body that can't be read has no client message ID.
class ZRWIDGET_PRIVATE_EXPORT ZrIncomingMessage
{
public:
    ZrIncomingMessage(ZrPresenterClassPrivate *d, const QString &pid, const QVariant &msgType,
                      const QVariant &msg);

    void process();

private:
    Q_DISABLE_COPY(ZrIncomingMessage)
    enum class Kind { Subscribed, Sync, Async, LateAsync, Block, Plain };

    bool isRejection() const;
    bool isLogged() const;
    void classify();
    bool answer();
    bool answerSync();
    bool answerAsync();
    bool answerLateAsync();
    bool answerBlock();
    void callBack(QString *type);
    void deliver();

    ZrPresenterClassPrivate *const d;
    const QString m_pid;
    const QVariant m_msgType;
    const QVariant m_msg;
    const QString m_typeText;
    QString m_clientMsgID;
    QString m_traceID;
    bool m_isLast = true; // no further message follows for this ID
    bool m_isOwn = false; // answers a Put of this presenter; known for class Subscribed only
    Kind m_kind = Kind::Plain;
};
