#include "ZrTestMain.h"
#include "ZrWidestText.h"

#include <random>

namespace {
int plainScan(const QVector<QString> &texts)
{
    const QFontMetrics metrics{QFont()};
    int widest = 0;
    for (const QString &text : texts)
        widest = qMax(widest, metrics.horizontalAdvance(text));
    return widest;
}

int widest(const QVector<QString> &texts)
{
    return ZrWidestText(QFontMetrics(QFont())).widthPx(texts);
}
} // namespace

class tst_ZrWidestText : public QObject
{
    Q_OBJECT
private slots:
    void fewTextsAreMeasured_data();
    void fewTextsAreMeasured();
    void amongManyTheWidestIsFound_data();
    void amongManyTheWidestIsFound();
    void hostileTextIsCutBeforeItIsMeasured();
};

void tst_ZrWidestText::fewTextsAreMeasured_data()
{
    QTest::addColumn<QVector<QString>>("texts");
    QTest::newRow("none") << QVector<QString>();
    QTest::newRow("empty") << QVector<QString>{QString()};
    QTest::newRow("wide letters beat many narrow ones") << QVector<QString>{"WWWWW", "iiiiiii"};
    QTest::newRow("Chinese") << QVector<QString>{"ICBC", QString::fromUtf8("工商银行")};
    QTest::newRow("beyond the basic characters")
        << QVector<QString>{"ab", QString::fromUtf8("\xf0\x9f\x98\x80\xf0\x9f\x98\x80")};
}

void tst_ZrWidestText::fewTextsAreMeasured()
{
    QFETCH(QVector<QString>, texts);
    QCOMPARE(widest(texts), plainScan(texts));
}

void tst_ZrWidestText::amongManyTheWidestIsFound_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("as many as are measured") << ZrWidestText::MeasuredMost;
    QTest::newRow("one more") << ZrWidestText::MeasuredMost + 1;
    QTest::newRow("thousands") << 5000;
}

void tst_ZrWidestText::amongManyTheWidestIsFound()
{
    QFETCH(int, count);
    std::mt19937 random(11);
    QVector<QString> texts;
    for (int i = 0; i < count; ++i) {
        QString text;
        const int length = 3 + int(random() % 12);
        for (int j = 0; j < length; ++j)
            text.append(QChar(ushort(random() % 8 == 0 ? 0x4e00 + random() % 2000 : 'A' + random() % 58)));
        texts.append(text);
    }
    // Joining characters may take a pixel here and there; all of the widest are measured all the same.
    QVERIFY(qAbs(widest(texts) - plainScan(texts)) <= 2);
    texts[count / 2] = QString(60, QLatin1Char('M'));
    QCOMPARE(widest(texts), plainScan(texts));
}

void tst_ZrWidestText::hostileTextIsCutBeforeItIsMeasured()
{
    const QFontMetrics metrics{QFont()};
    const QVector<QString> texts{QString(1000 * 1000, QLatin1Char('W'))};
    QCOMPARE(widest(texts),
             metrics.horizontalAdvance(QString(ZrWidestText::CharactersMost, QLatin1Char('W'))));
}

ZR_TEST_MAIN(tst_ZrWidestText)
#include "tst_zrwidesttext.moc"
