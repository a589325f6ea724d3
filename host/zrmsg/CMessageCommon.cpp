#include "zrmsg/CMessageCommon.h"

class CMessageCommon::Private
{
public:
    QVariant body;
    QString sourceId;
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
    return d->sourceId;
}

void CMessageCommon::SetSrcid(QString pluginID)
{
    d->sourceId = pluginID;
}
