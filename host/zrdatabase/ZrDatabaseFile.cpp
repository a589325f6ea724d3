#include "zrdatabase/ZrDatabaseFile.h"

#include "zrdatabase/ZrSqlTables.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtSql/QSqlDatabase>

namespace {
// A journal that outlives its database would be rolled back into the file that takes its name.
void removeWithJournals(const QString &path)
{
    for (const char *ending : {"", "-journal", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(ending));
}
} // namespace

ZrDatabaseFile::ZrDatabaseFile(const ZrDataOptions &options)
    : m_options(options)
{
}

bool ZrDatabaseFile::isLocalFile() const
{
    return m_options.driver == QLatin1String("QSQLITE");
}

bool ZrDatabaseFile::load(ZrDataTables &tables, QString &reason) const
{
    if (!QSqlDatabase::isDriverAvailable(m_options.driver)) {
        reason = QStringLiteral("there is no database driver named \"%1\"").arg(m_options.driver);
        return false;
    }
    return isLocalFile() ? loadLocal(tables, reason) : ZrSqlTables(m_options).read(tables, reason);
}

bool ZrDatabaseFile::loadLocal(ZrDataTables &tables, QString &reason) const
{
    if (m_options.folder.isEmpty() || !QDir().mkpath(m_options.folder)) {
        reason = QStringLiteral("the data folder \"%1\" can't be made").arg(m_options.folder);
        return false;
    }
    const QString name =
        m_options.databaseName.isEmpty() ? QStringLiteral("zrdata.sqlite") : m_options.databaseName;
    const QString path = QDir(m_options.folder).filePath(name);
    if (QFile::exists(path)) {
        ZrDataTables present = tables;
        if (ZrSqlTables(optionsFor(path)).read(present, reason)) {
            tables = present;
            return true;
        }
        qWarning().noquote() << "ZrDataStore: the database" << path << "is made anew:" << reason;
    }
    // What was written is the seed itself: no need to read it back.
    return makeFile(path, tables, reason);
}

bool ZrDatabaseFile::makeFile(const QString &path, ZrDataTables &seed, QString &reason) const
{
    const QString beside = path + QStringLiteral(".new%1").arg(QCoreApplication::applicationPid());
    removeWithJournals(beside);
    if (!ZrSqlTables(optionsFor(beside)).write(seed, reason)) {
        removeWithJournals(beside);
        return false;
    }
    removeWithJournals(path);
    if (QFile::rename(beside, path))
        return true;
    reason = QStringLiteral("the database \"%1\" can't be put in its place").arg(path);
    removeWithJournals(beside);
    return false;
}

ZrDataOptions ZrDatabaseFile::optionsFor(const QString &databaseName) const
{
    ZrDataOptions options = m_options;
    options.databaseName = databaseName;
    return options;
}
