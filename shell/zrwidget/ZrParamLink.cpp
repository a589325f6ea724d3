#include "ZrParamLink.h"

#include "zrdefine/Constants.h"

#include <algorithm>

namespace {
QVariantMap caseFor(const QVariantMap &record, const QString &linkedValue)
{
    const QVariantList cases = record.value(Constants::STRATEGYPARAM_LINKTYPE).value<QVariantList>();
    for (const QVariant &entry : cases) {
        const QVariantMap candidate = entry.toMap();
        // The case's value leads the comparison: 1 is met by "1", and true by "true" and "1".
        if (candidate.value(Constants::STRATEGYPARAM_PARAMVALUE) == QVariant(linkedValue))
            return candidate;
    }
    return QVariantMap();
}
} // namespace

ZrParamLink::ZrParamLink(const QVariantMap &record, const QString &linkedValue)
    : m_record(record)
    , m_isLinked(record.contains(Constants::STRATEGYPARAM_LINKPARAMID))
{
    if (m_isLinked)
        m_case = caseFor(record, linkedValue);
}

ZrParamLink ZrParamLink::among(const QVariantMap &record, const QVariantMap &presentValues)
{
    return ZrParamLink(record, presentValues.value(otherId(record)).toString());
}

QString ZrParamLink::otherId(const QVariantMap &record)
{
    return record.value(Constants::STRATEGYPARAM_LINKPARAMID).toString();
}

QVector<ZrParamOption> ZrParamLink::options() const
{
    const QVariantMap &source = m_case.isEmpty() ? m_record : m_case;
    QVector<ZrParamOption> options;
    const QVariantList entries = source.value(Constants::STRATEGYPARAM_OPTIONS).value<QVariantList>();
    options.reserve(entries.size());
    for (const QVariant &entry : entries) {
        const QVariantMap option = entry.toMap();
        options.append({option.value(Constants::STRATEGYPARAM_DISPLAYROLE).toString(),
                        option.value(Constants::STRATEGYPARAM_USERROLE)});
    }
    return options;
}

bool ZrParamLink::offers(const QVariant &value) const
{
    const QVector<ZrParamOption> all = options();
    return std::any_of(all.cbegin(), all.cend(),
                       [&value](const ZrParamOption &option) { return option.value == value; });
}
