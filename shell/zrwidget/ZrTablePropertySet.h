#pragma once

#include "ZrGridSetting.h"

#include <zrutils/ZrRecordTypes.h>

class ZrTableView;

/// Brings messages into a grid: applies a column configuration to a view and turns messages into rows.
///
///     message (field number -> value)  --ZrGridSetting-->  row (logical column -> cell)
///
/// Call setTableViewProperty once, then one of the two setTable...RecordData for each batch, handing the
/// rows to the view, and after a full load setViewFilterList.
///
/// Shape:   static members, no state. A cell gets the display text, the raw value and the export value.
/// Threads: GUI thread only: the mapping asks the host's dictionaries, securities and accounts.
/// Errors:  reports nothing. A value that can't be converted gives what the conversion gives (0, an invalid
///          date), an unknown code what the host gives, an empty text.
class ZRWIDGET_EXPORT ZrTablePropertySet
{
public:
    ZrTablePropertySet();

    /// Heads, key columns, filterable columns, widths and alignment. The heads are numbered by position, so
    /// the index values of the file have to be 0, 1, 2 ... for the two to agree.
    static void setTableViewProperty(const ZrGridSetting &grid, ZrTableView *view);
    /// Appends a row for each message; what stands in `records` stays.
    static void setTableRecordData(const ZrGridSetting &grid, const QList<QMap<QString, QVariant>> &messages,
                                   RecordDataList &records);
    /// A configured column whose field the message lacks gets an empty cell, which also replaces an older
    /// one; entries of other columns stay.
    static void setTableSingleRecordData(const ZrGridSetting &grid, const QMap<QString, QVariant> &message,
                                         RecordData &record);
    /// The raw values of the key columns as texts, without separator.
    static QString getRecordKeyString(const ZrGridSetting &grid, const RecordData &record);
    /// Gives each filterable column the choices of its popup: the dictionary's, or what the rows hold.
    static void setViewFilterList(const ZrGridSetting &grid, const RecordDataList &records,
                                  ZrTableView *view);

private:
    static QString getRealRole(QString role);
    static int translateValueType(QString type);
    static void handleMsgValueTypeAndProperty(const QVariant &value, ItemRoleMap &cell,
                                              const ZrFieldSetting &field);
    static void handleDisplayMsgValueProperty(QString &text, ItemRoleMap &cell, const ZrFieldSetting &field);
    static void handleUserQStringMsgValueProperty(QString &value, ItemRoleMap &cell,
                                                  const ZrFieldSetting &field);
    static void handleUserIntMsgValueProperty(int &value, ItemRoleMap &cell, const ZrFieldSetting &field);
    static void handleUserDoubleMsgValueProperty(double &value, ItemRoleMap &cell,
                                                 const ZrFieldSetting &field);
    static void handleUserLongLongMsgValueProperty(long long &value, ItemRoleMap &cell,
                                                   const ZrFieldSetting &field);
    static void handleExportViewRoleProperty(QString text, QVariant user, ItemRoleMap &cell,
                                             const ZrFieldSetting &field);
    static QString displayTextOf(const QVariant &value, int type, const ZrFieldSetting &field);
    static QVariant storeRawValue(const QVariant &value, int type, ItemRoleMap &cell,
                                  const ZrFieldSetting &field);
    static QList<ItemRoleMap> dictionaryChoices(const ZrFieldSetting &field);
    static QList<ItemRoleMap> distinctCellsOf(int column, const RecordDataList &records);
};
