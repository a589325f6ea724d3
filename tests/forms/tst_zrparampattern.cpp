#include "FormScene.h"
#include "ZrParamLink.h"
#include "ZrParamPattern.h"

namespace {
QVariantMap line(const QString &type, const QVariantMap &more = QVariantMap())
{
    return form::record("p", Constants::WIDGETTYPE_LINEEDIT, type, more);
}

QVariantMap linked(const QVariantMap &more)
{
    return form::link("side", {form::linkCase("buy", more)});
}

QVariantMap own(const QString &pattern)
{
    return {{Constants::STRATEGYPARAM_REGEXPVALIDATOR, pattern}};
}

QVariantMap precision(int digits)
{
    return {{Constants::STRATEGYPARAM_PRECISION, digits}};
}
} // namespace

class tst_ZrParamPattern : public QObject
{
    Q_OBJECT
private slots:
    void aNewEditorHasThePatternOfItsRecord_data()
    {
        QTest::addColumn<QVariantMap>("record");
        QTest::addColumn<QString>("expected");
        const QString decimal = "10000000000000|([0-9]{1,19}[.]{0,1}[0-9]{0,%1})";
        QTest::newRow("int") << line(Constants::VALUETYPE_INT) << "[0-9]{1,10}";
        QTest::newRow("int64") << line(Constants::VALUETYPE_INT64) << "[0-9]{1,19}";
        QTest::newRow("double") << line(Constants::VALUETYPE_DOUBLE) << "-?[0-9]+.[0-9]+";
        QTest::newRow("double with a precision")
            << line(Constants::VALUETYPE_DOUBLE, precision(2)) << decimal.arg(2);
        QTest::newRow("precision of a whole number has no say")
            << line(Constants::VALUETYPE_INT, precision(2)) << "[0-9]{1,10}";
        QTest::newRow("double, linked, case with a precision")
            << form::joined(line(Constants::VALUETYPE_DOUBLE), linked(precision(3))) << decimal.arg(3);
        QTest::newRow("double, linked, case without")
            << form::joined(line(Constants::VALUETYPE_DOUBLE), linked({})) << decimal.arg(0);
        QTest::newRow("double, linked: its own precision has no say")
            << form::joined(line(Constants::VALUETYPE_DOUBLE, precision(2)), linked({})) << decimal.arg(0);
        QTest::newRow("text") << line(Constants::VALUETYPE_STRING) << "";
        QTest::newRow("date") << line(Constants::VALUETYPE_DATE) << "";
        QTest::newRow("no type") << line(QString()) << "";
        QTest::newRow("own pattern") << line(Constants::VALUETYPE_INT, own("[ab]+")) << "[ab]+";
        QTest::newRow("empty own pattern") << line(Constants::VALUETYPE_INT, own("")) << "";
        QTest::newRow("own pattern, case with another")
            << form::joined(line(Constants::VALUETYPE_INT, own("[ab]+")), linked(own("[cd]+"))) << "[cd]+";
        QTest::newRow("own pattern, case with an empty one")
            << form::joined(line(Constants::VALUETYPE_INT, own("[ab]+")), linked(own(""))) << "";
        QTest::newRow("own pattern, case without one")
            << form::joined(line(Constants::VALUETYPE_INT, own("[ab]+")), linked(precision(1))) << "[ab]+";
        QTest::newRow("the case alone has a pattern")
            << form::joined(line(Constants::VALUETYPE_INT), linked(own("[cd]+"))) << "[0-9]{1,10}";
    }

    void aNewEditorHasThePatternOfItsRecord()
    {
        QFETCH(QVariantMap, record);
        QFETCH(QString, expected);
        QCOMPARE(ZrParamPattern::ofNew(record, ZrParamLink(record, "buy")), expected);
    }

    void withoutAMatchingCaseTheRecordStands()
    {
        const QVariantMap record =
            form::joined(line(Constants::VALUETYPE_INT, own("[ab]+")), linked(own("[cd]+")));
        QCOMPARE(ZrParamPattern::ofNew(record, ZrParamLink(record, "sell")), QString("[ab]+"));
    }

    void aChangedEditorTakesThePatternOfTheCase_data()
    {
        QTest::addColumn<QVariantMap>("inCase");
        QTest::addColumn<QString>("expected");
        const QString decimal = "10000000000000|([0-9]{1,13}[.]{0,1}[0-9]{0,%1})";
        QTest::newRow("precision") << precision(2) << decimal.arg(2);
        QTest::newRow("pattern") << own("[cd]+") << "[cd]+";
        QTest::newRow("precision goes before a pattern")
            << form::joined(precision(0), own("[cd]+")) << decimal.arg(0);
        QTest::newRow("empty pattern") << own("") << "";
        QTest::newRow("neither") << QVariantMap() << "";
    }

    void aChangedEditorTakesThePatternOfTheCase()
    {
        QFETCH(QVariantMap, inCase);
        QFETCH(QString, expected);
        const QVariantMap record = form::joined(line(Constants::VALUETYPE_DOUBLE, own("x")), linked(inCase));
        QCOMPARE(ZrParamPattern::ofChanged(ZrParamLink(record, "buy")), expected);
        QCOMPARE(ZrParamPattern::ofChanged(ZrParamLink(record, "sell")), QString());
    }
};

ZR_TEST_GUILESS_MAIN(tst_ZrParamPattern)
#include "tst_zrparampattern.moc"
