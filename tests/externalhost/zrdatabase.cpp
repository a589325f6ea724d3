#include "zrdatabase/CDataBase.h"

CDataBase::CDataBase()
    : d(nullptr)
{
}
CDataBase::~CDataBase()
{
    Q_UNUSED(d)
}
QString CDataBase::GetStaticCfgValue(const QString &, const QString &) const
{
    return QString();
}
QMap<QString, QString> CDataBase::GetStaticValuesBySection(const QString &) const
{
    return {};
}

CDataBase *CDataBase::GetInstance()
{
    static CDataBase database;
    return &database;
}
