#include "zrmsg/CUnPackMessageCommon.h"

class CUnPackMessageCommon::Private
{
public:
    QList<QMap<QString, QVariant>> records;
};

CUnPackMessageCommon::CUnPackMessageCommon()
    : d(new Private)
{
}

CUnPackMessageCommon::~CUnPackMessageCommon()
{
    delete d;
}

void CUnPackMessageCommon::SetUnPackMsg(const QVariant &body, bool compressed)
{
    Q_UNUSED(compressed)
    d->records.clear();
    if (body.userType() == QMetaType::QVariantMap) {
        d->records.append(body.toMap());
        return;
    }
    if (body.userType() != QMetaType::QVariantList)
        return;
    const QVariantList list = body.toList();
    d->records.reserve(list.size());
    for (const QVariant &record : list) {
        // What is no record carries no field: it would only shift the first record of a reader.
        if (record.userType() == QMetaType::QVariantMap)
            d->records.append(record.toMap());
    }
}

QVariant CUnPackMessageCommon::GetValue(QString field, QVariant defaultValue) const
{
    return d->records.isEmpty() ? defaultValue : d->records.constFirst().value(field, defaultValue);
}

QList<QMap<QString, QVariant>> CUnPackMessageCommon::GetAllValue() const
{
    return d->records;
}
