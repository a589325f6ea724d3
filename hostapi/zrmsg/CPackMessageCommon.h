#pragma once

#include "zrmsg/zrmsg_global.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

/// Writer of a message body of one record.
///
/// Threads: any; one object on one thread at a time.
class ZRMSG_EXPORT CPackMessageCommon
{
public:
    CPackMessageCommon();
    ~CPackMessageCommon();

    /// Adds a field, or replaces it. The result is the number of fields; callers ignore it.
    int AddVaule(QString field, QVariant value);
    /// The finished body, as SetUnPackMsg and the SetMsg of messages and events take it. Callers
    /// here always pass false for `compressed`.
    const QVariant GetPackedMsg(bool compressed) const;

private:
    Q_DISABLE_COPY(CPackMessageCommon)
    class Private;
    Private *d;
};
