// This host sorts by text, filters nothing and has a sum rule of its own: it counts rows. A library that
// relied on the reference host's rules would show other figures.
#include "zrutils/ZrCommonUtils.h"
#include "zrutils/ZrThread.h"

#include <algorithm>
#include <QtCore/QJsonDocument>

ZrThread::ZrThread(QObject *parent)
    : QThread(parent)
{
}
ZrThread::~ZrThread() = default;

bool ZrCommonUtils::canCreateJsonDocu(QJsonDocument &document, const QString &text)
{
    document = QJsonDocument::fromJson(text.toUtf8());
    return !document.isNull();
}

QString ZrCommonUtils::getMyTipString(const QString &text)
{
    return text;
}
bool ZrCommonUtils::isRecordMatchFilterList(const RecordData &, const ViewFilterList &,
                                            const QMap<int, int> &)
{
    return true;
}

RecordDataList ZrCommonUtils::getMatchRecordListByFilterList(const RecordDataList &records,
                                                             const ViewFilterList &, const QMap<int, int> &)
{
    return records;
}

RecordData ZrCommonUtils::getTableViewSumRecord(const RecordDataList &records, const QList<int> &)
{
    RecordData sum;
    sum[0][QStringLiteral("0")] = records.size();
    return sum;
}

int ZrCommonUtils::sortTableViewRecordListByKeys(RecordDataList &records,
                                                 const QList<QPair<int, Qt::SortOrder>> &keys)
{
    const int column = keys.first().first;
    const auto text = [column](const RecordData &record) {
        return record.value(column).value(QStringLiteral("0")).toString();
    };
    std::stable_sort(records.begin(), records.end(), [&](const RecordData &left, const RecordData &right) {
        return text(left) < text(right);
    });
    return records.size();
}

int ZrCommonUtils::praseAlgoParamJsonFile(const QString &, QList<QMap<QString, QVariant>> &,
                                          QList<QMap<QString, QVariant>> &, QList<QMap<QString, QVariant>> &,
                                          QList<QMap<QString, QVariant>> &, QList<QMap<QString, QVariant>> &,
                                          QMap<QString, QVariant> &, QMap<QString, QVariant> &)
{
    return -1;
}
