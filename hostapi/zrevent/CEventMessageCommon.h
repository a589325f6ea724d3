#pragma once

#include "zrevent/zrevent_global.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

/// An event on its way through the bus.
///
/// Ownership: made with new; PutEvent takes it over, its caller never frees it.
/// Threads:   one thread at a time.
class ZREVENT_EXPORT CEventMessageCommon
{
public:
    CEventMessageCommon();
    virtual ~CEventMessageCommon();

    QString GetSrcid() const;
    void SetSrcid(QString pluginID);
    /// The event's integer type.
    QVariant GetType() const;
    void SetType(QVariant type);
    QVariant GetMsg() const;
    void SetMsg(QVariant body);

private:
    Q_DISABLE_COPY(CEventMessageCommon)
    class Private;
    Private *d;
};
