#pragma once

#include "zrmsg/zrmsg_global.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

/// A message on its way through the bus: a body and the sender's ID. Its type, client message ID
/// and the like are fields of the body's first record.
///
/// Ownership: Put takes a message over; its caller neither reads nor frees it afterwards.
/// Threads:   one thread at a time.
/// Errors:    none; an unset body is an invalid variant.
class ZRMSG_EXPORT CMessageCommon
{
public:
    CMessageCommon();
    virtual ~CMessageCommon();

    /// The body: packed, or a QVariantList of records.
    QVariant GetMsg() const;
    void SetMsg(QVariant body);
    /// The sender's plugin ID.
    QString GetSrcid() const;
    void SetSrcid(QString pluginID);

private:
    Q_DISABLE_COPY(CMessageCommon)
    class Private;
    Private *d;
};
