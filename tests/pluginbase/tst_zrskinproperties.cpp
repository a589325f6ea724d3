#include "FrameScene.h"
#include "ZrSkinProperties.h"
#include "ZrTestMain.h"

class TestZrSkinProperties : public QObject
{
    Q_OBJECT
private slots:
    void fileLiesInThePluginsFolder();
    void keysLoseTheirSlashes();
    void valuesAreTexts_data();
    void valuesAreTexts();
    void noFileNoProperties();
    void tooLargeAFileIsNotRead();
    void tooManyKeysAreCutOff();
    void damagedFilesAreSurvived();

private:
    ZrSkinProperties::List read(const QByteArray &bytes)
    {
        // A file of its own each time: one of the same size, written within the same tick of the file
        // system's clock, would be taken for the one before.
        const QString name = QStringLiteral("%1.ini").arg(++m_files);
        if (!scene.writeFile(name, bytes))
            qFatal("the file can't be written");
        return ZrSkinProperties::read(scene.folder(name));
    }
    FrameScene scene;
    int m_files = 0;
};

void TestZrSkinProperties::fileLiesInThePluginsFolder()
{
    QCOMPARE(ZrSkinProperties::fileName(QStringLiteral("dark"), QStringLiteral("plugins/orders")),
             QStringLiteral("ZRSkin:dark/plugins/orders/basesetting.ini"));
    QCOMPARE(ZrSkinProperties::fileName(QStringLiteral("%2"), QStringLiteral("%1")),
             QStringLiteral("ZRSkin:%2/%1/basesetting.ini"));
}

void TestZrSkinProperties::keysLoseTheirSlashes()
{
    const ZrSkinProperties::List expected{{QByteArrayLiteral("deepereven"), QStringLiteral("3")},
                                          {QByteArrayLiteral("plain"), QStringLiteral("1")},
                                          {QByteArrayLiteral("sizewidth"), QStringLiteral("20")}};
    ZrSkinProperties::List found = read("plain=1\n[size]\nwidth=20\n[deeper]\neven=3\n");
    std::sort(found.begin(), found.end());
    QCOMPARE(found, expected);
}

void TestZrSkinProperties::valuesAreTexts_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("expected");
    QTest::newRow("number") << QByteArray("a=12") << QStringLiteral("12");
    QTest::newRow("nothing") << QByteArray("a=") << QString();
    QTest::newRow("UTF-8") << QByteArray("a=委托") << QString::fromUtf8("委托");
    QTest::newRow("quoted") << QByteArray("a=\"b, c\"") << QStringLiteral("b, c");
    QTest::newRow("a list is no text") << QByteArray("a=b, c") << QString();
}

void TestZrSkinProperties::valuesAreTexts()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, expected);
    const ZrSkinProperties::List found = read(line + '\n');
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.constFirst().first, QByteArrayLiteral("a"));
    QCOMPARE(found.constFirst().second, expected);
}

void TestZrSkinProperties::noFileNoProperties()
{
    QVERIFY(ZrSkinProperties::read(scene.folder(QStringLiteral("none.ini"))).isEmpty());
    QVERIFY(ZrSkinProperties::read(scene.folder(QString())).isEmpty());
    QVERIFY(read("").isEmpty());
}

void TestZrSkinProperties::tooLargeAFileIsNotRead()
{
    const QByteArray line = "a=1\n";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is too large: 262145")));
    QVERIFY(read(line + QByteArray(ZrSkinProperties::maxBytes + 1 - line.size(), ';')).isEmpty());
    QCOMPARE(read(line + QByteArray(ZrSkinProperties::maxBytes - line.size(), ';')).size(), 1);
}

void TestZrSkinProperties::tooManyKeysAreCutOff()
{
    QByteArray text;
    for (int key = 0; key < ZrSkinProperties::maxKeys + 1; ++key)
        text += 'k' + QByteArray::number(key) + "=1\n";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("has too many keys: 1001")));
    QCOMPARE(read(text).size(), ZrSkinProperties::maxKeys);
}

void TestZrSkinProperties::damagedFilesAreSurvived()
{
    const QByteArray whole = "[size]\nwidth=20\nname=\"a\\x4e2d\"\n[x%20y]\nz=@Rect(1 2 3 4)\n";
    quint32 seed = 4;
    for (int round = 0; round < 300; ++round) {
        QByteArray text = whole;
        for (int change = 0; change < 3; ++change) {
            seed = seed * 1664525u + 1013904223u;
            text[int((seed >> 8) % quint32(text.size()))] = char(seed >> 20);
        }
        QVERIFY(read(text).size() <= text.count('\n') + text.count('\r') + 1);
    }
}

ZR_TEST_MAIN(TestZrSkinProperties)
#include "tst_zrskinproperties.moc"
