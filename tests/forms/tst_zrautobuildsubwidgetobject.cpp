#include "FormScene.h"
#include "ZrMultiComboBox.h"
#include "ZrSearchBox.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {
using Object = ZrAutoBuildSubWidgetObject;

QVariantMap line(const QString &id, const QString &type = Constants::VALUETYPE_STRING,
                 const QVariantMap &more = QVariantMap())
{
    return form::record(id, Constants::WIDGETTYPE_LINEEDIT, type, more);
}

QVariantMap combo(const QString &id, const QVariantMap &more = QVariantMap())
{
    return form::record(
        id, Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_INT,
        form::joined({{Constants::STRATEGYPARAM_OPTIONS, form::options({{"one", 1}, {"two", "2"}})}}, more));
}

/// A shown window with the editors of some records, one above the other.
class Form
{
public:
    explicit Form(const QList<QVariantMap> &records)
    {
        auto *const column = new QVBoxLayout(&window);
        object.setAutoBuildWidgetDetails(records, &window);
        for (const QVariantMap &record : records)
            column->addWidget(edit(record.value(Constants::STRATEGYPARAM_PARAMID).toString()));
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QWidget *edit(const QString &id) const { return object.getSubWidgetMap().value(id); }
    template<typename Widget>
    Widget *as(const QString &id) const
    {
        return qobject_cast<Widget *>(edit(id));
    }

    QWidget window;
    Object object;
};
} // namespace

class tst_ZrAutoBuildSubWidgetObject : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_quiet = std::make_unique<QuietPlatform>();
        QVERIFY(m_host.isReady());
    }
    void cleanupTestCase() { m_quiet.reset(); }

    // --- one editor ---

    void anUnknownTypeMakesNoEditor()
    {
        QWidget window;
        QVERIFY(!Object::createWidget(form::record("p", "Slider", Constants::VALUETYPE_INT), &window, {}));
        QVERIFY(!Object::createWidget({}, &window, {}));
        QVERIFY(!Object::createWidget(
            form::record("p", Constants::WIDGETTYPE_SPINBOX, Constants::VALUETYPE_STRING), &window, {}));
    }

    void presentValuesOfOthersChooseTheCase()
    {
        const QVariantMap record =
            combo("p", form::link("side", {form::linkCase("buy", {{Constants::STRATEGYPARAM_OPTIONS,
                                                                   form::options({{"three", 3}})}})}));
        QWidget window;
        const auto count = [&](const QVariantMap &values) {
            return qobject_cast<QComboBox *>(Object::createWidget(record, &window, values))->count();
        };
        QCOMPARE(count({{"side", "buy"}}), 1);
        QCOMPARE(count({{"side", "sell"}}), 2);
        QCOMPARE(count({}), 2);
    }

    void aStoredValueHasTheRecordsType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("int") << Constants::VALUETYPE_INT << QVariant(12);
        QTest::newRow("int64") << Constants::VALUETYPE_INT64 << QVariant(Q_INT64_C(12));
        QTest::newRow("double") << Constants::VALUETYPE_DOUBLE << QVariant(12.0);
        QTest::newRow("bool") << Constants::VALUETYPE_BOOL << QVariant(true);
        QTest::newRow("string") << Constants::VALUETYPE_STRING << QVariant("12");
    }

    void aStoredValueHasTheRecordsType()
    {
        QFETCH(QString, type);
        QFETCH(QVariant, expected);
        QLineEdit edit("12");
        const QVariantMap record = line("p", type);
        QCOMPARE(Object::getWidgetData(record, &edit, Qt::UserRole), expected);
        QCOMPARE(Object::getWidgetData(record, &edit, Qt::UserRole).userType(), expected.userType());
        QCOMPARE(Object::getWidgetData(record, &edit, Qt::DisplayRole), QVariant("12"));
        QCOMPARE(Object::getWidgetData(record, &edit, Qt::DisplayRole).userType(), int(QMetaType::QString));
    }

    void nothingReadsAsInvalid()
    {
        QLineEdit edit;
        QVERIFY(!Object::getWidgetData(line("p", Constants::VALUETYPE_INT), &edit, Qt::UserRole).isValid());
        QVERIFY(!Object::getWidgetData(line("p"), nullptr, Qt::UserRole).isValid());
        QVERIFY(!Object::getWidgetData({}, &edit, Qt::UserRole).isValid());
    }

    void severalTicksAreSeenButStoreNothing()
    {
        const QVariantMap record =
            form::record("p", Constants::WIDGETTYPE_MULTICOMBOBOX, Constants::VALUETYPE_STRING,
                         {{Constants::STRATEGYPARAM_OPTIONS, form::options({{"one", 1}, {"two", 2}})}});
        QWidget window;
        QWidget *const editor = Object::createWidget(record, &window, {});
        Object::setSingleSubWidgetParamValue(record, editor, QVariantList{1, 2}, 1);
        QCOMPARE(Object::getWidgetData(record, editor, Qt::DisplayRole), QVariant("one;two"));
        QVERIFY(!Object::getWidgetData(record, editor, Qt::UserRole).isValid());
    }

    void theModeTellsWhatStaysEditable_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("editableLater");
        QTest::addColumn<bool>("isWritten");
        QTest::addColumn<bool>("isLocked");
        QTest::newRow("new") << 1 << false << true << false;
        QTest::newRow("running") << 2 << false << true << true;
        QTest::newRow("running, editable then too") << 2 << true << true << false;
        QTest::newRow("read-only") << 3 << true << true << true;
        QTest::newRow("none") << 0 << true << false << false;
        QTest::newRow("beyond") << 4 << true << false << false;
    }

    void theModeTellsWhatStaysEditable()
    {
        QFETCH(int, mode);
        QFETCH(bool, editableLater);
        QFETCH(bool, isWritten);
        QFETCH(bool, isLocked);
        const QVariantMap record = line("p", Constants::VALUETYPE_INT,
                                        {{Constants::STRATEGYPARAM_EDITABLEAFTERRUNNING, editableLater}});
        QLineEdit edit;
        Object::setSingleSubWidgetParamValue(record, &edit, "5", mode);
        QCOMPARE(edit.text(), isWritten ? QString("5") : QString());
        QCOMPARE(edit.isReadOnly(), isLocked);
    }

    void aValueIsConvertedBeforeItIsWritten()
    {
        QLineEdit edit("old");
        Object::setSingleSubWidgetParamValue(line("p", Constants::VALUETYPE_INT), &edit, "x", 1);
        QCOMPARE(edit.text(), QString("0"));
        // An empty one clears.
        Object::setSingleSubWidgetParamValue(line("p", Constants::VALUETYPE_INT), &edit, QVariant(), 1);
        QCOMPARE(edit.text(), QString());
        Object::setSingleSubWidgetParamValue(line("p"), nullptr, "x", 1);
    }

    void aChangedLinkRebuildsTheChoices()
    {
        const QVariantMap record =
            combo("p", form::link("side", {form::linkCase(2, {{Constants::STRATEGYPARAM_OPTIONS,
                                                               form::options({{"three", 3}})}})}));
        QWidget window;
        auto *const editor = qobject_cast<QComboBox *>(Object::createWidget(record, &window, {}));
        Object::singleSubWidgetLinkParamValueChanged(record, editor, 2);
        QCOMPARE(editor->currentText(), QString("three"));
        Object::singleSubWidgetLinkParamValueChanged(record, editor, 1);
        QCOMPARE(editor->currentText(), QString("one"));
        Object::singleSubWidgetLinkParamValueChanged(record, nullptr, 1);
    }

    // --- a form ---

    void theFormGivesItsEditorsById()
    {
        QWidget window;
        Object object;
        const auto editors = object.setAutoBuildWidgetDetails(
            {line("b"), form::record("none", "Slider", Constants::VALUETYPE_INT), combo("a")}, &window);
        QCOMPARE(editors.keys(), QStringList({"a", "b"}));
        QCOMPARE(object.getSubWidgetMap(), editors);
        QVERIFY(qobject_cast<QComboBox *>(editors.value("a")));
        QCOMPARE(editors.value("b")->parentWidget(), &window);
        QCOMPARE(editors.value("b")->property(Constants::STRATEGYPARAM_PARAMID.toUtf8()), QVariant("b"));
        QVERIFY(!object.parent());
    }

    void aSecondCallForgetsTheFirst()
    {
        QWidget window;
        Object object;
        QWidget *const old = object.setAutoBuildWidgetDetails({line("a"), line("b")}, &window).value("a");
        object.setAutoBuildWidgetDetails({line("c")}, &window);
        QCOMPARE(object.getSubWidgetMap().keys(), QStringList("c"));
        QCOMPARE(object.getAutoBuildData().keys(), QStringList("c"));
        QCOMPARE(old->parentWidget(), &window); // the parent's still
    }

    void editorsThatAreGoneAreLeftOut()
    {
        auto window = std::make_unique<QWidget>();
        Object object;
        delete object.setAutoBuildWidgetDetails({line("a"), line("b")}, window.get()).value("a");
        QCOMPARE(object.getSubWidgetMap().keys(), QStringList("b"));
        object.setInitialBasicParamData({{"a", "x"}, {"b", "y"}}, 1);
        QCOMPARE(object.getAutoBuildData(), QVariantMap({{"b", "y"}}));
        window.reset();
        QVERIFY(object.getAutoBuildData().isEmpty());
    }

    void dataHoldEmptyEditorsToo()
    {
        QWidget window;
        Object object;
        object.setAutoBuildWidgetDetails({line("a", Constants::VALUETYPE_INT), combo("b"), line("c")},
                                         &window);
        object.setInitialBasicParamData({{"a", "7"}, {"b", "2"}, {"other", 1}}, 1);
        QCOMPARE(object.getAutoBuildData(), QVariantMap({{"a", 7}, {"b", 2}, {"c", QVariant()}}));
    }

    void whatHasNoValueIsLeftAsItStands()
    {
        QWidget window;
        Object object;
        const auto editors = object.setAutoBuildWidgetDetails(
            {line("a", Constants::VALUETYPE_INT, {{Constants::STRATEGYPARAM_INIT, "3"}}), line("b")},
            &window);
        object.setInitialBasicParamData({{"a", ""}, {"b", "x"}}, 3);
        QCOMPARE(object.getAutoBuildData(), QVariantMap({{"a", 3}, {"b", "x"}}));
        QVERIFY(!qobject_cast<QLineEdit *>(editors.value("a"))->isReadOnly());
        QVERIFY(qobject_cast<QLineEdit *>(editors.value("b"))->isReadOnly());
    }

    // --- keys ---

    void keysGoFromEditorToEditor_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("tab") << int(Qt::Key_Tab);
        QTest::newRow("return") << int(Qt::Key_Return);
        QTest::newRow("enter") << int(Qt::Key_Enter);
    }

    void keysGoFromEditorToEditor()
    {
        QFETCH(int, key);
        Form form({line("b"), combo("c"),
                   form::record("a", Constants::WIDGETTYPE_SPINBOX, Constants::VALUETYPE_INT)});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        QSignalSpy told(&form.object, &Object::signalParamValueChanged);
        form.edit("b")->setFocus();
        const QStringList order{"b", "c", "a", "b"};
        for (int step = 0; step < 3; ++step) {
            QVERIFY(form.edit(order.at(step))->hasFocus());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
            QVERIFY(form.edit(order.at(step + 1))->hasFocus());
            QCOMPARE(told.takeFirst(), QVariantList{order.at(step)});
        }
        QVERIFY(told.isEmpty());
    }

    void aMultiComboPassesOnToo()
    {
        const QVariantMap multi =
            form::record("m", Constants::WIDGETTYPE_MULTICOMBOBOX, Constants::VALUETYPE_STRING);
        Form form({multi, line("b")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        form.edit("m")->setFocus();
        QTest::keyClick(form.edit("m"), Qt::Key_Return);
        QVERIFY(form.edit("b")->hasFocus());
    }

    void otherKeysStayWithTheEditor()
    {
        Form form({line("a"), line("b")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        QSignalSpy told(&form.object, &Object::signalParamValueChanged);
        form.edit("a")->setFocus();
        QTest::keyClicks(form.edit("a"), "x y");
        QCOMPARE(form.as<QLineEdit>("a")->text(), QString("x y"));
        QVERIFY(form.edit("a")->hasFocus());
        QVERIFY(told.isEmpty());
    }

    void withoutTheFocusAKeyIsTheEditorsOwn()
    {
        Form form({line("a"), line("b")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        QSignalSpy told(&form.object, &Object::signalParamValueChanged);
        QSignalSpy returned(form.as<QLineEdit>("a"), &QLineEdit::returnPressed);
        form.window.setFocus();
        QTest::keyClick(form.edit("a"), Qt::Key_Return);
        QCOMPARE(returned.count(), 1);
        QVERIFY(told.isEmpty());
    }

    void oneEditorKeepsTheFocus()
    {
        Form form({line("a")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        QSignalSpy told(&form.object, &Object::signalParamValueChanged);
        form.edit("a")->setFocus();
        QTest::keyClick(form.edit("a"), Qt::Key_Tab);
        QVERIFY(form.edit("a")->hasFocus());
        QCOMPARE(told.count(), 1);
    }

    void anEditorThatIsGoneIsSteppedOver()
    {
        Form form({line("a"), line("b"), line("c")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        delete form.edit("b");
        form.edit("a")->setFocus();
        QTest::keyClick(form.edit("a"), Qt::Key_Tab);
        QVERIFY(form.edit("c")->hasFocus());
    }

    void whoHearsTheSignalMayBuildAnew()
    {
        Form form({line("a"), line("b")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        connect(&form.object, &Object::signalParamValueChanged, &form.object,
                [&form] { form.object.setAutoBuildWidgetDetails({line("c")}, &form.window); });
        form.edit("a")->setFocus();
        QTest::keyClick(form.edit("a"), Qt::Key_Return);
        QCOMPARE(form.object.getSubWidgetMap().keys(), QStringList("c"));
    }

    void aPickedSecurityIsToldByItsField()
    {
        const QVariantMap search =
            form::record("target", Constants::WIDGETTYPE_ZRSEARCHBOX, Constants::VALUETYPE_STRING,
                         {{Constants::STRATEGYPARAM_OPTIONS, "Stock"}});
        Form form({search, line("b")});
        QVERIFY(QTest::qWaitForWindowActive(&form.window));
        QSignalSpy told(&form.object, &Object::signalParamValueChanged);
        auto *const box = form.as<ZrSearchBox>("target");
        box->setFocus();
        QTest::keyClicks(box, "600001"); // the only one: picked by itself
        QTRY_COMPARE(told.count(), 1);
        QCOMPARE(told.takeFirst(), QVariantList{Vexlor_Fields::Security::symbol});
        // The list that was open may still be giving the keyboard back.
        QCOMPARE(form.window.focusWidget(), form.edit("b"));
        QCOMPARE(form.object.getAutoBuildData().value("target"), QVariant("600001.SH"));
    }

private:
    FormHost m_host;
    std::unique_ptr<QuietPlatform> m_quiet; // once the test's own handler is in place
};

ZR_TEST_MAIN(tst_ZrAutoBuildSubWidgetObject)
#include "tst_zrautobuildsubwidgetobject.moc"
