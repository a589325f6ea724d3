#include "FormScene.h"
#include "ZrParamCheck.h"

class TestParamCheck : public QObject
{
    Q_OBJECT
private slots:
    void theFirstFailedTestIsTold_data();
    void theFirstFailedTestIsTold();
    void aNameAloneIsTheStartOfTheSentence();
};

void TestParamCheck::theFirstFailedTestIsTold_data()
{
    QTest::addColumn<QVariantMap>("rules");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    const QVariantMap needed = {{Constants::STRATEGYPARAM_CANBEEMPTY, "0"}};
    const QVariantMap free = {{Constants::STRATEGYPARAM_CANBEEMPTY, "1"}};
    const QVariantMap most = {{Constants::STRATEGYPARAM_MAXVALUE, 100}};
    const QVariantMap below = {{Constants::STRATEGYPARAM_EXCLUSIVEMAXVALUE, 100.5}};
    const QVariantMap least = {{Constants::STRATEGYPARAM_MINVALUE, 1}};
    const QVariantMap above = {{Constants::STRATEGYPARAM_EXCLUSIVEMINVALUE, 0}};
    QTest::newRow("no rules") << QVariantMap() << QVariant() << "";
    QTest::newRow("required and given") << needed << QVariant("x") << "";
    QTest::newRow("required and empty") << needed << QVariant("") << "Qty不可为空！ ";
    QTest::newRow("required and invalid") << needed << QVariant() << "Qty不可为空！ ";
    QTest::newRow("required by a bool is not required")
        << QVariantMap{{Constants::STRATEGYPARAM_CANBEEMPTY, false}} << QVariant() << "";
    QTest::newRow("not required and empty") << free << QVariant() << "";
    QTest::newRow("at the greatest") << most << QVariant(100) << "";
    QTest::newRow("above the greatest") << most << QVariant(101) << "Qty不可大于100";
    QTest::newRow("text above the greatest") << most << QVariant("101") << "Qty不可大于100";
    QTest::newRow("just below the exclusive greatest") << below << QVariant(100.4) << "";
    QTest::newRow("at the exclusive greatest") << below << QVariant(100.5) << "Qty不可大于等于100.5";
    QTest::newRow("at the least") << least << QVariant(1) << "";
    QTest::newRow("below the least") << least << QVariant(0.9) << "Qty不可小于1";
    QTest::newRow("at the exclusive least") << above << QVariant(0) << "Qty不可小于等于0";
    QTest::newRow("above the exclusive least") << above << QVariant(0.001) << "";
    QTest::newRow("empty, where it may be, counts as zero")
        << form::joined(free, above) << QVariant() << "Qty不可小于等于0";
    QTest::newRow("no number counts as zero") << above << QVariant("abc") << "Qty不可小于等于0";
    QTest::newRow("required goes first") << form::joined(needed, least) << QVariant() << "Qty不可为空！ ";
    QTest::newRow("greatest before exclusive greatest")
        << form::joined(most, below) << QVariant(200) << "Qty不可大于100";
    QTest::newRow("exclusive greatest before least")
        << form::joined(below, {{Constants::STRATEGYPARAM_MINVALUE, 300}}) << QVariant(200)
        << "Qty不可大于等于100.5";
    QTest::newRow("least before exclusive least")
        << form::joined(least, above) << QVariant(-1) << "Qty不可小于1";
}

void TestParamCheck::theFirstFailedTestIsTold()
{
    QFETCH(QVariantMap, rules);
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    rules.insert(Constants::STRATEGYPARAM_PARAMNAME, "Qty");
    QCOMPARE(ZrParamCheck::fault(rules, value), expected);
}

void TestParamCheck::aNameAloneIsTheStartOfTheSentence()
{
    QCOMPARE(ZrParamCheck::emptyFault("成分"), QString("成分不可为空！ "));
}

ZR_TEST_MAIN(TestParamCheck)
#include "tst_zrparamcheck.moc"
