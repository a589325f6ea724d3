#include "ZrParamRowUpdate.h"

#include "ZrParamLink.h"
#include "ZrParamRow.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdatabase/CDataBase.h"
#include "zrdefine/VexlorFields.h"

namespace Security = Vexlor_Fields::Security;
namespace UserAccount = Vexlor_Fields::UserAccount;

namespace {
void write(QAbstractItemModel *model, const QModelIndex &cell, const QString &shown, const QString &stored)
{
    // The index is the model's own until the first of the two is told to others.
    const QPersistentModelIndex place(cell);
    model->setData(place, shown, Qt::DisplayRole);
    model->setData(place, stored, Qt::UserRole);
}
} // namespace

ZrParamRowUpdate::ZrParamRowUpdate(const QString &editedId, const QVariant &value, const Records &records)
    : m_editedId(editedId)
    , m_value(value)
    , m_records(records)
{
}

void ZrParamRowUpdate::applyTo(QAbstractItemModel *model, const QModelIndex &edited) const
{
    const QPersistentModelIndex place(edited);
    for (int column = 0; place.isValid() && column < model->columnCount(); ++column) {
        const QString id = ZrParamRow::idAt(place.sibling(place.row(), column));
        if (m_editedId == Security::symbol)
            bringSecurity(model, place.sibling(place.row(), column), id);
        if (place.isValid())
            clearImpossible(model, place.sibling(place.row(), column), id);
    }
}

void ZrParamRowUpdate::bringSecurity(QAbstractItemModel *model, const QModelIndex &cell,
                                     const QString &cellId) const
{
    const CBusinessDataBase *const host = CBusinessDataBase::GetInstance();
    const QString symbol = m_value.toString();
    if (cellId == UserAccount::SymbolPost) {
        const QString post = host->GetSymbolPostBySymbol(symbol);
        write(model, cell, CDataBase::GetInstance()->GetStaticCfgValue(UserAccount::SymbolPost, post), post);
    }
    if (cellId == Security::chineseName) {
        const QString name = host->GetSecurityChineseName(symbol, QString());
        write(model, cell, name, name);
    }
}

void ZrParamRowUpdate::clearImpossible(QAbstractItemModel *model, const QModelIndex &cell,
                                       const QString &cellId) const
{
    const QVariantMap record = m_records.value(cellId);
    const ZrParamLink link(record, m_value.toString());
    if (link.isLinked() && ZrParamLink::otherId(record) == m_editedId &&
        !link.offers(cell.data(Qt::UserRole)))
        write(model, cell, QString(), QString());
}
