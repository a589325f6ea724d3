#include "zrdatabase/CDataBase.h"
#include "zrdatabase/ZrDataFields.h"
#include "zrdatabase/ZrDataStore.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "ZrTestMain.h"

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

namespace {
ZrDataOptions optionsFor(const QString &folder)
{
    ZrDataOptions options;
    options.folder = folder;
    return options;
}

QString filePath(const QTemporaryDir &folder)
{
    return folder.filePath(QStringLiteral("zrdata.sqlite"));
}

QString text(const QString &section, const QString &key)
{
    return CDataBase::GetInstance()->GetStaticCfgValue(section, key);
}

/// Runs one statement on the database file, as an administrator might.
bool runStatement(const QString &path, const QString &statement)
{
    bool done = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
        database.setDatabaseName(path);
        done = database.open() && QSqlQuery(database).exec(statement);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("test"));
    return done;
}

void overwrite(const QString &path, qint64 place, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(place));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void announceNewFile()
{
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("^ZrDataStore: the database .* is made anew: .+")));
}
} // namespace

class TestDataStore : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void aClosedStoreAnswersWithNothing();
    void theFirstStartMakesTheDatabase();
    void theSecondStartReadsIt();
    void whatTheDatabaseHoldsIsWhatTheSeedHolds();
    void aDamagedDatabaseIsMadeAnewWithOneWarning_data();
    void aDamagedDatabaseIsMadeAnewWithOneWarning();
    void aStaleJournalIsNotRolledIntoANewDatabase();
    void noHalfDatabaseIsLeftBeside();
    void anotherFileNameIsTaken();
    void theSeedAloneTouchesNoFile();
    void aFolderThatCannotBeMadeIsAnError();
    void anUnknownDriverIsAnErrorAndKeepsTheState();
    void theLanguageChoosesTheTexts();
    void everySectionOfTheSeedHasItsTexts_data();
    void everySectionOfTheSeedHasItsTexts();
    void partsCanBeReplaced();
    void itOpensAndClosesManyTimes();
    void aSnapshotOutlivesTheStateItWasTakenFrom();
};

void TestDataStore::cleanup()
{
    ZrDataStore::close();
}

void TestDataStore::aClosedStoreAnswersWithNothing()
{
    QVERIFY(!ZrDataStore::isOpen());
    QVERIFY(text(Constants::LinkageType, QStringLiteral("1")).isEmpty());
    QVERIFY(CDataBase::GetInstance()->GetStaticValuesBySection(Constants::LinkageType).isEmpty());
}

void TestDataStore::theFirstStartMakesTheDatabase()
{
    const QTemporaryDir folder;
    const QString inner = folder.filePath(QStringLiteral("not/there/yet"));
    QString error;
    QVERIFY2(ZrDataStore::open(optionsFor(inner), &error), qPrintable(error));
    QVERIFY(ZrDataStore::isOpen());
    QVERIFY(QFile::exists(inner + QStringLiteral("/zrdata.sqlite")));
    QVERIFY(ZrDataStore::snapshot()->contents().securities.size() >= 5000);
    QCOMPARE(ZrDataStore::snapshot()->contents().accounts.size(), 40);
}

void TestDataStore::theSecondStartReadsIt()
{
    const QTemporaryDir folder;
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    ZrDataStore::close();
    QVERIFY(runStatement(filePath(folder),
                         QStringLiteral("UPDATE dictionaries SET \"ChineseText\" = 'changed' WHERE "
                                        "\"Section\" = 'LinkageType' AND \"Code\" = '1'")));
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    QCOMPARE(text(Constants::LinkageType, QStringLiteral("1")), QStringLiteral("changed"));
}

void TestDataStore::whatTheDatabaseHoldsIsWhatTheSeedHolds()
{
    const QTemporaryDir folder;
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    const auto read = ZrDataStore::snapshot();
    QVERIFY(ZrDataStore::openSeed());
    const auto seed = ZrDataStore::snapshot();
    QCOMPARE(read->contents().securities, seed->contents().securities);
    QCOMPARE(read->contents().accounts, seed->contents().accounts);
    QCOMPARE(read->contents().sections, seed->contents().sections);
    QCOMPARE(read->contents().loginType, seed->contents().loginType);
    const QVariantMap security = read->contents().securities.first();
    QCOMPARE(security.value(ZrDataFields::tradable).userType(), int(QMetaType::Bool));
    QCOMPARE(security.value(ZrDataFields::lotSize).userType(), int(QMetaType::LongLong));
    QCOMPARE(security.value(ZrDataFields::previousClose).userType(), int(QMetaType::Double));
}

void TestDataStore::aDamagedDatabaseIsMadeAnewWithOneWarning_data()
{
    QTest::addColumn<QString>("damage");
    for (const char *damage : {"no database", "empty", "cut off", "a page overwritten", "an older layout",
                               "no layout", "a table gone", "a column gone"})
        QTest::newRow(damage) << QString::fromLatin1(damage);
}

void TestDataStore::aDamagedDatabaseIsMadeAnewWithOneWarning()
{
    QFETCH(QString, damage);
    const QTemporaryDir folder;
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    const int count = ZrDataStore::snapshot()->contents().securities.size();
    ZrDataStore::close();
    const QString path = filePath(folder);
    if (damage == QLatin1String("no database"))
        overwrite(path, 0, QByteArray(4096, 'x'));
    else if (damage == QLatin1String("empty"))
        QVERIFY(QFile::resize(path, 0));
    else if (damage == QLatin1String("cut off"))
        QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2));
    else if (damage == QLatin1String("a page overwritten"))
        overwrite(path, 10 * 4096, QByteArray(4096, '\x7f'));
    else if (damage == QLatin1String("an older layout"))
        QVERIFY(runStatement(path, QStringLiteral("UPDATE layout SET version = 0")));
    else if (damage == QLatin1String("no layout"))
        QVERIFY(runStatement(path, QStringLiteral("DROP TABLE layout")));
    else if (damage == QLatin1String("a table gone"))
        QVERIFY(runStatement(path, QStringLiteral("DROP TABLE accounts")));
    else
        QVERIFY(runStatement(path,
                             QStringLiteral("ALTER TABLE accounts RENAME COLUMN \"ProductName\" TO other")));
    announceNewFile();
    QString error;
    QVERIFY2(ZrDataStore::open(optionsFor(folder.path()), &error), qPrintable(error));
    QCOMPARE(ZrDataStore::snapshot()->contents().securities.size(), count);
    ZrDataStore::close();
    QVERIFY2(ZrDataStore::open(optionsFor(folder.path())), "and the new file is good");
    QCOMPARE(ZrDataStore::snapshot()->contents().securities.size(), count);
}

void TestDataStore::aStaleJournalIsNotRolledIntoANewDatabase()
{
    const QTemporaryDir folder;
    QFile journal(filePath(folder) + QStringLiteral("-wal"));
    QVERIFY(journal.open(QIODevice::WriteOnly));
    journal.write(QByteArray(8192, 'x'));
    journal.close();
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    QVERIFY(!journal.exists());
}

void TestDataStore::noHalfDatabaseIsLeftBeside()
{
    const QTemporaryDir folder;
    QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("zrdata.sqlite")));
}

void TestDataStore::anotherFileNameIsTaken()
{
    const QTemporaryDir folder;
    ZrDataOptions options = optionsFor(folder.path());
    options.databaseName = QStringLiteral("other.db");
    QVERIFY(ZrDataStore::open(options));
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("other.db"))));
}

void TestDataStore::theSeedAloneTouchesNoFile()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const bool opened = ZrDataStore::openSeed();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(opened && ZrDataStore::isOpen());
    QVERIFY(QDir(folder.path()).isEmpty());
    QVERIFY(!text(Constants::LinkageType, QStringLiteral("1")).isEmpty());
}

void TestDataStore::aFolderThatCannotBeMadeIsAnError()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QString error;
    QVERIFY(!ZrDataStore::open(optionsFor(file.fileName() + QStringLiteral("/inside")), &error));
    QVERIFY(error.contains(file.fileName()));
    QVERIFY(!ZrDataStore::open(ZrDataOptions()));
    // A folder in the place of the database: neither readable nor replaceable.
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("zrdata.sqlite/full")));
    announceNewFile();
    QVERIFY(!ZrDataStore::open(optionsFor(folder.path()), &error));
    QVERIFY(error.contains(QStringLiteral("can't be put in its place")));
    QVERIFY(!ZrDataStore::isOpen());
}

void TestDataStore::anUnknownDriverIsAnErrorAndKeepsTheState()
{
    QVERIFY(ZrDataStore::openSeed());
    ZrDataOptions options;
    options.driver = QStringLiteral("QNOSUCHDRIVER");
    QString error;
    QVERIFY(!ZrDataStore::open(options, &error));
    QVERIFY(error.contains(options.driver));
    QVERIFY(ZrDataStore::isOpen());
    QVERIFY(!text(Constants::LinkageType, QStringLiteral("1")).isEmpty());
}

void TestDataStore::theLanguageChoosesTheTexts()
{
    QVERIFY(ZrDataStore::openSeed(QStringLiteral("en")));
    QCOMPARE(text(QStringLiteral("Side"), QStringLiteral("1")), QStringLiteral("Buy"));
    QVERIFY(ZrDataStore::openSeed(QStringLiteral("zh_CN")));
    QCOMPARE(text(QStringLiteral("Side"), QStringLiteral("1")), QStringLiteral("买入"));
}

void TestDataStore::everySectionOfTheSeedHasItsTexts_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::newRow("balance colour, dark")
        << QStringLiteral("DefaultMasterColorInfo") << QStringLiteral("banlanceColor_dark");
    QTest::newRow("balance colour, light")
        << QStringLiteral("DefaultMasterColorInfo") << QStringLiteral("banlanceColor_light");
    QTest::newRow("linkage") << Constants::LinkageType << QStringLiteral("5");
    QTest::newRow("market") << Vexlor_Fields::UserAccount::SymbolPost << QStringLiteral("SZ");
    for (const char *section : {"Side", "OrderType", "TimeInForce"})
        QTest::newRow(section) << QString::fromLatin1(section) << QStringLiteral("1");
    QTest::newRow("status") << QStringLiteral("OrderStatus") << QStringLiteral("8");
}

void TestDataStore::everySectionOfTheSeedHasItsTexts()
{
    QFETCH(QString, section);
    QFETCH(QString, key);
    QVERIFY(ZrDataStore::openSeed());
    QVERIFY(!text(section, key).isEmpty());
    QCOMPARE(CDataBase::GetInstance()->GetStaticValuesBySection(section).value(key), text(section, key));
    QVERIFY(text(section, QStringLiteral("no such key")).isEmpty());
}

void TestDataStore::partsCanBeReplaced()
{
    ZrDataStore::setSection(QStringLiteral("s"), {{QStringLiteral("k"), QStringLiteral("v")}});
    QVERIFY(ZrDataStore::isOpen());
    QCOMPARE(text(QStringLiteral("s"), QStringLiteral("k")), QStringLiteral("v"));
    const QString symbol = QStringLiteral("1.X");
    ZrDataStore::setSecurities({{{Vexlor_Fields::Security::symbol, symbol}}, {}});
    ZrDataStore::setAccounts({{{Vexlor_Fields::UserAccount::tradingAccount, QStringLiteral("t")}}});
    ZrDataStore::setLoginType(QStringLiteral("Risk"));
    const auto snapshot = ZrDataStore::snapshot();
    QVERIFY(snapshot->security(symbol));
    QVERIFY(snapshot->account(Vexlor_Fields::UserAccount::tradingAccount, QStringLiteral("t")));
    QVERIFY(!snapshot->account(QStringLiteral("no such field"), QStringLiteral("t")));
    QCOMPARE(snapshot->contents().loginType, QStringLiteral("Risk"));
    QCOMPARE(text(QStringLiteral("s"), QStringLiteral("k")), QStringLiteral("v"));
}

void TestDataStore::itOpensAndClosesManyTimes()
{
    const QTemporaryDir folder;
    for (int i = 0; i < 10; ++i) {
        QVERIFY(ZrDataStore::open(optionsFor(folder.path())));
        QVERIFY(ZrDataStore::isOpen());
        ZrDataStore::close();
        QVERIFY(!ZrDataStore::isOpen());
    }
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void TestDataStore::aSnapshotOutlivesTheStateItWasTakenFrom()
{
    QVERIFY(ZrDataStore::openSeed());
    const auto snapshot = ZrDataStore::snapshot();
    ZrDataStore::close();
    QVERIFY(snapshot->security(QStringLiteral("600001.SH")));
    QVERIFY(!ZrDataStore::snapshot()->security(QStringLiteral("600001.SH")));
}

ZR_TEST_GUILESS_MAIN(TestDataStore)
#include "tst_zrdatastore.moc"
