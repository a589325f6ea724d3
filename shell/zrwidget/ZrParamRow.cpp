#include "ZrParamRow.h"

#include "ZrModelIndex.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/VexlorFields.h"

namespace {
/// What the host knows of the security fills in what `values` lacks.
void addSecurityDetails(QVariantMap *values, const QString &symbol)
{
    const QVariantMap details = CBusinessDataBase::GetInstance()->GetSecurityDetailsBySymbol(symbol);
    for (auto detail = details.cbegin(); detail != details.cend(); ++detail) {
        if (!values->contains(detail.key()))
            values->insert(detail.key(), detail.value());
    }
}
} // namespace

QString ZrParamRow::idAt(const QModelIndex &index)
{
    return ZrModelIndex::columnHeadData(index, Qt::Horizontal, Qt::UserRole).toString();
}

QVariantMap ZrParamRow::presentValues(const QModelIndex &index, const Records &records)
{
    const auto *const model = qobject_cast<const ZrTableModel *>(index.model());
    if (!model)
        return QVariantMap();
    const RecordData row = model->getRowData(index.row());
    QVariantMap values;
    QString symbol;
    for (int column = 0; column < model->columnCount(); ++column) {
        const QModelIndex cell = index.sibling(index.row(), column);
        const auto stored = row.constFind(ZrModelIndex::column(cell));
        if (stored == row.cend())
            continue;
        const QString id = idAt(cell);
        const QString text = stored->value(ITEM_USERROLE).toString();
        if (records.contains(id))
            values.insert(id, text);
        if (id == Vexlor_Fields::Security::symbol)
            symbol = text;
    }
    if (!symbol.isEmpty())
        addSecurityDetails(&values, symbol);
    return values;
}
