#include "zrutils/ZrCommonUtils.h"

#include "zrutils/ZrJsonText.h"
#include "zrutils/ZrRecordFilter.h"
#include "zrutils/ZrRecordSorter.h"
#include "zrutils/ZrRecordSum.h"
#include "zrutils/ZrStrategyReader.h"
#include "zrutils/ZrTipText.h"

#include <algorithm>

namespace {
/// Equal in type and value: the comparison of variants converts, so that 1 would equal "01".
bool isSame(const QVariantMap &a, const QVariantMap &b)
{
    if (a.isSharedWith(b))
        return true;
    return a.size() == b.size() &&
           std::equal(a.constKeyValueBegin(), a.constKeyValueEnd(), b.constKeyValueBegin(),
                      [](const auto &left, const auto &right) {
                          return left.first == right.first &&
                                 left.second.userType() == right.second.userType() &&
                                 left.second == right.second;
                      });
}

/// Lists that share their data are equal without a look inside them.
template<typename T>
bool isSame(const QList<T> &a, const QList<T> &b)
{
    return a.isSharedWith(b) ||
           (a.size() == b.size() &&
            std::equal(a.constBegin(), a.constEnd(), b.constBegin(),
                       [](const T &left, const T &right) { return isSame(left, right); }));
}

bool isSame(const ViewFilterList &a, const ViewFilterList &b)
{
    return a.isSharedWith(b) ||
           (a.size() == b.size() &&
            std::equal(a.constKeyValueBegin(), a.constKeyValueEnd(), b.constKeyValueBegin(),
                       [](const auto &left, const auto &right) {
                           return left.first == right.first && isSame(left.second, right.second);
                       }));
}

/// The filter that this thread read last. A grid tests each row of an update alone, with a filter that hardly
/// changes, and reading it costs more than testing; comparing it costs little, since unchanged parts are
/// shared.
const ZrRecordFilter &lastFilter(const ViewFilterList &filters, const QMap<int, int> &types)
{
    struct Last
    {
        ViewFilterList filters;
        QMap<int, int> types;
        ZrRecordFilter filter;
    };
    thread_local Last last;
    if (!isSame(last.filters, filters) || last.types != types)
        last = {filters, types, ZrRecordFilter(filters, types)};
    return last.filter;
}
} // namespace

bool ZrCommonUtils::canCreateJsonDocu(QJsonDocument &document, const QString &text)
{
    return ZrJsonText::parse(text, document);
}

QString ZrCommonUtils::getMyTipString(const QString &text)
{
    return ZrTipText::shown(text);
}

bool ZrCommonUtils::isRecordMatchFilterList(const RecordData &record, const ViewFilterList &filters,
                                            const QMap<int, int> &types)
{
    return filters.isEmpty() || lastFilter(filters, types).passes(record);
}

RecordDataList ZrCommonUtils::getMatchRecordListByFilterList(const RecordDataList &records,
                                                             const ViewFilterList &filters,
                                                             const QMap<int, int> &types)
{
    return ZrRecordFilter(filters, types).passing(records);
}

RecordData ZrCommonUtils::getTableViewSumRecord(const RecordDataList &records, const QList<int> &columns)
{
    ZrRecordSum sum(columns);
    for (const RecordData &record : records)
        sum.add(record);
    return sum.record();
}

int ZrCommonUtils::sortTableViewRecordListByKeys(RecordDataList &records,
                                                 const QList<QPair<int, Qt::SortOrder>> &keys)
{
    if (!keys.isEmpty() && records.size() > 1)
        ZrRecordSorter(records).sort(keys);
    return records.size();
}

int ZrCommonUtils::praseAlgoParamJsonFile(const QString &path, QList<QMap<QString, QVariant>> &basicParams,
                                          QList<QMap<QString, QVariant>> &initialParams,
                                          QList<QMap<QString, QVariant>> &runningParams,
                                          QList<QMap<QString, QVariant>> &resultParams,
                                          QList<QMap<QString, QVariant>> &links,
                                          QMap<QString, QVariant> &strategy,
                                          QMap<QString, QVariant> &interfaceSettings)
{
    ZrStrategyDescription description;
    const bool isRead = ZrStrategyReader::read(path, &description);
    basicParams = description.basic;
    initialParams = description.initial;
    runningParams = description.running;
    resultParams = description.results;
    links = description.links;
    strategy = description.strategy;
    interfaceSettings = description.settings;
    return isRead ? 0 : -1;
}
