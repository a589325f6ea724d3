#include "zrmsg/CPackMessageCommon.h"

#include <QtCore/QVariantMap>

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

int CPackMessageCommon::AddVaule(QString field, QVariant value)
{
    d->record.insert(field, value);
    return d->record.size();
}

const QVariant CPackMessageCommon::GetPackedMsg(bool compressed) const
{
    Q_UNUSED(compressed)
    return QVariantList{d->record};
}
