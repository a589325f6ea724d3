#pragma once

#include "zrmsg/zrmsg_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Reader of a message body.
///
/// Shape:   a body is a list of records; a record maps field names to values.
/// Threads: any; one object on one thread at a time.
/// Errors:  a body that can't be read counts as empty.
class ZRMSG_EXPORT CUnPackMessageCommon
{
public:
    CUnPackMessageCommon();
    ~CUnPackMessageCommon();

    /// Loads a body: a packed one, a QVariantList of records, or a single record. Callers here
    /// always pass false for `compressed`.
    void SetUnPackMsg(const QVariant &body, bool compressed);
    /// The field's value in the first record, or the default.
    QVariant GetValue(QString field, QVariant defaultValue) const;
    /// All records; empty for an empty message.
    QList<QMap<QString, QVariant>> GetAllValue() const;

private:
    Q_DISABLE_COPY(CUnPackMessageCommon)
    class Private;
    Private *d;
};
