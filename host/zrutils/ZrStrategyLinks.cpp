#include "zrutils/ZrStrategyLinks.h"

#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "zrutils/ZrStrategyFaults.h"
#include "zrutils/ZrStrategyParameter.h"

#include <QtCore/QSet>

namespace {
using Entries = QList<ZrStrategyEntry>;

QString idOf(const ZrStrategyEntry &entry)
{
    return entry.record.value(Constants::STRATEGYPARAM_PARAMID).toString();
}

/// The parameter that this one needs; that of the security for a field of the security. Empty for none.
QString neededBy(const ZrStrategyEntry &entry)
{
    if (entry.record.value(ZrStrategyParameter::securityLink).toBool())
        return Vexlor_Fields::Security::symbol;
    return entry.record.value(Constants::STRATEGYPARAM_LINKPARAMID).toString();
}

Entries withoutDoubles(const Entries &entries, ZrStrategyFaults *faults)
{
    Entries kept;
    QSet<QString> ids;
    for (const ZrStrategyEntry &entry : entries) {
        const QString id = idOf(entry);
        if (ids.contains(id))
            faults->skip(entry.where + QStringLiteral(".id"),
                         QStringLiteral("%1 was given before").arg(ZrStrategyFaults::quoted(id)));
        else
            kept.append(entry);
        ids.insert(id);
    }
    return kept;
}

/// The ids whose needs, followed on, come back to themselves.
QSet<QString> circular(const Entries &entries)
{
    QMap<QString, QString> needs;
    for (const ZrStrategyEntry &entry : entries)
        needs.insert(idOf(entry), neededBy(entry));
    QSet<QString> found;
    QSet<QString> seen;
    for (auto start = needs.cbegin(); start != needs.cend(); ++start) {
        QStringList road;
        QString id = start.key();
        while (needs.contains(id) && !seen.contains(id)) {
            seen.insert(id);
            road.append(id);
            id = needs.value(id);
        }
        for (int i = road.indexOf(id); i >= 0 && i < road.size(); ++i)
            found.insert(road.at(i));
    }
    return found;
}

Entries withoutCircles(const Entries &entries, ZrStrategyFaults *faults)
{
    const QSet<QString> ids = circular(entries);
    Entries kept;
    for (const ZrStrategyEntry &entry : entries) {
        if (ids.contains(idOf(entry)))
            faults->skip(entry.where + QStringLiteral(".dependsOn"),
                         QStringLiteral("it depends on itself, at once or by way of others"));
        else
            kept.append(entry);
    }
    return kept;
}

/// One round: those whose need is not among the entries go.
Entries withoutDangling(const Entries &entries, ZrStrategyFaults *faults)
{
    QSet<QString> ids;
    for (const ZrStrategyEntry &entry : entries)
        ids.insert(idOf(entry));
    Entries kept;
    for (const ZrStrategyEntry &entry : entries) {
        const QString need = neededBy(entry);
        if (need.isEmpty() || ids.contains(need))
            kept.append(entry);
        else
            faults->skip(entry.where + QStringLiteral(".dependsOn"),
                         QStringLiteral("there is no parameter %1 here").arg(ZrStrategyFaults::quoted(need)));
    }
    return kept;
}
} // namespace

QList<QVariantMap> ZrStrategyLinks::sound(const QList<ZrStrategyEntry> &entries, ZrStrategyFaults *faults)
{
    Entries kept = withoutCircles(withoutDoubles(entries, faults), faults);
    int before = 0;
    do {
        before = kept.size();
        kept = withoutDangling(kept, faults);
    } while (kept.size() < before);
    QList<QVariantMap> records;
    for (ZrStrategyEntry &entry : kept) {
        entry.record.remove(ZrStrategyParameter::securityLink);
        records.append(entry.record);
    }
    return records;
}
