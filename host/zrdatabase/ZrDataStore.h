#pragma once

#include "zrdatabase/zrdatabase_global.h"
#include "zrdatabase/ZrDataSnapshot.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>

/// Where the reference data lies.
struct ZrDataOptions
{
    QString folder;                             // SQLite: holds the database file; made when missing
    QString driver = QStringLiteral("QSQLITE"); // any QtSql driver
    QString databaseName;                       // SQLite: file name in the folder, a default when empty
    QString hostName;                           // a server's name; -1 is the driver's own port
    int port = -1;
    QString userName;
    QString password;
    QString connectOptions; // as QSqlDatabase::setConnectOptions reads them
    QString language;       // of the dictionaries: "en", or anything else for Chinese
};

/// Steers the reference data of the process: which database it comes from, and what a test puts in its place.
///
/// Shape:     closed at first: every look-up is empty. Open, close and open again as often as wanted.
/// Ownership: one state for the whole process; a look-up holds the state it began with.
/// Threads:   snapshot() and isOpen() from any thread; all others from one thread at a time.
/// Errors:    open() tells in `error` why it failed and leaves the store as it was. A database file that is
///            damaged, or of an older layout, is replaced from the seed with one warning.
class ZRDATABASE_EXPORT ZrDataStore
{
public:
    /// Reads the whole database once; makes and fills it first when it isn't there.
    static bool open(const ZrDataOptions &options, QString *error = nullptr);
    /// The seed alone, in memory; no file is read or written.
    static bool openSeed(const QString &language = QString(), QString *error = nullptr);
    static void close();
    static bool isOpen();

    /// The present state, never null.
    static std::shared_ptr<const ZrDataSnapshot> snapshot();

    /// Replace parts of the state, in memory only. They open a closed store.
    static void setContents(const ZrDataContents &contents);
    static void setSection(const QString &section, const QMap<QString, QString> &texts);
    static void setSecurities(const QList<QVariantMap> &securities);
    static void setAccounts(const QList<QVariantMap> &accounts);
    static void setLoginType(const QString &type);

private:
    ZrDataStore() = delete;
};
