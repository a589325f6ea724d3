#include "zrbusinessdata/CBusinessDataBase.h"

using Record = QMap<QString, QVariant>;

CBusinessDataBase::CBusinessDataBase()
    : d(nullptr)
{
}
CBusinessDataBase::~CBusinessDataBase()
{
    Q_UNUSED(d)
}
QString CBusinessDataBase::GetSysNodeIDByAccount(const Record &) const
{
    return QString();
}
QString CBusinessDataBase::GetLoginAccountType() const
{
    return QString();
}
Record CBusinessDataBase::GetAccountDetailsByTradinngAccount(const QString &) const
{
    return {};
}
Record CBusinessDataBase::GetAccountDetailsByProductAccount(const QString &) const
{
    return {};
}
Record CBusinessDataBase::GetAccountDetailsByInvestAccount(const QString &) const
{
    return {};
}
Record CBusinessDataBase::GetAccountDetailsByAssertAccount(const QString &) const
{
    return {};
}
QStringList CBusinessDataBase::GetTradeAccountList(const QStringList &) const
{
    return {};
}
QString CBusinessDataBase::GetSecurityChineseName(const QString &, const QString &) const
{
    return QString();
}
Record CBusinessDataBase::GetSecurityDetailsBySymbol(const QString &) const
{
    return {};
}
QString CBusinessDataBase::GetSymbolPostBySymbol(const QString &) const
{
    return QString();
}
QString CBusinessDataBase::getSecurityIDBySymbol(const QString &, const QString &, const QString &) const
{
    return QString();
}

QStringList CBusinessDataBase::GetAllSymbolByType(const QString &, const QString &, const QString &, bool,
                                                  const QStringList &) const
{
    return {};
}

CBusinessDataBase *CBusinessDataBase::GetInstance()
{
    static CBusinessDataBase database;
    return &database;
}
