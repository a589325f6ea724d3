#include "CheckBoxInMultiBox.h"
#include "ZrTestMain.h"
#include "ZrTickedTexts.h"

#include <QtTest/QtTest>

#include <memory>

class tst_ZrTickedTexts : public QObject
{
    Q_OBJECT
private slots:
    void tickedRowsAreJoinedInTheirOrder();
    void anEmptyTextCounts();
    void aTickThatNobodyToldIsSeen();
    void aBoxThatEndedIsNotTicked();
    void clearForgetsAll();
};

void tst_ZrTickedTexts::tickedRowsAreJoinedInTheirOrder()
{
    CheckBoxInMultiBox a, b, c;
    ZrTickedTexts texts;
    texts.append("one", &a);
    texts.append("two", &b);
    texts.append("three", &c);
    QCOMPARE(texts.rowCount(), 3);
    QCOMPARE(texts.joined(';').text, QString());
    c.setChecked(true);
    a.setChecked(true);
    QCOMPARE(texts.joined(';').text, QString("one;three"));
    QCOMPARE(texts.joined(';').count, 2);
    b.setCheckState(Qt::PartiallyChecked);
    QCOMPARE(texts.joined('|').text, QString("one|two|three"));
}

void tst_ZrTickedTexts::anEmptyTextCounts()
{
    CheckBoxInMultiBox a, b;
    a.setChecked(true);
    ZrTickedTexts texts;
    texts.append(QString(), &a);
    QCOMPARE(texts.joined(';').count, 1);
    QCOMPARE(texts.joined(';').text, QString());
    b.setChecked(true);
    texts.append("b", &b);
    QCOMPARE(texts.joined(';').text, QString(";b"));
}

void tst_ZrTickedTexts::aTickThatNobodyToldIsSeen()
{
    CheckBoxInMultiBox a;
    ZrTickedTexts texts;
    texts.append("one", &a);
    const QSignalBlocker blocker(&a);
    a.setCheckState(Qt::Checked);
    QCOMPARE(texts.joined(';').text, QString("one"));
}

void tst_ZrTickedTexts::aBoxThatEndedIsNotTicked()
{
    auto a = std::make_unique<CheckBoxInMultiBox>();
    a->setChecked(true);
    ZrTickedTexts texts;
    texts.append("one", a.get());
    texts.append("none", nullptr);
    a.reset();
    QCOMPARE(texts.joined(';').count, 0);
}

void tst_ZrTickedTexts::clearForgetsAll()
{
    CheckBoxInMultiBox a;
    a.setChecked(true);
    ZrTickedTexts texts;
    texts.append("one", &a);
    texts.clear();
    QCOMPARE(texts.rowCount(), 0);
    QCOMPARE(texts.joined(';').count, 0);
    texts.append("two", &a);
    QCOMPARE(texts.joined(';').text, QString("two"));
}

ZR_TEST_MAIN(tst_ZrTickedTexts)
#include "tst_zrtickedtexts.moc"
