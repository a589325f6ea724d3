#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QDebug;

/// One column of a grid as its column configuration file describes it.
///
/// Shape:   plain value; the texts stand as they were written in the file, so an unknown word is kept
///          and gets its default only where it is used.
/// Units:   columnWidth in logical px; -1 in index, columnWidth and decimal means "not configured".
/// Threads: as any value.
class ZRWIDGET_EXPORT ZrFieldSetting
{
public:
    ZrFieldSetting();
    /// All fields in their order, which is the order of the attributes in the file.
    ZrFieldSetting(int index, QString titleName, QString fieldNumber, int columnWidth, QString type,
                   QString displayRoleProperty, QString userRoleProperty, QString exportViewRoleProperty,
                   int columnAlignment, bool keyColumn, bool filterable, int decimal, QString dateStyle,
                   QString role);
    ZrFieldSetting(const ZrFieldSetting &other);
    ZrFieldSetting &operator=(const ZrFieldSetting &other);
    ~ZrFieldSetting();

    int index = -1;                 // logical column and sort key
    QString titleName;              // head text
    QString fieldNumber;            // key of the value in a message; empty: the column gets no cell
    int columnWidth = -1;           // logical px
    QString type;                   // how the raw value is typed, such as "double"
    QString displayRoleProperty;    // chain of display words, parted by "|"
    QString userRoleProperty;       // kept, without any effect
    QString exportViewRoleProperty; // "DisplayRole" or "UserRole": what an export writes
    int columnAlignment = 0;        // Qt::Alignment; 0 leaves it to the view
    bool keyColumn = false;         // the column belongs to the row's key
    bool filterable = false;
    int decimal = -1;  // digits after the point; 0 is a configured value
    QString dateStyle; // format of the display words "Date" and "DateTime"
    QString role;      // configuration name of the role that gets the display text
};

ZRWIDGET_EXPORT QDebug operator<<(QDebug debug, const ZrFieldSetting &field);
