#include "zrdatabase/ZrSqlTables.h"

#include <QtCore/QStringList>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <atomic>

namespace {
/// A connection with a name of its own; closed and forgotten with the object.
class Connection
{
public:
    explicit Connection(const ZrDataOptions &options)
        : m_name(nextName())
    {
        database = QSqlDatabase::addDatabase(options.driver, m_name);
        database.setDatabaseName(options.databaseName);
        database.setHostName(options.hostName);
        database.setPort(options.port);
        database.setUserName(options.userName);
        database.setPassword(options.password);
        database.setConnectOptions(options.connectOptions);
    }
    ~Connection()
    {
        // The last handle has to go before the name does, or QtSql warns about a connection in use.
        database.close();
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }

    QSqlDatabase database;

private:
    Q_DISABLE_COPY(Connection)
    static QString nextName()
    {
        static std::atomic<int> number{0};
        return QStringLiteral("zrdatabase-%1").arg(++number);
    }

    const QString m_name;
};

/// Runs statements until the first failure, and keeps its reason.
class Runner
{
public:
    Runner(QSqlDatabase &database, QString &reason)
        : m_database(database)
        , m_reason(reason)
    {
    }

    QString field(const QString &name) const
    {
        return m_database.driver()->escapeIdentifier(name, QSqlDriver::FieldName);
    }
    QString table(const QString &name) const
    {
        return m_database.driver()->escapeIdentifier(name, QSqlDriver::TableName);
    }
    bool run(QSqlQuery &query, const QString &statement)
    {
        query.setForwardOnly(true);
        return query.exec(statement) || fail(query.lastError());
    }
    bool run(const QString &statement)
    {
        QSqlQuery query(m_database);
        return run(query, statement);
    }
    bool fail(const QSqlError &error)
    {
        m_reason = error.isValid() ? error.text() : QStringLiteral("the database gave no reason");
        return false;
    }
    QSqlDatabase &database() { return m_database; }

private:
    QSqlDatabase &m_database;
    QString &m_reason;
};

QString sqlType(QMetaType::Type type)
{
    switch (static_cast<int>(type)) {
    case QMetaType::Bool:
        return QStringLiteral("SMALLINT");
    case QMetaType::LongLong:
        return QStringLiteral("BIGINT");
    case QMetaType::Double:
        return QStringLiteral("DOUBLE PRECISION");
    default:
        return QStringLiteral("VARCHAR(200)");
    }
}

// What no seed has: the order of the rows.
QString placeField()
{
    return QStringLiteral("Place");
}

bool createTable(Runner &runner, const ZrDataTable &table)
{
    QStringList fields(runner.field(placeField()) + QStringLiteral(" INTEGER PRIMARY KEY"));
    for (const ZrDataColumn &column : table.columns)
        fields.append(runner.field(column.name) + QLatin1Char(' ') + sqlType(column.type));
    return runner.run(
        QStringLiteral("CREATE TABLE %1 (%2)").arg(runner.table(table.name), fields.join(QLatin1Char(','))));
}

bool fillTable(Runner &runner, const ZrDataTable &table)
{
    QStringList marks(QStringLiteral("?"));
    for (int i = 0; i < table.columns.size(); ++i)
        marks.append(QStringLiteral("?"));
    QSqlQuery query(runner.database());
    if (!query.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2)")
                           .arg(runner.table(table.name), marks.join(QLatin1Char(',')))))
        return runner.fail(query.lastError());
    for (int place = 0; place < table.rows.size(); ++place) {
        query.bindValue(0, place);
        for (int i = 0; i < table.columns.size(); ++i) {
            const QVariant &value = table.rows.at(place).at(i);
            query.bindValue(i + 1,
                            table.columns.at(i).type == QMetaType::Bool ? QVariant(value.toInt()) : value);
        }
        if (!query.exec())
            return runner.fail(query.lastError());
    }
    return true;
}

bool readTable(Runner &runner, ZrDataTable &table)
{
    // With the table's name before them: SQLite takes a quoted name that is no column for a text.
    const QString prefix = runner.table(table.name) + QLatin1Char('.');
    QStringList fields;
    for (const ZrDataColumn &column : qAsConst(table.columns))
        fields.append(prefix + runner.field(column.name));
    QSqlQuery query(runner.database());
    if (!runner.run(query, QStringLiteral("SELECT %1 FROM %2 ORDER BY %3")
                               .arg(fields.join(QLatin1Char(',')), runner.table(table.name),
                                    runner.field(placeField()))))
        return false;
    table.rows.clear();
    while (query.next()) {
        QVector<QVariant> row;
        row.reserve(table.columns.size());
        for (int i = 0; i < table.columns.size(); ++i) {
            QVariant value = query.value(i);
            value.convert(table.columns.at(i).type);
            row.append(value);
        }
        table.rows.append(row);
    }
    return !query.lastError().isValid() || runner.fail(query.lastError());
}

bool writeLayout(Runner &runner)
{
    return runner.run(QStringLiteral("CREATE TABLE layout (version INTEGER)")) &&
           runner.run(QStringLiteral("INSERT INTO layout VALUES (%1)").arg(ZrSqlTables::layoutVersion));
}

bool checkLayout(Runner &runner, QString &reason)
{
    QSqlQuery query(runner.database());
    if (!runner.run(query, QStringLiteral("SELECT version FROM layout")))
        return false;
    const int version = query.next() ? query.value(0).toInt() : 0;
    if (version != ZrSqlTables::layoutVersion)
        reason =
            QStringLiteral("its layout has version %1, not %2").arg(version).arg(ZrSqlTables::layoutVersion);
    return version == ZrSqlTables::layoutVersion;
}

// A page that went bad on the disk would otherwise show only when a look-up gives nonsense.
bool checkPages(Runner &runner, QString &reason)
{
    if (runner.database().driverName() != QLatin1String("QSQLITE"))
        return true;
    QSqlQuery query(runner.database());
    if (!runner.run(query, QStringLiteral("PRAGMA quick_check(1)")))
        return false;
    const QString verdict = query.next() ? query.value(0).toString() : QString();
    if (verdict != QLatin1String("ok"))
        reason = QStringLiteral("its pages are damaged");
    return verdict == QLatin1String("ok");
}
} // namespace

ZrSqlTables::ZrSqlTables(const ZrDataOptions &options)
    : m_options(options)
{
}

bool ZrSqlTables::write(ZrDataTables &tables, QString &reason) const
{
    Connection connection(m_options);
    Runner runner(connection.database, reason);
    if (!connection.database.open() || !connection.database.transaction())
        return runner.fail(connection.database.lastError());
    const auto all = tables.all();
    for (const ZrDataTable *table : all) {
        if (!createTable(runner, *table) || !fillTable(runner, *table))
            return false;
    }
    // Last: a database without a version counts as not made.
    return writeLayout(runner) &&
           (connection.database.commit() || runner.fail(connection.database.lastError()));
}

bool ZrSqlTables::read(ZrDataTables &tables, QString &reason) const
{
    Connection connection(m_options);
    Runner runner(connection.database, reason);
    if (!connection.database.open())
        return runner.fail(connection.database.lastError());
    if (!checkPages(runner, reason) || !checkLayout(runner, reason))
        return false;
    const auto all = tables.all();
    for (ZrDataTable *table : all) {
        if (!readTable(runner, *table))
            return false;
    }
    return true;
}
