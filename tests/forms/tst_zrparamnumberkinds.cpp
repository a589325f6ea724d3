#include "FormScene.h"
#include "ZrParamDateTimeKind.h"
#include "ZrParamLink.h"
#include "ZrParamSpinKind.h"
#include "ZrParamTimeKind.h"

#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSpinBox>

namespace {
template<typename Widget>
Widget *make(const ZrParamKind &kind, QWidget *parent, const QVariantMap &record)
{
    return qobject_cast<Widget *>(kind.make(record, parent, ZrParamLink(record, QString())));
}

QVariantMap spin(const QString &type, const QVariantMap &more = QVariantMap())
{
    return form::record("p", Constants::WIDGETTYPE_SPINBOX, type, more);
}
} // namespace

class tst_ZrParamNumberKinds : public QObject
{
    Q_OBJECT
private slots:
    void aWholeNumberHasItsRange_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariantMap>("more");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");
        QTest::addColumn<int>("value");
        const QVariantMap least{{Constants::STRATEGYPARAM_MINVALUE, "10"}};
        const QVariantMap most{{Constants::STRATEGYPARAM_MAXVALUE, 20}};
        const QVariantMap init{{Constants::STRATEGYPARAM_INIT, "15"}};
        const QString small = Constants::VALUETYPE_INT, large = Constants::VALUETYPE_INT64;
        QTest::newRow("none told") << small << QVariantMap() << 0 << 0xFFFFFFF << 0;
        QTest::newRow("least") << small << least << 10 << 0xFFFFFFF << 10;
        QTest::newRow("most") << small << most << 0 << 20 << 0;
        QTest::newRow("both and a first value")
            << small << form::joined(form::joined(least, most), init) << 10 << 20 << 15;
        QTest::newRow("first value beyond the range")
            << small << form::joined(most, {{Constants::STRATEGYPARAM_INIT, 21}}) << 0 << 20 << 20;
        QTest::newRow("64 bits, none told: stuck") << large << QVariantMap() << -1 << -1 << -1;
        QTest::newRow("64 bits, first value only: stuck") << large << init << -1 << -1 << -1;
        QTest::newRow("64 bits, least only: stuck there") << large << least << 10 << 10 << 10;
        QTest::newRow("64 bits, most") << large << form::joined(most, init) << -1 << 20 << 15;
        QTest::newRow("64 bits, both")
            << large << form::joined(form::joined(least, most), init) << 10 << 20 << 15;
    }

    void aWholeNumberHasItsRange()
    {
        QFETCH(QString, type);
        QFETCH(QVariantMap, more);
        QFETCH(int, least);
        QFETCH(int, most);
        QFETCH(int, value);
        QWidget window;
        auto *const box = make<QSpinBox>(m_spin, &window, spin(type, more));
        QVERIFY(box);
        QCOMPARE(box->minimum(), least);
        QCOMPARE(box->maximum(), most);
        QCOMPARE(box->value(), value);
        QCOMPARE(m_spin.read(box, Qt::DisplayRole), QVariant(value));
        QCOMPARE(m_spin.read(box, Qt::UserRole).userType(), int(QMetaType::Int));
    }

    void aStepIsTaken()
    {
        QWidget window;
        auto *const box = make<QSpinBox>(
            m_spin, &window, spin(Constants::VALUETYPE_INT, {{Constants::STRATEGYPARAM_STEP, 100}}));
        box->stepUp();
        QCOMPARE(box->value(), 100);
    }

    void aFractionHasItsRange()
    {
        QWidget window;
        auto *const plain = make<QDoubleSpinBox>(m_spin, &window, spin(Constants::VALUETYPE_DOUBLE));
        QCOMPARE(plain->minimum(), 0.0);
        QCOMPARE(plain->maximum(), 1152921504606846976.0);
        auto *const bounded = make<QDoubleSpinBox>(
            m_spin, &window,
            spin(Constants::VALUETYPE_DOUBLE, {{Constants::STRATEGYPARAM_MINVALUE, -1.5},
                                               {Constants::STRATEGYPARAM_MAXVALUE, "2.5"},
                                               {Constants::STRATEGYPARAM_STEP, 0.5},
                                               {Constants::STRATEGYPARAM_INIT, 0.7}}));
        QCOMPARE(bounded->minimum(), -1.5);
        QCOMPARE(bounded->maximum(), 2.5);
        QCOMPARE(bounded->singleStep(), 0.5);
        QCOMPARE(bounded->value(), 0.7);
        QCOMPARE(m_spin.read(bounded, Qt::UserRole), QVariant(0.7));
    }

    void theStepTellsTheDecimals_data()
    {
        QTest::addColumn<QVariantMap>("more");
        QTest::addColumn<int>("expected");
        const auto step = [](double value) { return QVariantMap{{Constants::STRATEGYPARAM_STEP, value}}; };
        QTest::newRow("none") << QVariantMap() << 2;
        QTest::newRow("1") << step(1) << 2;
        QTest::newRow("10") << step(10) << 2;
        QTest::newRow("0.1") << step(0.1) << 1;
        QTest::newRow("0.01") << step(0.01) << 2;
        QTest::newRow("0.25") << step(0.25) << 1;
        QTest::newRow("0.0001") << step(0.0001) << 4;
        QTest::newRow("0") << step(0) << 2;
        QTest::newRow("negative") << step(-0.001) << 2;
        QTest::newRow("too small for any") << step(1e-200) << 2;
    }

    void theStepTellsTheDecimals()
    {
        QFETCH(QVariantMap, more);
        QFETCH(int, expected);
        QWidget window;
        QCOMPARE(make<QDoubleSpinBox>(m_spin, &window, spin(Constants::VALUETYPE_DOUBLE, more))->decimals(),
                 expected);
    }

    void boundsKeepTheDecimalsOfTheStep()
    {
        QWidget window;
        auto *const box = make<QDoubleSpinBox>(
            m_spin, &window,
            spin(Constants::VALUETYPE_DOUBLE, {{Constants::STRATEGYPARAM_MINVALUE, 0.001},
                                               {Constants::STRATEGYPARAM_STEP, 0.001},
                                               {Constants::STRATEGYPARAM_INIT, 0.002}}));
        QCOMPARE(box->minimum(), 0.001);
        QCOMPARE(box->value(), 0.002);
    }

    void otherTypesMakeNoSpinBox()
    {
        QWidget window;
        for (const QString &type :
             {Constants::VALUETYPE_STRING, Constants::VALUETYPE_BOOL, Constants::VALUETYPE_TIME, QString()})
            QVERIFY(!make<QWidget>(m_spin, &window, spin(type)));
        QVERIFY(window.children().isEmpty());
    }

    void aLockedSpinBoxShowsItsValue()
    {
        QSpinBox whole;
        m_spin.write(&whole, "7", true);
        QCOMPARE(whole.value(), 7);
        QVERIFY(!whole.isReadOnly());
        m_spin.write(&whole, 8, false);
        QCOMPARE(whole.value(), 8);
        QVERIFY(whole.isReadOnly());
        QDoubleSpinBox fraction;
        m_spin.write(&fraction, "7.25", false);
        QCOMPARE(fraction.value(), 7.25);
        QVERIFY(fraction.isReadOnly());
    }

    void aTimeIsItsText()
    {
        const QVariantMap record =
            form::record("p", Constants::WIDGETTYPE_TIMEEDIT, Constants::VALUETYPE_TIME,
                         {{Constants::STRATEGYPARAM_INIT, "09:30:05"}});
        QWidget window;
        auto *const edit = make<QTimeEdit>(m_time, &window, record);
        QCOMPARE(edit->displayFormat(), QString("hh:mm:ss"));
        QCOMPARE(edit->time(), QTime(9, 30, 5));
        QCOMPARE(m_time.read(edit, Qt::UserRole), QVariant("09:30:05"));
        m_time.write(edit, "14:57:00", false);
        QCOMPARE(m_time.read(edit, Qt::DisplayRole), QVariant("14:57:00"));
        QVERIFY(edit->isReadOnly());
        m_time.write(edit, "soon", true);
        QCOMPARE(edit->time(), QTime(14, 57));
    }

    void aDateWithItsTimeIsItsText()
    {
        const QVariantMap record =
            form::record("p", Constants::WIDGETTYPE_DATETIME, Constants::VALUETYPE_STRING,
                         {{Constants::STRATEGYPARAM_INIT, "2024-02-29 09:30:05"}});
        QWidget window;
        auto *const edit = make<QDateTimeEdit>(m_dateTime, &window, record);
        QCOMPARE(edit->displayFormat(), QString("yyyy-MM-dd hh:mm:ss"));
        QCOMPARE(m_dateTime.read(edit, Qt::UserRole), QVariant("2024-02-29 09:30:05"));
        m_dateTime.write(edit, "2025-01-02 03:04:05", false);
        QCOMPARE(m_dateTime.read(edit, Qt::DisplayRole), QVariant("2025-01-02 03:04:05"));
        QVERIFY(edit->isReadOnly());
        m_dateTime.write(edit, "2025-02-30 03:04:05", true);
        QCOMPARE(m_dateTime.read(edit, Qt::UserRole), QVariant("2025-01-02 03:04:05"));
    }

private:
    const ZrParamSpinKind m_spin;
    const ZrParamTimeKind m_time;
    const ZrParamDateTimeKind m_dateTime;
};

ZR_TEST_MAIN(tst_ZrParamNumberKinds)
#include "tst_zrparamnumberkinds.moc"
