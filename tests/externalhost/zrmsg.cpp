// Bodies of this host are plain variants; a reader knows only the list form.
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CPackMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

class CMessageCommon::Private
{
public:
    QVariant body;
    QString source;
};

CMessageCommon::CMessageCommon()
    : d(new Private)
{
}
CMessageCommon::~CMessageCommon()
{
    delete d;
}
QVariant CMessageCommon::GetMsg() const
{
    return d->body;
}
void CMessageCommon::SetMsg(QVariant body)
{
    d->body = body;
}
QString CMessageCommon::GetSrcid() const
{
    return d->source;
}
void CMessageCommon::SetSrcid(QString pluginID)
{
    d->source = pluginID;
}

class CUnPackMessageCommon::Private
{
public:
    QVariantList list;
};

CUnPackMessageCommon::CUnPackMessageCommon()
    : d(new Private)
{
}
CUnPackMessageCommon::~CUnPackMessageCommon()
{
    delete d;
}
void CUnPackMessageCommon::SetUnPackMsg(const QVariant &body, bool)
{
    d->list = body.toList();
}

QVariant CUnPackMessageCommon::GetValue(QString field, QVariant defaultValue) const
{
    return d->list.isEmpty() ? defaultValue : d->list.first().toMap().value(field, defaultValue);
}

QList<QMap<QString, QVariant>> CUnPackMessageCommon::GetAllValue() const
{
    QList<QMap<QString, QVariant>> records;
    for (const QVariant &record : qAsConst(d->list))
        records.append(record.toMap());
    return records;
}

class CPackMessageCommon::Private
{
public:
    QVariantMap record;
};

CPackMessageCommon::CPackMessageCommon()
    : d(new Private)
{
}
CPackMessageCommon::~CPackMessageCommon()
{
    delete d;
}
const QVariant CPackMessageCommon::GetPackedMsg(bool) const
{
    return QVariantList{d->record};
}

int CPackMessageCommon::AddVaule(QString field, QVariant value)
{
    d->record.insert(field, value);
    return 0;
}
