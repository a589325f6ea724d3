#include "zrutils/ZrCommonUtils.h"

#include "zrutils/ZrJsonText.h"
#include "zrutils/ZrRecordFilter.h"
#include "zrutils/ZrRecordSorter.h"
#include "zrutils/ZrRecordSum.h"
#include "zrutils/ZrTipText.h"

#include <QtCore/QDebug>

namespace {
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
    if (last.filters != filters || last.types != types)
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

// Refused rather than half read: a form built from a part of its description would send wrong orders.
int ZrCommonUtils::praseAlgoParamJsonFile(const QString &path, QList<QMap<QString, QVariant>> &,
                                          QList<QMap<QString, QVariant>> &, QList<QMap<QString, QVariant>> &,
                                          QList<QMap<QString, QVariant>> &, QList<QMap<QString, QVariant>> &,
                                          QMap<QString, QVariant> &, QMap<QString, QVariant> &)
{
    qWarning().noquote() << "ZrCommonUtils::praseAlgoParamJsonFile" << path
                         << "is a strategy parameter description, which is not supported by this host yet";
    return -1;
}
