#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrutils/zrutils_global.h"

#include <QtCore/QPair>

class QJsonDocument;

/// Helpers of the grids and forms; static functions only.
///
/// The value of a cell is the first present of role key 256, 257 and 0.
/// Threads: any.
/// Errors:  nothing is reported; what can't be used is left out.
class ZRUTILS_EXPORT ZrCommonUtils
{
public:
    /// Parses a text into the document; false if it isn't JSON.
    static bool canCreateJsonDocu(QJsonDocument &document, const QString &text);
    /// Formats the text of a tool tip. The text comes from outside: it is shown, never interpreted.
    static QString getMyTipString(const QString &text);
    /// Whether a row passes the entries of all columns; `types` gives each column's learned
    /// QVariant type. An empty list passes, and so does a column with no entry.
    static bool isRecordMatchFilterList(const RecordData &record, const ViewFilterList &filters,
                                        const QMap<int, int> &types);
    /// The rows that pass, in their order.
    static RecordDataList getMatchRecordListByFilterList(const RecordDataList &records,
                                                         const ViewFilterList &filters,
                                                         const QMap<int, int> &types);
    /// The sum row: a total under role key 0 for each column that holds a number. `columns` are left out.
    static RecordData getTableViewSumRecord(const RecordDataList &records, const QList<int> &columns);
    /// Sorts in place, stable, by the columns in turn, each in its order; the number of rows.
    static int sortTableViewRecordListByKeys(RecordDataList &records,
                                             const QList<QPair<int, Qt::SortOrder>> &keys);
    /// Reads a strategy parameter description; 0 when it could be read, -1 otherwise. Filled are, in
    /// this order, the basic parameters, the initial parameters (one entry for each view), three
    /// further lists and a map that no caller interprets, and the settings of the interface.
    static int praseAlgoParamJsonFile(const QString &path, QList<QMap<QString, QVariant>> &basicParams,
                                      QList<QMap<QString, QVariant>> &initialParams,
                                      QList<QMap<QString, QVariant>> &runningParams,
                                      QList<QMap<QString, QVariant>> &resultParams,
                                      QList<QMap<QString, QVariant>> &links,
                                      QMap<QString, QVariant> &strategy,
                                      QMap<QString, QVariant> &interfaceSettings);

private:
    ZrCommonUtils() = delete;
};
