#include "PluginScene.h"
#include "ZrPluginMarks.h"
#include "ZrTestMain.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSysInfo>

/// Marks of plugins that are being tried, and what a process that ended left of them.
class tst_ZrPluginMarks : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void aMarkStandsWhileAPluginIsTried();
    void theInnermostIsNamedLast();
    void anObjectThatGoesTakesItsMarkAway();
    void aLivingProcessIsNotSuspected();
    void aProcessThatIsGoneNamesItsPlugin();
    void onlyTheInnermostIsSuspected();
    void aNumberUsedAgainIsAnotherProcess();
    void anotherMachinesMarkStays();
    void aBrokenMarkNamesNobody_data();
    void aBrokenMarkNamesNobody();
    void withoutAFolderNothingIsWritten();
    void aFolderThatCannotBeWrittenWarnsOnce();

private:
    QStringList files() const;
    QJsonObject ownMark() const;
    void put(const QJsonObject &mark) const;
    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {
const QString idA = QStringLiteral("A");
const QString idB = QStringLiteral("B");

QJsonObject markOf(const QStringList &plugins)
{
    return {{QStringLiteral("pid"), double(QCoreApplication::applicationPid())},
            {QStringLiteral("processStart"), QStringLiteral("1")}, // no process of ours is that old
            {QStringLiteral("machine"), QSysInfo::machineHostName()},
            {QStringLiteral("plugins"), QJsonArray::fromStringList(plugins)}};
}
} // namespace

void tst_ZrPluginMarks::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QStringList tst_ZrPluginMarks::files() const
{
    return QDir(m_folder->path()).entryList(QDir::Files);
}

QJsonObject tst_ZrPluginMarks::ownMark() const
{
    QFile file(
        m_folder->filePath(QStringLiteral("plugin-start-%1.json").arg(QCoreApplication::applicationPid())));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

void tst_ZrPluginMarks::put(const QJsonObject &mark) const
{
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("plugin-start-77.json")),
                               QJsonDocument(mark).toJson()));
}

void tst_ZrPluginMarks::aMarkStandsWhileAPluginIsTried()
{
    ZrPluginMarks marks(m_folder->path());
    QVERIFY(files().isEmpty());
    marks.begin(idA);
    QCOMPARE(ownMark().value(QStringLiteral("plugins")).toArray(), QJsonArray{idA});
    marks.end();
    QVERIFY(files().isEmpty());
    marks.end(); // one too many
    QVERIFY(files().isEmpty());
}

void tst_ZrPluginMarks::theInnermostIsNamedLast()
{
    ZrPluginMarks marks(m_folder->path());
    marks.begin(idA);
    marks.begin(idB);
    QCOMPARE(ownMark().value(QStringLiteral("plugins")).toArray(), (QJsonArray{idA, idB}));
    marks.end();
    QCOMPARE(ownMark().value(QStringLiteral("plugins")).toArray(), QJsonArray{idA});
}

void tst_ZrPluginMarks::anObjectThatGoesTakesItsMarkAway()
{
    {
        ZrPluginMarks marks(m_folder->path());
        marks.begin(idA);
        QCOMPARE(files().size(), 1);
    }
    QVERIFY(files().isEmpty());
}

void tst_ZrPluginMarks::aLivingProcessIsNotSuspected()
{
    ZrPluginMarks tries(m_folder->path());
    tries.begin(idA);
    const ZrPluginMarks looks(m_folder->path());
    QVERIFY(looks.takeLeft().isEmpty());
    QCOMPARE(files().size(), 1);
}

void tst_ZrPluginMarks::aProcessThatIsGoneNamesItsPlugin()
{
    QJsonObject mark = markOf({idA});
    mark.insert(QStringLiteral("pid"), 4194305); // beyond what the system counts to
    mark.insert(QStringLiteral("processStart"), QStringLiteral("12345"));
    put(mark);
    const ZrPluginMarks marks(m_folder->path());
    QCOMPARE(marks.takeLeft(), QStringList{idA});
    QVERIFY(files().isEmpty());
    QVERIFY(marks.takeLeft().isEmpty());
}

void tst_ZrPluginMarks::onlyTheInnermostIsSuspected()
{
    put(markOf({idA, idB}));
    QCOMPARE(ZrPluginMarks(m_folder->path()).takeLeft(), QStringList{idB});
}

void tst_ZrPluginMarks::aNumberUsedAgainIsAnotherProcess()
{
    put(markOf({idA})); // our own number, but another start
    QCOMPARE(ZrPluginMarks(m_folder->path()).takeLeft(), QStringList{idA});
}

void tst_ZrPluginMarks::anotherMachinesMarkStays()
{
    QJsonObject mark = markOf({idA});
    mark.insert(QStringLiteral("machine"), QStringLiteral("another"));
    put(mark);
    QVERIFY(ZrPluginMarks(m_folder->path()).takeLeft().isEmpty());
    QCOMPARE(files().size(), 1);
}

void tst_ZrPluginMarks::aBrokenMarkNamesNobody_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray(1000, '{');
    QTest::newRow("a list") << QByteArray("[1, 2]");
    QTest::newRow("plugins are no list") << QByteArray("{\"plugins\": \"A\"}");
    QTest::newRow("no plugin") << QByteArray("{\"plugins\": []}");
    QTest::newRow("a number as plugin") << QByteArray("{\"plugins\": [5]}");
    QTest::newRow("a very long ID") << "{\"plugins\": [\"" + QByteArray(5000, 'x') + "\"]}";
    QTest::newRow("more than any mark")
        << "{\"plugins\": [\"A\"]" + QByteArray(ZrPluginMarks::maxBytes, ' ') + "}";
}

void tst_ZrPluginMarks::aBrokenMarkNamesNobody()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("plugin-start-77.json")), bytes));
    QVERIFY(ZrPluginMarks(m_folder->path()).takeLeft().isEmpty());
    QVERIFY(files().isEmpty());
}

void tst_ZrPluginMarks::withoutAFolderNothingIsWritten()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    ZrPluginMarks marks{QString()};
    marks.begin(idA);
    const bool isEmpty = files().isEmpty();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isEmpty);
    QVERIFY(marks.takeLeft().isEmpty());
}

void tst_ZrPluginMarks::aFolderThatCannotBeWrittenWarnsOnce()
{
    QVERIFY(PluginScene::write(m_folder->filePath(QStringLiteral("file")), "x"));
    ZrPluginMarks marks(m_folder->filePath(QStringLiteral("file/folder")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^ZrPluginMarks::write ")));
    marks.begin(idA);
    marks.begin(idB);
    marks.end();
    marks.end();
}

ZR_TEST_GUILESS_MAIN(tst_ZrPluginMarks)
#include "tst_zrpluginmarks.moc"
