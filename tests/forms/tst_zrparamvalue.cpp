#include "FormScene.h"
#include "ZrParamValue.h"

#include <QtCore/QDate>

class tst_ZrParamValue : public QObject
{
    Q_OBJECT
private slots:
    void aValueTakesTheTypeOfItsRecord_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("truth") << Constants::VALUETYPE_BOOL << QVariant("true") << QVariant(true);
        QTest::newRow("zero is no truth") << Constants::VALUETYPE_BOOL << QVariant("0") << QVariant(false);
        QTest::newRow("date") << Constants::VALUETYPE_DATE << QVariant(QDate(2024, 2, 29))
                              << QVariant("2024-02-29");
        QTest::newRow("time") << Constants::VALUETYPE_TIME << QVariant("09:30:00") << QVariant("09:30:00");
        QTest::newRow("fraction") << Constants::VALUETYPE_DOUBLE << QVariant("12.5") << QVariant(12.5);
        QTest::newRow("no number") << Constants::VALUETYPE_DOUBLE << QVariant("x") << QVariant(0.0);
        QTest::newRow("whole") << Constants::VALUETYPE_INT << QVariant("7") << QVariant(7);
        QTest::newRow("whole beyond its type: as the toolkit wraps it")
            << Constants::VALUETYPE_INT << QVariant("9999999999") << QVariant(1410065407);
        QTest::newRow("large whole") << Constants::VALUETYPE_INT64 << QVariant("9999999999")
                                     << QVariant(Q_INT64_C(9999999999));
        QTest::newRow("text") << Constants::VALUETYPE_STRING << QVariant(7) << QVariant("7");
        QTest::newRow("unknown type") << "Colour" << QVariant(7) << QVariant(7);
        QTest::newRow("no type") << QString() << QVariant("7") << QVariant("7");
    }

    void aValueTakesTheTypeOfItsRecord()
    {
        QFETCH(QString, type);
        QFETCH(QVariant, value);
        QFETCH(QVariant, expected);
        const QVariantMap record = form::record("p", Constants::WIDGETTYPE_LINEEDIT, type);
        QCOMPARE(ZrParamValue::converted(record, value), expected);
        QCOMPARE(ZrParamValue::converted(record, value).userType(), expected.userType());
        QCOMPARE(ZrParamValue::convertedUnlessEmpty(record, value), expected);
    }

    void whatHasNoTextIsEmpty()
    {
        QVERIFY(ZrParamValue::isEmpty(QVariant()));
        QVERIFY(ZrParamValue::isEmpty(""));
        QVERIFY(ZrParamValue::isEmpty(QVariantList{1, 2}));
        QVERIFY(!ZrParamValue::isEmpty(" "));
        QVERIFY(!ZrParamValue::isEmpty(0));
        QVERIFY(!ZrParamValue::isEmpty(false));
    }

    void anEmptyValueStaysWhatItIs()
    {
        const QVariantMap record = form::record("p", Constants::WIDGETTYPE_SPINBOX, Constants::VALUETYPE_INT);
        QVERIFY(!ZrParamValue::convertedUnlessEmpty(record, QVariant()).isValid());
        QCOMPARE(ZrParamValue::convertedUnlessEmpty(record, QVariantList{1}), QVariant(QVariantList{1}));
        QCOMPARE(ZrParamValue::converted(record, QVariant()), QVariant(0));
    }
};

ZR_TEST_GUILESS_MAIN(tst_ZrParamValue)
#include "tst_zrparamvalue.moc"
