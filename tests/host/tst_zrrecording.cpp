#include "HostScene.h"
#include "ZrTestMain.h"

#include "zrbase/ZrRecording.h"
#include "zrbase/ZrValueCodec.h"

#include <QtCore/QRandomGenerator>

/// Recordings of bus traffic: what they hold, that they play, and what damage does to them.
class tst_ZrRecording : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void valuesComeBackAsTheyWere();
    void otherTypesComeBackAsText();
    void deepNestingEndsAtTheBound();
    void replayBringsAllButTheRequests();
    void replayKeepsItsTimesAndSpeed();
    void replayGoesThroughTheFaults();
    void theFileAppearsWhenItIsWhole();
    void aRunningRecordingEndsWithTheHost();
    void onlyOneRecordingRuns();
    void badFilesGiveOneSentence_data();
    void badFilesGiveOneSentence();
    void aCutFilePlaysWhatIsGood();
    void randomDamageNeverCrashes();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString record(int count);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
};

void tst_ZrRecording::init()
{
    QVERIFY(m_host.start(ZrReferenceHost::Options()));
}

void tst_ZrRecording::cleanup()
{
    m_host.stop();
}

void tst_ZrRecording::valuesComeBackAsTheyWere()
{
    const QVariantMap map{
        {QStringLiteral("nothing"), QVariant()},
        {QStringLiteral("bool"), true},
        {QStringLiteral("int"), -5},
        {QStringLiteral("uint"), 5u},
        {QStringLiteral("long"), qlonglong(1) << 60},
        {QStringLiteral("ulong"), qulonglong(1) << 63},
        {QStringLiteral("double"), 10.01},
        {QStringLiteral("text"), QStringLiteral("\u4e2d\u6587")},
        {QStringLiteral("bytes"), QByteArray("a\0b", 3)},
        {QStringLiteral("date"), QDate(2023, 2, 1)},
        {QStringLiteral("time"), QTime(9, 30, 0, 7)},
        {QStringLiteral("moment"), QDateTime(QDate(2023, 2, 1), QTime(9, 30))},
        {QStringLiteral("texts"), QStringList{QStringLiteral("a"), QString()}},
        {QStringLiteral("list"), QVariantList{1, QVariantMap{{QStringLiteral("k"), 2.5}}, QVariantList()}},
    };
    QVariant back;
    QVERIFY(ZrValueCodec::read(ZrValueCodec::write(map), &back));
    QCOMPARE(back.userType(), int(QMetaType::QVariantMap));
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        QCOMPARE(back.toMap().value(it.key()), it.value());
        QCOMPARE(back.toMap().value(it.key()).userType(), it.value().userType());
    }
}

void tst_ZrRecording::otherTypesComeBackAsText()
{
    QVariant back;
    QVERIFY(ZrValueCodec::read(ZrValueCodec::write(QChar(u'x')), &back));
    QCOMPARE(back, QVariant(QStringLiteral("x")));
}

void tst_ZrRecording::deepNestingEndsAtTheBound()
{
    QVariant deep = 1;
    for (int n = 0; n < 1000; ++n)
        deep = QVariantList{deep};
    QVariant back;
    QVERIFY(ZrValueCodec::read(ZrValueCodec::write(deep), &back));
    // The same by hand, beyond the bound: a reader that recursed with it would run out of stack.
    QByteArray hostile;
    for (int n = 0; n < 1000 * 1000; ++n)
        hostile.append(QByteArray("\x0c\0\0\0\1", 5));
    QVERIFY(!ZrValueCodec::read(hostile, &back));
}

/// A recording of that many published messages, one request and its answer, one quotation and one event.
QString tst_ZrRecording::record(int count)
{
    const QString file = path("traffic.rec");
    m_host.registerService(QStringLiteral("Ask"), echoService(QStringLiteral("Answer")));
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    if (!m_host.startRecording(file))
        return QString();
    for (int n = 0; n < count; ++n)
        m_host.publish(QStringLiteral("Tick"), {numbered(n)});
    listener.Put(listener.pid, requestOf(QStringLiteral("Ask"), 1000));
    m_host.waitIdle(longMs);
    m_host.publishQuotation(QStringLiteral("Tick"), {numbered(1001)});
    m_host.publishEvent(5, numbered(1002));
    m_host.waitIdle(longMs);
    return m_host.stopRecording() ? file : QString();
}

void tst_ZrRecording::replayBringsAllButTheRequests()
{
    const QString file = record(3);
    QVERIFY2(!file.isEmpty(), qPrintable(m_host.errorText()));
    Listener listener(QStringLiteral("listener"));
    listener.subscribe(QStringLiteral("Tick"));
    listener.SubEvent(listener.pid, 5, 1);
    QVERIFY(m_host.startReplay(file, 0));
    QVERIFY(m_host.waitReplay(longMs));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(m_host.replayErrorText(), QString());
    QCOMPARE(m_host.replayedCount(), 6);
    QCOMPARE(listener.numbers(), (QVector<int>{0, 1, 2, 1000, 1001, 1002}));
    QString receivers;
    for (const Heard &one : listener.heard())
        receivers.append(one.receiver);
    QCOMPARE(receivers, QStringLiteral("MMMMQE"));
    QCOMPARE(listener.heard().at(3).type, QStringLiteral("Answer"));
}

void tst_ZrRecording::replayKeepsItsTimesAndSpeed()
{
    const QString file = path("slow.rec");
    ZrRecordingWriter writer;
    QString errorText;
    QVERIFY(writer.open(file, &errorText));
    for (int n = 0; n < 3; ++n) {
        const ZrBusItem item{ZrBusKind::Message, QString(), QString(), QStringLiteral("Tick"),
                             QVariantList{numbered(n)}};
        writer.append(ZrRecordingEntry{n * 100 * 1000, false, item});
    }
    QVERIFY(writer.finish(&errorText));
    QElapsedTimer clock;
    clock.start();
    QVERIFY(m_host.startReplay(file, 2));
    QVERIFY(m_host.waitReplay(longMs));
    QVERIFY(clock.elapsed() >= 100); // 200 ms at double speed
    // Stopped before its end: at this speed it would take days.
    QVERIFY(m_host.startReplay(file, 1e-6));
    QVERIFY(!m_host.waitReplay(1));
    clock.start();
    m_host.stop();
    QVERIFY(clock.elapsed() < longMs);
}

void tst_ZrRecording::replayGoesThroughTheFaults()
{
    const QString file = record(10);
    QVERIFY(m_host.setFaults(QStringLiteral("drop=1")));
    QVERIFY(m_host.startReplay(file, 0));
    QVERIFY(m_host.waitReplay(longMs));
    QVERIFY(m_host.waitIdle(longMs));
    QCOMPARE(m_host.counters().dropped, 13);
}

void tst_ZrRecording::theFileAppearsWhenItIsWhole()
{
    const QString file = path("whole.rec");
    QVERIFY(m_host.startRecording(file));
    m_host.publish(QStringLiteral("Tick"), {numbered(1)});
    QVERIFY(!QFile::exists(file));
    QVERIFY(m_host.stopRecording());
    QVERIFY(QFile::exists(file));
    QVERIFY(m_host.stopRecording()); // none runs: no error
}

void tst_ZrRecording::aRunningRecordingEndsWithTheHost()
{
    const QString file = path("ended.rec");
    QVERIFY(m_host.startRecording(file));
    m_host.stop();
    QVERIFY(QFile::exists(file));
}

void tst_ZrRecording::onlyOneRecordingRuns()
{
    QVERIFY(m_host.startRecording(path("first.rec")));
    QVERIFY(!m_host.startRecording(path("second.rec")));
    QCOMPARE(m_host.errorText(), QStringLiteral("A recording runs already."));
    QVERIFY(m_host.stopRecording());
    QVERIFY(!m_host.startRecording(path("no such folder/x.rec")));
    QVERIFY(m_host.errorText().startsWith(QLatin1String("Can't record to")));
}

void tst_ZrRecording::badFilesGiveOneSentence_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("it is no recording");
    QTest::newRow("something else") << QByteArray("<html>this is no recording</html>")
                                    << QStringLiteral("it is no recording");
    QTest::newRow("a later version") << QByteArray("ZrBs\0\x63", 6)
                                     << QStringLiteral("its version 99 is unknown");
    QTest::newRow("no end") << QByteArray("ZrBs\0\1", 6) << QStringLiteral("it ends early");
    QTest::newRow("a huge entry") << QByteArray("ZrBs\0\1\xff\xff\xff\xff", 10)
                                  << QStringLiteral("the entry at byte 6 is longer than the file");
    QTest::newRow("an entry of nonsense")
        << QByteArray("ZrBs\0\1\0\0\0\3abc", 13) << QStringLiteral("the entry at byte 6 is damaged");
    QTest::newRow("an entry of no fields")
        << QByteArray("ZrBs\0\1\0\0\0\5\x0c\0\0\0\0", 15) << QStringLiteral("the entry at byte 6 is damaged");
}

void tst_ZrRecording::badFilesGiveOneSentence()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    const QString name = path("bad.rec");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    const QString sentence = QStringLiteral("Can't replay \"%1\": %2.").arg(name, expected);
    ZrRecordingReader reader;
    ZrRecordingEntry entry;
    QVERIFY(!reader.open(name) || !reader.next(&entry));
    QCOMPARE(reader.errorText(), sentence);
    QVERIFY(!reader.next(&entry));

    if (!m_host.startReplay(name, 0)) {
        QCOMPARE(m_host.errorText(), sentence);
        return;
    }
    QVERIFY(m_host.waitReplay(longMs));
    QCOMPARE(m_host.replayErrorText(), sentence);
}

void tst_ZrRecording::aCutFilePlaysWhatIsGood()
{
    const QString name = record(5);
    QFile file(name);
    QVERIFY(file.resize(file.size() - 6));
    QVERIFY(m_host.startReplay(name, 0));
    QVERIFY(m_host.waitReplay(longMs));
    QCOMPARE(m_host.replayedCount(), 7);
    QVERIFY(m_host.replayErrorText().contains(QLatin1String("is longer than the file")));
}

void tst_ZrRecording::randomDamageNeverCrashes()
{
    const QString name = record(20);
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray good = file.readAll();
    file.close();
    QRandomGenerator dice(11);
    for (int round = 0; round < 2000; ++round) {
        QByteArray bad = good;
        for (int n = 0; n < 4; ++n)
            bad[dice.bounded(bad.size())] = static_cast<char>(dice.bounded(256));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bad);
        file.close();
        ZrRecordingReader reader;
        ZrRecordingEntry entry;
        int read = 0;
        for (bool ok = reader.open(name); ok && reader.next(&entry);)
            ++read;
        QVERIFY(read <= 24);
    }
}

ZR_TEST_GUILESS_MAIN(tst_ZrRecording)
#include "tst_zrrecording.moc"
