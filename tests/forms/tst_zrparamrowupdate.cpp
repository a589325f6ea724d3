#include "ParamTable.h"
#include "ZrParamRowUpdate.h"

namespace Security = Vexlor_Fields::Security;
namespace UserAccount = Vexlor_Fields::UserAccount;

namespace {
QVariantMap offering(const form::Options &options)
{
    return {{Constants::STRATEGYPARAM_OPTIONS, form::options(options)}};
}

/// "type" depends on "side": under "sell" only "b" is offered, else "a" and "b".
QVariantMap dependent()
{
    return form::joined(form::record("type", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_STRING,
                                     offering({{"A", "a"}, {"B", "b"}})),
                        form::link("side", {form::linkCase("sell", offering({{"B", "b"}}))}));
}
} // namespace

class tst_ZrParamRowUpdate : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_host.isReady()); }

    void aSecurityBringsNameAndMarket_data()
    {
        QTest::addColumn<QStringList>("ids");
        const QString symbol = Security::symbol, name = Security::chineseName, post = UserAccount::SymbolPost;
        QTest::newRow("behind the security") << QStringList({"key", symbol, name, post});
        QTest::newRow("before it") << QStringList({"key", post, name, symbol});
        QTest::newRow("on both sides") << QStringList({"key", name, "other", symbol, post});
    }

    void aSecurityBringsNameAndMarket()
    {
        QFETCH(QStringList, ids);
        ParamTable table(ids);
        table.addRow({"k"});
        table.addRow({"l"});
        const int name = ids.indexOf(Security::chineseName), post = ids.indexOf(UserAccount::SymbolPost);
        ZrParamRowUpdate(Security::symbol, "000002.SZ", {}).applyTo(table.model(), table.at(1, 0));
        QCOMPARE(table.stored(1, name), QVariant("south bank"));
        QCOMPARE(table.shown(1, name), QVariant("south bank"));
        QCOMPARE(table.stored(1, post), QVariant("SZ"));
        QCOMPARE(table.shown(1, post), QVariant("Shenzhen"));
        QVERIFY(!table.stored(0, name).isValid());
        QVERIFY(!table.stored(0, post).isValid());
    }

    void anUnknownSecurityClearsThem()
    {
        ParamTable table({"key", Security::chineseName, UserAccount::SymbolPost});
        table.addRow({"k", "old", "old"});
        ZrParamRowUpdate(Security::symbol, QVariant(), {}).applyTo(table.model(), table.at(0, 0));
        for (const int column : {1, 2}) {
            QCOMPARE(table.stored(0, column), QVariant(""));
            QCOMPARE(table.shown(0, column), QVariant(""));
        }
    }

    void anotherParameterBringsNothing()
    {
        ParamTable table({"key", Security::chineseName});
        table.addRow({"k", "old"});
        ZrParamRowUpdate("price", "000002.SZ", {}).applyTo(table.model(), table.at(0, 0));
        QCOMPARE(table.stored(0, 1), QVariant("old"));
    }

    void aValueThatIsNoLongerOfferedIsCleared_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<QVariant>("before");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("offered by the case") << "sell" << QVariant("b") << QVariant("b");
        QTest::newRow("not offered by the case") << "sell" << QVariant("a") << QVariant("");
        QTest::newRow("no case: offered by the record") << "buy" << QVariant("a") << QVariant("a");
        QTest::newRow("no case: not offered") << "buy" << QVariant("c") << QVariant("");
        QTest::newRow("nothing chosen yet") << "sell" << QVariant() << QVariant("");
    }

    void aValueThatIsNoLongerOfferedIsCleared()
    {
        QFETCH(QString, side);
        QFETCH(QVariant, before);
        QFETCH(QVariant, expected);
        ParamTable table({"key", "side", "type"});
        table.addRow({"k", side, before});
        ZrParamRowUpdate("side", side, {{"type", dependent()}}).applyTo(table.model(), table.at(0, 1));
        QCOMPARE(table.stored(0, 2), expected);
        QCOMPARE(table.shown(0, 2), QVariant(expected.toString().toUpper()));
        QCOMPARE(table.stored(0, 1), QVariant(side));
    }

    void whoDependsOnAnotherIsLeftAlone()
    {
        ParamTable table({"key", "side", "type"});
        table.addRow({"k", "sell", "a"});
        ZrParamRowUpdate("price", "sell", {{"type", dependent()}}).applyTo(table.model(), table.at(0, 1));
        QCOMPARE(table.stored(0, 2), QVariant("a"));
        QVariantMap independent = dependent();
        independent.remove(Constants::STRATEGYPARAM_LINKPARAMID);
        ZrParamRowUpdate("side", "sell", {{"type", independent}}).applyTo(table.model(), table.at(0, 1));
        QCOMPARE(table.stored(0, 2), QVariant("a"));
    }

    void aRowThatGoesEndsTheUpdate()
    {
        ParamTable table({"key", Security::chineseName, UserAccount::SymbolPost});
        table.addRow({"k", "old", "old"});
        bool isGone = false;
        connect(table.model(), &QAbstractItemModel::dataChanged, this, [&] {
            if (!isGone) {
                isGone = true;
                table.view.deleteRow(0);
            }
        });
        ZrParamRowUpdate(Security::symbol, "000002.SZ", {}).applyTo(table.model(), table.at(0, 0));
        QVERIFY(isGone);
        QCOMPARE(table.view.getRowCount(), 0);
    }

private:
    FormHost m_host;
};

ZR_TEST_MAIN(tst_ZrParamRowUpdate)
#include "tst_zrparamrowupdate.moc"
