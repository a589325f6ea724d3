#include "zrdatabase/CDataBase.h"

#include "zrdatabase/ZrDataStore.h"

// No state: everything stands in the store's snapshot.
class CDataBase::Private
{
};

CDataBase::CDataBase()
    : d(nullptr)
{
}

CDataBase::~CDataBase()
{
    delete d;
}

CDataBase *CDataBase::GetInstance()
{
    static CDataBase instance;
    return &instance;
}

QString CDataBase::GetStaticCfgValue(const QString &section, const QString &key) const
{
    const auto snapshot = ZrDataStore::snapshot();
    const auto &sections = snapshot->contents().sections;
    const auto found = sections.constFind(section);
    return found == sections.constEnd() ? QString() : found->value(key);
}

QMap<QString, QString> CDataBase::GetStaticValuesBySection(const QString &section) const
{
    return ZrDataStore::snapshot()->contents().sections.value(section);
}
