#include "FormScene.h"
#include "ZrParamKind.h"
#include "ZrParamKinds.h"
#include "ZrParamLink.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <memory>

class tst_ZrParamKinds : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_host.isReady()); }

    void eachTypeOfEditorHasAKind_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("expected");
        QTest::newRow("label") << Constants::WIDGETTYPE_LABEL << "QLabel";
        QTest::newRow("line edit") << Constants::WIDGETTYPE_LINEEDIT << "QLineEdit";
        QTest::newRow("radio button") << Constants::WIDGETTYPE_RADIOBUTTON << "ZrButtonGroupWidget";
        QTest::newRow("combo box") << Constants::WIDGETTYPE_COMBOBOX << "QComboBox";
        QTest::newRow("multi combo box") << Constants::WIDGETTYPE_MULTICOMBOBOX << "ZrMultiComboBox";
        QTest::newRow("spin box") << Constants::WIDGETTYPE_SPINBOX << "QSpinBox";
        QTest::newRow("time") << Constants::WIDGETTYPE_TIMEEDIT << "QTimeEdit";
        QTest::newRow("date and time") << Constants::WIDGETTYPE_DATETIME << "QDateTimeEdit";
        QTest::newRow("search box") << Constants::WIDGETTYPE_ZRSEARCHBOX << "ZrSearchBox";
        QTest::newRow("check box") << Constants::WIDGETTYPE_CHECKBOX << "QCheckBox";
        QTest::newRow("accounts") << Constants::WIDGETTYPE_ACCOUNTCOMBOBOX << "QComboBox";
    }

    void eachTypeOfEditorHasAKind()
    {
        QFETCH(QString, type);
        QFETCH(QString, expected);
        const ZrParamKind *const kind = ZrParamKinds::find(type);
        QVERIFY(kind);
        const QVariantMap record = form::record("p", type, Constants::VALUETYPE_INT);
        QWidget parent;
        const QWidget *const editor = kind->make(record, &parent, ZrParamLink(record, QString()));
        QVERIFY(editor);
        QCOMPARE(QString::fromLatin1(editor->metaObject()->className()), expected);
        QCOMPARE(editor->parentWidget(), &parent);
        QCOMPARE(editor->objectName(), QString());
    }

    void otherTypesHaveNone()
    {
        QVERIFY(!ZrParamKinds::find("Slider"));
        QVERIFY(!ZrParamKinds::find(QString()));
    }

    void aForeignOrMissingWidgetIsLeftAlone_data()
    {
        QTest::addColumn<QString>("type");
        eachTypeOfEditor();
    }

    void aForeignOrMissingWidgetIsLeftAlone()
    {
        QFETCH(QString, type);
        const ZrParamKind *const kind = ZrParamKinds::find(type);
        const QVariantMap record = form::record("p", type, Constants::VALUETYPE_INT);
        QSlider foreign;
        foreign.setValue(5);
        for (QWidget *const widget : {static_cast<QWidget *>(&foreign), static_cast<QWidget *>(nullptr)}) {
            QVERIFY(!kind->read(widget, Qt::DisplayRole).isValid());
            QVERIFY(!kind->read(widget, Qt::UserRole).isValid());
            kind->write(widget, 7, false);
            kind->relink(record, widget, ZrParamLink(record, "x"));
        }
        QCOMPARE(foreign.value(), 5);
        QVERIFY(foreign.isEnabled());
    }

    // Editors of a type without a rebuild of its own count as a line edit when they are one.
    void aLineEditUnderAnotherTypeTakesTheRuleOfTheCase()
    {
        const QVariantMap record = form::joined(
            form::record("p", Constants::WIDGETTYPE_LABEL, Constants::VALUETYPE_STRING),
            form::link("side", {form::linkCase("buy", {{Constants::STRATEGYPARAM_REGEXPVALIDATOR, "a*"}})}));
        QLineEdit edit;
        ZrParamKinds::find(Constants::WIDGETTYPE_LABEL)->relink(record, &edit, ZrParamLink(record, "buy"));
        QVERIFY(edit.validator());
        ZrAutoBuildSubWidgetObject::singleSubWidgetLinkParamValueChanged(record, &edit, "buy");
        QCOMPARE(form::judge(&edit, "aaa"), QValidator::Acceptable);
        QCOMPARE(form::judge(&edit, "b"), QValidator::Invalid);
    }

private:
    void eachTypeOfEditor()
    {
        for (const QString &type :
             {Constants::WIDGETTYPE_LABEL, Constants::WIDGETTYPE_LINEEDIT, Constants::WIDGETTYPE_RADIOBUTTON,
              Constants::WIDGETTYPE_COMBOBOX, Constants::WIDGETTYPE_MULTICOMBOBOX,
              Constants::WIDGETTYPE_SPINBOX, Constants::WIDGETTYPE_TIMEEDIT, Constants::WIDGETTYPE_DATETIME,
              Constants::WIDGETTYPE_ZRSEARCHBOX, Constants::WIDGETTYPE_CHECKBOX,
              Constants::WIDGETTYPE_ACCOUNTCOMBOBOX})
            QTest::newRow(qPrintable(type)) << type;
    }

    FormHost m_host;
};

ZR_TEST_MAIN(tst_ZrParamKinds)
#include "tst_zrparamkinds.moc"
