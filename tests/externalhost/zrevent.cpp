#include "zrevent/CEventMessageCommon.h"

class CEventMessageCommon::Private
{
public:
    QString source;
    QVariant type, body;
};

CEventMessageCommon::CEventMessageCommon()
    : d(new Private)
{
}
CEventMessageCommon::~CEventMessageCommon()
{
    delete d;
}
QString CEventMessageCommon::GetSrcid() const
{
    return d->source;
}
void CEventMessageCommon::SetSrcid(QString pluginID)
{
    d->source = pluginID;
}
QVariant CEventMessageCommon::GetType() const
{
    return d->type;
}
void CEventMessageCommon::SetType(QVariant type)
{
    d->type = type;
}
QVariant CEventMessageCommon::GetMsg() const
{
    return d->body;
}
void CEventMessageCommon::SetMsg(QVariant body)
{
    d->body = body;
}
