#pragma once

#include "zrdatabase/ZrDataStore.h"
#include "zrdatabase/ZrDataTable.h"

/// The database that the reference data lives in: made once, read whole.
///
/// Shape:   one table for each seed table, and "layout" with the version of the whole. With SQLite a missing,
///          damaged or older file is written anew beside its place and renamed when it is whole, so that a
///          crash leaves no half database. A server's tables are only ever read: who runs one fills it.
/// Threads: load() on the thread that calls it.
/// Errors:  false, and a reason in one sentence.
class ZrDatabaseFile
{
public:
    explicit ZrDatabaseFile(const ZrDataOptions &options);

    /// `tables` holds the seed, and afterwards what the database holds.
    bool load(ZrDataTables &tables, QString &reason) const;

private:
    bool isLocalFile() const;
    bool loadLocal(ZrDataTables &tables, QString &reason) const;
    bool makeFile(const QString &path, ZrDataTables &seed, QString &reason) const;
    ZrDataOptions optionsFor(const QString &databaseName) const;

    ZrDataOptions m_options;
};
