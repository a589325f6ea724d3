#include "FormScene.h"
#include "ZrParamCheckKind.h"
#include "ZrParamLabelKind.h"
#include "ZrParamLineKind.h"
#include "ZrParamLink.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace {
template<typename Widget>
Widget *make(const ZrParamKind &kind, QWidget *parent, const QVariantMap &record,
             const QString &linked = QString())
{
    return qobject_cast<Widget *>(kind.make(record, parent, ZrParamLink(record, linked)));
}

QVariantMap line(const QString &type, const QVariantMap &more = QVariantMap())
{
    return form::record("p", Constants::WIDGETTYPE_LINEEDIT, type, more);
}
} // namespace

class tst_ZrParamTextKinds : public QObject
{
    Q_OBJECT
private slots:
    void aLineBeginsWithItsFirstValue()
    {
        QWidget window;
        QCOMPARE(make<QLineEdit>(m_line, &window, line(Constants::VALUETYPE_STRING))->text(), QString());
        auto *const edit = make<QLineEdit>(
            m_line, &window, line(Constants::VALUETYPE_STRING, {{Constants::STRATEGYPARAM_INIT, "abc"}}));
        QCOMPARE(edit->text(), QString("abc"));
        QVERIFY(!edit->validator());
        QVERIFY(!edit->isReadOnly());
        QCOMPARE(m_line.read(edit, Qt::DisplayRole), QVariant("abc"));
        QCOMPARE(m_line.read(edit, Qt::UserRole), QVariant("abc"));
    }

    void aWholeNumberHasTenDigits()
    {
        QWidget window;
        auto *const edit = make<QLineEdit>(m_line, &window, line(Constants::VALUETYPE_INT));
        QTest::keyClicks(edit, "a12345678901.");
        QCOMPARE(edit->text(), QString("1234567890"));
    }

    void aLargeWholeNumberHasNineteenDigits()
    {
        QWidget window;
        auto *const edit = make<QLineEdit>(m_line, &window, line(Constants::VALUETYPE_INT64));
        QTest::keyClicks(edit, QString(25, '7'));
        QCOMPARE(edit->text(), QString(19, '7'));
    }

    void aPrecisionBoundsTheDecimals()
    {
        QWidget window;
        auto *const edit = make<QLineEdit>(
            m_line, &window, line(Constants::VALUETYPE_DOUBLE, {{Constants::STRATEGYPARAM_PRECISION, 2}}));
        QCOMPARE(form::judge(edit, "1.23"), QValidator::Acceptable);
        QCOMPARE(form::judge(edit, "1.234"), QValidator::Invalid);
        QCOMPARE(form::judge(edit, "10000000000000"), QValidator::Acceptable);
        QCOMPARE(form::judge(edit, "-1"), QValidator::Invalid);
        QCOMPARE(form::judge(edit, QString(19, '9') + ".99"), QValidator::Acceptable);
    }

    void aFractionWithoutAPrecisionHasDigitsOnBothSides()
    {
        QWidget window;
        auto *const edit = make<QLineEdit>(m_line, &window, line(Constants::VALUETYPE_DOUBLE));
        QCOMPARE(form::judge(edit, "-12.345"), QValidator::Acceptable);
        QCOMPARE(form::judge(edit, "1."), QValidator::Intermediate);
        QCOMPARE(form::judge(edit, "-"), QValidator::Intermediate);
    }

    void aLinkedLineTakesThePrecisionOfItsCase()
    {
        const QVariantMap record = form::joined(
            line(Constants::VALUETYPE_DOUBLE),
            form::link("side", {form::linkCase("buy", {{Constants::STRATEGYPARAM_PRECISION, 1}})}));
        QWidget window;
        QCOMPARE(form::judge(make<QLineEdit>(m_line, &window, record, "buy"), "1.2"), QValidator::Acceptable);
        QCOMPARE(form::judge(make<QLineEdit>(m_line, &window, record, "sell"), "1.2"), QValidator::Invalid);
    }

    void aLengthBoundsTheTextAndCutsTheFirstValue()
    {
        QWidget window;
        auto *const edit =
            make<QLineEdit>(m_line, &window,
                            line(Constants::VALUETYPE_STRING, {{Constants::STRATEGYPARAM_INIT, "abcdef"},
                                                               {Constants::STRATEGYPARAM_VALUELENGTH, 4}}));
        QCOMPARE(edit->maxLength(), 4);
        QCOMPARE(edit->text(), QString("abcd"));
    }

    void aLockedLineShowsItsValue()
    {
        QLineEdit edit;
        m_line.write(&edit, 12, true);
        QCOMPARE(edit.text(), QString("12"));
        QVERIFY(!edit.isReadOnly());
        m_line.write(&edit, "13", false);
        QCOMPARE(edit.text(), QString("13"));
        QVERIFY(edit.isReadOnly());
        m_line.write(&edit, "14", true); // nothing unlocks
        QVERIFY(edit.isReadOnly());
    }

    void aLabelShowsTextsAsTheyAre()
    {
        const QVariantMap record = form::record("p", Constants::WIDGETTYPE_LABEL, Constants::VALUETYPE_STRING,
                                                {{Constants::STRATEGYPARAM_INIT, "<b>x</b>"}});
        QWidget window;
        auto *const label = make<QLabel>(m_label, &window, record);
        QCOMPARE(label->text(), QString("<b>x</b>"));
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(m_label.read(label, Qt::UserRole), QVariant("<b>x</b>"));
        const QString styleBefore = label->styleSheet();
        m_label.write(label, "y", false);
        QCOMPARE(m_label.read(label, Qt::DisplayRole), QVariant("y"));
        QVERIFY(label->isEnabled());
        QCOMPARE(label->styleSheet(), styleBefore);
    }

    void aLongLabelKeepsItsWholeValue()
    {
        const QString text(10000, 'x');
        QLabel label;
        m_label.write(&label, text, true);
        QCOMPARE(m_label.read(&label, Qt::UserRole).toString(), text);
    }

    void aCheckBoxIsTrueOrFalse()
    {
        QWidget window;
        const QVariantMap record =
            form::record("p", Constants::WIDGETTYPE_CHECKBOX, Constants::VALUETYPE_BOOL);
        auto *const box = make<QCheckBox>(m_check, &window, record);
        QVERIFY(box->isCheckable());
        QCOMPARE(m_check.read(box, Qt::UserRole), QVariant(false));
        QVERIFY(
            make<QCheckBox>(m_check, &window, form::joined(record, {{Constants::STRATEGYPARAM_INIT, "1"}}))
                ->isChecked());
        m_check.write(box, true, true);
        QCOMPARE(m_check.read(box, Qt::DisplayRole), QVariant(true));
        QVERIFY(box->isEnabled());
        m_check.write(box, false, false);
        QVERIFY(!box->isChecked());
        QVERIFY(!box->isEnabled());
    }

private:
    const ZrParamLineKind m_line;
    const ZrParamLabelKind m_label;
    const ZrParamCheckKind m_check;
};

ZR_TEST_MAIN(tst_ZrParamTextKinds)
#include "tst_zrparamtextkinds.moc"
