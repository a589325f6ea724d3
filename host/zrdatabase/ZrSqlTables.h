#pragma once

#include "zrdatabase/ZrDataStore.h"
#include "zrdatabase/ZrDataTable.h"

/// Moves all tables into a database, or out of it, over one connection that lives for the call.
///
/// Shape:   names of tables and columns come from the seed that is built in; values are always bound.
/// Threads: any; each call has a connection of its own.
/// Errors:  false, and a reason in one sentence. A read that fails leaves the rows undefined.
class ZrSqlTables
{
public:
    /// The version that write() notes and read() asks for; raise it whenever a seed head changes.
    static constexpr int layoutVersion = 1;

    explicit ZrSqlTables(const ZrDataOptions &options);

    bool write(ZrDataTables &tables, QString &reason) const;
    /// Fills the rows of tables whose columns are known.
    bool read(ZrDataTables &tables, QString &reason) const;

private:
    ZrDataOptions m_options;
};
