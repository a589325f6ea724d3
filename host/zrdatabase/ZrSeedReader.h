#pragma once

#include "zrdatabase/ZrDataTable.h"

class QIODevice;

/// Reads the seed tables that are built into the library.
///
/// Threads: any.
/// Errors:  false, and a reason; a table is taken whole or not at all.
class ZrSeedReader
{
public:
    static bool read(ZrDataTables &tables, QString &reason);

private:
    ZrSeedReader() = delete;
};
