#pragma once

#include "zrdatabase/ZrDataSnapshot.h"

#include <QtCore/QVector>

/// One column of a seed or database table; the value of a field always has the type of its column.
struct ZrDataColumn
{
    QString name;
    QMetaType::Type type = QMetaType::QString; // QString, Bool, LongLong or Double
};

/// A table as it stands in a seed file and in the database.
struct ZrDataTable
{
    QString name; // of the table in the database
    QVector<ZrDataColumn> columns;
    QVector<QVector<QVariant>> rows;
};

/// All tables of the reference data, and how they become contents.
///
/// The heads of the seed files are the layout of the database too: one place says which fields exist.
struct ZrDataTables
{
    ZrDataTable securities;
    ZrDataTable accounts;
    ZrDataTable dictionaries;
    ZrDataTable settings;

    QVector<ZrDataTable *> all() { return {&securities, &accounts, &dictionaries, &settings}; }
    /// `language` chooses the texts of the dictionaries: "en", or anything else for Chinese.
    ZrDataContents contents(const QString &language) const;
};
