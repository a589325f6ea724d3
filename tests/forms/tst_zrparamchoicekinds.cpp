#include "FormScene.h"
#include "ZrButtonGroupWidget.h"
#include "ZrMultiComboBox.h"
#include "ZrParamAccountKind.h"
#include "ZrParamComboKind.h"
#include "ZrParamLink.h"
#include "ZrParamMultiComboKind.h"
#include "ZrParamRadioKind.h"
#include "ZrRadioButton.h"

#include <QtWidgets/QComboBox>

namespace {
template<typename Widget>
Widget *make(const ZrParamKind &kind, QWidget *parent, const QVariantMap &record,
             const QString &linked = QString())
{
    return qobject_cast<Widget *>(kind.make(record, parent, ZrParamLink(record, linked)));
}

/// A parameter of two choices, or of three others under "sell".
QVariantMap choice(const QVariantMap &more = QVariantMap())
{
    const QVariantMap options{{Constants::STRATEGYPARAM_OPTIONS, form::options({{"one", 1}, {"two", "2"}})}};
    const QVariantMap others{
        {Constants::STRATEGYPARAM_OPTIONS, form::options({{"two", "2"}, {"three", 3}, {"four", 4}})}};
    return form::joined(
        form::joined(form::record("p", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_INT, options),
                     form::link("side", {form::linkCase("sell", others)})),
        more);
}

QVariantMap first(const QVariant &value)
{
    return {{Constants::STRATEGYPARAM_INIT, value}};
}

QStringList texts(const QComboBox *combo)
{
    QStringList list;
    for (int row = 0; row < combo->count(); ++row)
        list.append(combo->itemText(row));
    return list;
}

QStringList texts(const ZrButtonGroupWidget *group)
{
    QStringList list;
    const QList<QAbstractButton *> buttons = group->buttons();
    for (const QAbstractButton *const button : buttons)
        list.append(button->text());
    return list;
}

QAbstractButton *buttonOf(const ZrButtonGroupWidget *group, const QString &text)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *const button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}
} // namespace

class tst_ZrParamChoiceKinds : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_host.isReady()); }

    // --- combo box ---

    void aComboHasTheChoicesInForce()
    {
        QWidget window;
        QCOMPARE(texts(make<QComboBox>(m_combo, &window, choice())), QStringList({"one", "two"}));
        QCOMPARE(texts(make<QComboBox>(m_combo, &window, choice(), "sell")),
                 QStringList({"two", "three", "four"}));
        QCOMPARE(texts(make<QComboBox>(m_combo, &window, choice(), "hold")), QStringList({"one", "two"}));
    }

    void aComboBeginsWithItsFirstValue_data()
    {
        QTest::addColumn<QVariantMap>("more");
        QTest::addColumn<int>("expected");
        QTest::newRow("none told: the toolkit's") << QVariantMap() << 0;
        QTest::newRow("a number") << first(1) << 0;
        QTest::newRow("a text") << first("2") << 1;
        QTest::newRow("a number for a text") << first(2) << 1;
        QTest::newRow("the text that is shown") << first("two") << -1;
        QTest::newRow("not offered") << first(9) << -1;
    }

    void aComboBeginsWithItsFirstValue()
    {
        QFETCH(QVariantMap, more);
        QFETCH(int, expected);
        QWidget window;
        QCOMPARE(make<QComboBox>(m_combo, &window, choice(more))->currentIndex(), expected);
    }

    void aComboReadsTextAndData()
    {
        QWidget window;
        auto *const combo = make<QComboBox>(m_combo, &window, choice(first("2")));
        QCOMPARE(m_combo.read(combo, Qt::DisplayRole), QVariant("two"));
        QCOMPARE(m_combo.read(combo, Qt::UserRole), QVariant("2"));
        QVERIFY(!m_combo.read(combo, Qt::UserRole + 1).isValid());
        QVERIFY(!m_combo.read(combo, Qt::ToolTipRole).isValid());
    }

    void aComboIsWrittenByItsData()
    {
        QWidget window;
        auto *const combo = make<QComboBox>(m_combo, &window, choice());
        m_combo.write(combo, 2, true);
        QCOMPARE(combo->currentText(), QString("two"));
        QVERIFY(combo->isEnabled());
        m_combo.write(combo, "nothing", false);
        QCOMPARE(combo->currentIndex(), -1);
        QVERIFY(!combo->isEnabled());
    }

    void aComboIsRebuiltInPlace()
    {
        QWidget window;
        const QVariantMap record = choice(first(3));
        auto *const combo = make<QComboBox>(m_combo, &window, record);
        QCOMPARE(combo->currentIndex(), -1);
        m_combo.relink(record, combo, ZrParamLink(record, "sell"));
        QCOMPARE(texts(combo), QStringList({"two", "three", "four"}));
        QCOMPARE(combo->currentText(), QString("three"));
        m_combo.relink(record, combo, ZrParamLink(record, "buy"));
        QCOMPARE(texts(combo), QStringList({"one", "two"}));
    }

    // --- accounts ---

    void accountsAreThoseThatMayTrade()
    {
        QWidget window;
        const QVariantMap record =
            form::record("p", Constants::WIDGETTYPE_ACCOUNTCOMBOBOX, Constants::VALUETYPE_STRING);
        auto *const combo = make<QComboBox>(m_account, &window, record);
        QCOMPARE(texts(combo), QStringList({"first", "third"}));
        QCOMPARE(combo->itemData(1), QVariant("T3"));
        m_account.write(combo, "T3", true);
        QCOMPARE(m_account.read(combo, Qt::DisplayRole), QVariant("third"));
        QCOMPARE(m_account.read(combo, Qt::UserRole), QVariant("T3"));
        m_account.write(combo, "T2", false);
        QCOMPARE(combo->currentIndex(), -1);
        QVERIFY(!combo->isEnabled());
    }

    void accountsDependOnNothing()
    {
        QWidget window;
        const QVariantMap record = choice();
        auto *const combo = make<QComboBox>(m_account, &window, record, "sell");
        QCOMPARE(texts(combo), QStringList({"first", "third"}));
        m_account.relink(record, combo, ZrParamLink(record, "sell"));
        QCOMPARE(texts(combo), QStringList({"first", "third"}));
    }

    // --- multi combo box ---

    void aMultiComboTicksItsFirstValue()
    {
        QWidget window;
        auto *const combo = make<ZrMultiComboBox>(m_multi, &window, choice(first("2")));
        QCOMPARE(combo->getCurrentSelectedIndex(), QList<int>({1}));
        QCOMPARE(m_multi.read(combo, Qt::DisplayRole), QVariant("two"));
        QVERIFY(make<ZrMultiComboBox>(m_multi, &window, choice())->getCurrentSelectedIndex().isEmpty());
        QVERIFY(
            make<ZrMultiComboBox>(m_multi, &window, choice(first(9)))->getCurrentSelectedIndex().isEmpty());
    }

    void aMultiComboReadsJoinedTextsAndAListOfData()
    {
        QWidget window;
        auto *const combo = make<ZrMultiComboBox>(m_multi, &window, choice());
        m_multi.write(combo, QVariantList{"2", 1}, true);
        QCOMPARE(m_multi.read(combo, Qt::DisplayRole), QVariant("one;two"));
        QCOMPARE(m_multi.read(combo, Qt::UserRole), QVariant(QVariantList{1, "2"}));
        QVERIFY(!m_multi.read(combo, Qt::ToolTipRole).isValid());
        QVERIFY(combo->isEnabled());
    }

    void aMultiComboKeepsItsTicksWhenWritten()
    {
        QWidget window;
        auto *const combo = make<ZrMultiComboBox>(m_multi, &window, choice(first(1)));
        m_multi.write(combo, QVariantList{"2", "unknown"}, false);
        QCOMPARE(combo->getCurrentSelectedIndex(), QList<int>({0, 1}));
        QVERIFY(!combo->isEnabled());
    }

    void aMultiComboIsRebuiltInPlace()
    {
        QWidget window;
        const QVariantMap record = choice(first("2"));
        auto *const combo = make<ZrMultiComboBox>(m_multi, &window, record);
        m_multi.write(combo, QVariantList{1}, true);
        m_multi.relink(record, combo, ZrParamLink(record, "sell"));
        QCOMPARE(combo->count(), 3);
        QCOMPARE(m_multi.read(combo, Qt::DisplayRole), QVariant("two"));
    }

    // --- radio buttons ---

    void radioButtonsHoldTextsOfWhatTheyStore()
    {
        QWidget window;
        auto *const group = make<ZrButtonGroupWidget>(m_radio, &window, choice(first(1)));
        QCOMPARE(texts(group), QStringList({"one", "two"}));
        auto *const one = qobject_cast<ZrRadioButton *>(buttonOf(group, "one"));
        QVERIFY(one && one->isCheckable() && one->parentWidget() == group);
        QCOMPARE(one->getRoleData(Qt::UserRole), QVariant("1"));
        QCOMPARE(group->checkedButton(), one);
        QCOMPARE(m_radio.read(group, Qt::DisplayRole), QVariant("1"));
        QCOMPARE(m_radio.read(group, Qt::UserRole), QVariant("1"));
    }

    void withoutAFirstValueNoRadioButtonIsChecked()
    {
        QWidget window;
        auto *const group = make<ZrButtonGroupWidget>(m_radio, &window, choice());
        QVERIFY(!group->checkedButton());
        QVERIFY(!m_radio.read(group, Qt::UserRole).isValid());
    }

    void aChoiceTextIsNoShortcut()
    {
        const QVariantMap record = choice({{Constants::STRATEGYPARAM_OPTIONS, form::options({{"A&B", 1}})}});
        QWidget window;
        auto *const group = make<ZrButtonGroupWidget>(m_radio, &window, record);
        QVERIFY(buttonOf(group, "A&&B"));
        QVERIFY(buttonOf(group, "A&&B")->shortcut().isEmpty());
    }

    void onlyTheChosenRadioButtonIsLocked()
    {
        QWidget window;
        auto *const group = make<ZrButtonGroupWidget>(m_radio, &window, choice());
        m_radio.write(group, 2, false);
        QCOMPARE(m_radio.read(group, Qt::UserRole), QVariant("2"));
        QVERIFY(!buttonOf(group, "two")->isEnabled());
        QVERIFY(buttonOf(group, "one")->isEnabled());
        m_radio.write(group, 1, true);
        QCOMPARE(m_radio.read(group, Qt::UserRole), QVariant("1"));
        m_radio.write(group, 9, true);
        QCOMPARE(m_radio.read(group, Qt::UserRole), QVariant("1"));
    }

    void rebuiltRadioButtonsLeaveTheOldOnesBehind()
    {
        QWidget window;
        const QVariantMap record = choice(first(3));
        auto *const group = make<ZrButtonGroupWidget>(m_radio, &window, record);
        const QList<QAbstractButton *> old = group->buttons();
        m_radio.relink(record, group, ZrParamLink(record, "sell"));
        QCOMPARE(texts(group), QStringList({"two", "three", "four"}));
        QCOMPARE(m_radio.read(group, Qt::UserRole), QVariant("3"));
        for (QAbstractButton *const button : old)
            QCOMPARE(button->parentWidget(), group);
        QCOMPARE(group->findChildren<ZrRadioButton *>().size(), 5);
    }

private:
    FormHost m_host;
    const ZrParamComboKind m_combo;
    const ZrParamAccountKind m_account;
    const ZrParamMultiComboKind m_multi;
    const ZrParamRadioKind m_radio;
};

ZR_TEST_MAIN(tst_ZrParamChoiceKinds)
#include "tst_zrparamchoicekinds.moc"
