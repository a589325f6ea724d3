#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

/// Role keys of a cell and keys of a column head.
///
/// A role key is the decimal text of an item role number. The texts are made once at start-up, so that a
/// look-up in a cell never builds a string. Threads: any; the texts never change.

/// Numbers of the roles that the grids know by name. Any other role may stand in a cell as well.
enum ZrItemRole {
    ZrRawRole = 256,          // Qt::UserRole: raw value; in the row-state cell the check state
    ZrSecondRawRole = 257,    // Qt::UserRole + 1
    ZrColumnIndexRole = 258,  // head only: logical column number
    ZrExportRole = 259,       // text that the export writes
    ZrGroupIdRole = 260,      // head only
    ZrGroupNameRole = 261,    // head only
    ZrCheckEnabledRole = 262, // row-state cell only: false disables the row's check box
    ZrReservedRole = 263      // declared beside the others, read by nothing
};

/// Logical numbers that stand for no column of the caller.
enum ZrPseudoColumn {
    ZrRowStateColumn = -1,     // key of the row-state cell in a record
    ZrSerialNumberColumn = -1, // "Head_ColumnIndex" of the serial number column
    ZrCheckBoxColumn = -2      // "Head_ColumnIndex" of the check box column
};

ZRWIDGET_EXPORT extern const QString ITEM_DISPLAYROLE;      // 0
ZRWIDGET_EXPORT extern const QString ITEM_TOOLTIPROLE;      // 3
ZRWIDGET_EXPORT extern const QString ITEM_BACKGROUNDROLE;   // 8
ZRWIDGET_EXPORT extern const QString ITEM_FOREGROUNDROLE;   // 9
ZRWIDGET_EXPORT extern const QString ITEM_USERROLE;         // 256
ZRWIDGET_EXPORT extern const QString ITEM_CUSTOMROLE;       // 257
ZRWIDGET_EXPORT extern const QString ITEM_EXPORTVIEWROLE;   // 259
ZRWIDGET_EXPORT extern const QString ITEM_CHECKENABLEDROLE; // 262
ZRWIDGET_EXPORT extern const QString ITEM_RESERVEDROLE;     // 263

ZRWIDGET_EXPORT extern const QString HEAD_DISPLAYROLE; // "Head_DisplayRole"
ZRWIDGET_EXPORT extern const QString HEAD_USERROLE;    // "Head_UserRole"
ZRWIDGET_EXPORT extern const QString HEAD_SHOWROLE;    // "Head_ShowRole"
ZRWIDGET_EXPORT extern const QString HEAD_COLUMNINDEX; // "Head_ColumnIndex"
ZRWIDGET_EXPORT extern const QString HEAD_GROUPID;     // "Head_GroupId"
ZRWIDGET_EXPORT extern const QString HEAD_GROUPNAME;   // "Head_GroupName"

/// The decimal text of a role number; shared and free of allocation for 0 to 511.
ZRWIDGET_EXPORT QString zrRoleKey(int role);
