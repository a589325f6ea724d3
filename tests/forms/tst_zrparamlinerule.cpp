#include "FormScene.h"
#include "ZrParamLineRule.h"
#include "ZrParamLink.h"

#include <QtCore/QPointer>
#include <QtGui/QRegExpValidator>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <memory>

class tst_ZrParamLineRule : public QObject
{
    Q_OBJECT
private slots:
    void theRuleIsAPlainPatternWithoutAParent()
    {
        QLineEdit edit;
        ZrParamLineRule::install(&edit, "[a-f]{1,3}");
        const auto *const rule = qobject_cast<const QRegExpValidator *>(edit.validator());
        QVERIFY(rule);
        QVERIFY(!rule->parent());
        QCOMPARE(rule->regExp(), QRegExp("[a-f]{1,3}", Qt::CaseSensitive, QRegExp::RegExp));
        QTest::keyClicks(&edit, "aGBcdef");
        QCOMPARE(edit.text(), QString("acd"));
    }

    void noPatternLeavesWhatIsThere()
    {
        QLineEdit edit;
        ZrParamLineRule::install(&edit, QString());
        QVERIFY(!edit.validator());
        ZrParamLineRule::install(&edit, "[0-9]*");
        ZrParamLineRule::install(&edit, QString());
        QCOMPARE(qobject_cast<const QRegExpValidator *>(edit.validator())->regExp().pattern(),
                 QString("[0-9]*"));
        ZrParamLineRule::install(nullptr, "[0-9]*");
    }

    void theRuleGoesWithItsEditAndWithItsSuccessor()
    {
        auto edit = std::make_unique<QLineEdit>();
        ZrParamLineRule::install(edit.get(), "[0-9]");
        const QPointer<const QValidator> first(edit->validator());
        ZrParamLineRule::install(edit.get(), "[a-z]");
        const QPointer<const QValidator> second(edit->validator());
        QVERIFY(!first);
        QVERIFY(second);
        edit.reset();
        QVERIFY(!second);
    }

    void aPatternThatIsNoneIsToldAndLetsNothingIn()
    {
        QLineEdit edit;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^ZrParamLineRule::install .*\\[0-9"));
        ZrParamLineRule::install(&edit, "[0-9");
        QTest::keyClicks(&edit, "0a");
        QCOMPARE(edit.text(), QString());
    }

    void aChangeOfTheOtherParameterPutsTheRuleOfTheCase()
    {
        const QVariantMap record = form::joined(
            form::record("p", Constants::WIDGETTYPE_LINEEDIT, Constants::VALUETYPE_DOUBLE),
            form::link("side", {form::linkCase("buy", {{Constants::STRATEGYPARAM_PRECISION, 2}})}));
        QLineEdit edit;
        ZrParamLineRule::relink(&edit, ZrParamLink(record, "sell"));
        QVERIFY(!edit.validator());
        ZrParamLineRule::relink(&edit, ZrParamLink(record, "buy"));
        QCOMPARE(form::judge(&edit, "1234567890123.45"), QValidator::Acceptable);
        // Without a full stop its decimals are two more digits.
        QCOMPARE(form::judge(&edit, "123456789012345"), QValidator::Acceptable);
        QCOMPARE(form::judge(&edit, "1234567890123456"), QValidator::Invalid);
        QCOMPARE(form::judge(&edit, "10000000000000"), QValidator::Acceptable);
        QCOMPARE(form::judge(&edit, "1.234"), QValidator::Invalid);
    }

    void onlyLineEditsHaveARule()
    {
        const QVariantMap record = form::joined(
            form::record("p", Constants::WIDGETTYPE_LABEL, Constants::VALUETYPE_DOUBLE),
            form::link("side", {form::linkCase("buy", {{Constants::STRATEGYPARAM_PRECISION, 2}})}));
        QLabel label("1");
        ZrParamLineRule::relink(&label, ZrParamLink(record, "buy"));
        ZrParamLineRule::relink(nullptr, ZrParamLink(record, "buy"));
        QCOMPARE(label.text(), QString("1"));
    }
};

ZR_TEST_MAIN(tst_ZrParamLineRule)
#include "tst_zrparamlinerule.moc"
