#include "ComboScene.h"
#include "ZrElidedLine.h"

class tst_ZrElidedLine : public QObject
{
    Q_OBJECT
private slots:
    void aTextThatFitsStays()
    {
        QCOMPARE(ZrElidedLine::of(QStringLiteral("600000.SH"), metrics(), 500), QStringLiteral("600000.SH"));
        QCOMPARE(ZrElidedLine::of(QString(), metrics(), 500), QString());
    }

    void ampersandsAreDoubled()
    {
        QCOMPARE(ZrElidedLine::of(QStringLiteral("A&B"), metrics(), 500), QStringLiteral("A&&B"));
    }

    void theRestEndsInAnEllipsis_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a little too long") << QString(40, QLatin1Char('x'));
        QTest::newRow("100,000 letters") << QString(100000, QLatin1Char('x'));
        QTest::newRow("100,000 thin letters") << QString(100000, QLatin1Char('.'));
    }

    void theRestEndsInAnEllipsis()
    {
        QFETCH(QString, text);
        const QString line = ZrElidedLine::of(text, metrics(), 100);
        QVERIFY(line.endsWith(QChar(0x2026)));
        QVERIFY(metrics().horizontalAdvance(line) <= 100);
        QVERIFY(metrics().horizontalAdvance(line) > 70);
    }

    void thereMayBeNoRoomAtAll()
    {
        QVERIFY(ZrElidedLine::of(QStringLiteral("long text"), metrics(), 0).size() <= 1);
        QVERIFY(ZrElidedLine::of(QStringLiteral("long text"), metrics(), -5).size() <= 1);
    }

private:
    static QFontMetrics metrics() { return QFontMetrics(QApplication::font()); }
};

ZR_TEST_MAIN(tst_ZrElidedLine)
#include "tst_zrelidedline.moc"
