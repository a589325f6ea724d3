#include "zrdatabase/ZrDataTable.h"

#include "zrdatabase/ZrDataFields.h"
#include "zrdefine/VexlorFields.h"

namespace {
QVector<QVariantMap> recordsOf(const ZrDataTable &table)
{
    QVector<QVariantMap> records;
    records.reserve(table.rows.size());
    for (const QVector<QVariant> &row : table.rows) {
        QVariantMap record;
        for (int i = 0; i < table.columns.size(); ++i)
            record.insert(table.columns.at(i).name, row.at(i));
        records.append(record);
    }
    return records;
}

/// Code and market stand in the symbol already; look-ups want them as fields.
void completeSecurity(QVariantMap &security)
{
    const QString symbol = security.value(Vexlor_Fields::Security::symbol).toString();
    const int dot = symbol.lastIndexOf(QLatin1Char('.'));
    security.insert(ZrDataFields::securityID, symbol.left(dot));
    security.insert(ZrDataFields::post, dot < 0 ? QString() : symbol.mid(dot + 1));
}
} // namespace

ZrDataContents ZrDataTables::contents(const QString &language) const
{
    ZrDataContents result;
    result.securities = recordsOf(securities);
    for (QVariantMap &security : result.securities)
        completeSecurity(security);
    result.accounts = recordsOf(accounts);
    const int text = language.startsWith(QLatin1String("en")) ? 3 : 2;
    for (const QVector<QVariant> &row : dictionaries.rows)
        result.sections[row.at(0).toString()].insert(row.at(1).toString(), row.at(text).toString());
    for (const QVector<QVariant> &row : settings.rows) {
        if (row.at(0).toString() == QLatin1String("LoginType"))
            result.loginType = row.at(1).toString();
    }
    return result;
}
