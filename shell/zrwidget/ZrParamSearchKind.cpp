#include "ZrParamSearchKind.h"

#include "ZrSearchBox.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/Constants.h"

namespace {
/// The securities of the entries TYPE and TYPE|SUBTYPE that "/" separates, in the order of the entries.
QStringList securitiesOf(const QString &entries)
{
    const CBusinessDataBase *const host = CBusinessDataBase::GetInstance();
    QStringList securities;
    const QStringList all = entries.split(QLatin1Char('/'));
    for (const QString &entry : all) {
        const QStringList parts = entry.split(QLatin1Char('|'));
        if (parts.size() <= 2)
            securities += host->GetAllSymbolByType(parts.value(0), parts.value(1), QString(), false, {});
    }
    return securities;
}
} // namespace

QWidget *ZrParamSearchKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &) const
{
    auto *const box = new ZrSearchBox(parent);
    // Without a choice the box asks for all securities itself, once something is typed.
    const QString entries = record.value(Constants::STRATEGYPARAM_OPTIONS).toString();
    if (!entries.isEmpty())
        box->setSecurityList(securitiesOf(entries));
    return box;
}

QVariant ZrParamSearchKind::read(const QWidget *widget, int role) const
{
    const auto *const box = qobject_cast<const ZrSearchBox *>(widget);
    if (!box)
        return QVariant();
    if (role == Qt::DisplayRole)
        return box->text();
    return role == Qt::UserRole ? box->getSymbol() : QVariant();
}

void ZrParamSearchKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const box = qobject_cast<ZrSearchBox *>(widget);
    if (!box)
        return;
    box->setSymbol(value.toString());
    if (!isEditable)
        box->setReadOnly(true);
}
