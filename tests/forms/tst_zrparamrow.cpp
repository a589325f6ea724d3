#include "ParamTable.h"
#include "ZrParamRow.h"

#include <QtGui/QStandardItemModel>

class tst_ZrParamRow : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_host.isReady()); }

    void aColumnHasTheIdOfItsHead()
    {
        ParamTable table({"key", "price", ""});
        table.addRow({"k", 1, 2});
        QCOMPARE(ZrParamRow::idAt(table.at(0, 1)), QString("price"));
        QCOMPARE(ZrParamRow::idAt(table.at(0, 2)), QString());
        QCOMPARE(ZrParamRow::idAt(QModelIndex()), QString());
    }

    void valuesAreTheTextsOfCellsWithARecord()
    {
        ParamTable table({"key", "price", "note", "more"});
        table.addRow({"k", 1.5, "n"});
        const QVariantMap values =
            ZrParamRow::presentValues(table.at(0, 0), {{"price", {}}, {"note", {}}, {"more", {}}});
        QCOMPARE(values, QVariantMap({{"price", "1.5"}, {"note", "n"}}));
        QCOMPARE(values.value("price").userType(), int(QMetaType::QString));
    }

    void theSecuritysDetailsStandInForWhatIsMissing()
    {
        const QString symbol = Vexlor_Fields::Security::symbol, name = Vexlor_Fields::Security::chineseName;
        ParamTable table({"key", symbol, name});
        table.addRow({"k", "600001.SH", "own name"});
        table.addRow({"l", "600001.SH"});
        table.addRow({"m", "unknown"});
        const ZrParamRow::Records records{{symbol, {}}, {name, {}}};
        QCOMPARE(ZrParamRow::presentValues(table.at(0, 0), records).value(name), QVariant("own name"));
        QCOMPARE(ZrParamRow::presentValues(table.at(0, 0), records).value("SecurityType"), QVariant("Stock"));
        QCOMPARE(ZrParamRow::presentValues(table.at(1, 0), records).value(name), QVariant("north bank"));
        QCOMPARE(ZrParamRow::presentValues(table.at(2, 0), records), QVariantMap({{symbol, "unknown"}}));
    }

    void pseudoColumnsAreNoParameters()
    {
        ParamTable table({"key", "price"});
        table.view.setCheckBoxShow(true);
        table.addRow({"k", 7});
        const QModelIndex price = table.model()->index(0, 2);
        QCOMPARE(ZrParamRow::idAt(price), QString("price"));
        QCOMPARE(ZrParamRow::presentValues(price, {{"price", {}}}), QVariantMap({{"price", "7"}}));
    }

    void aForeignModelHasNone()
    {
        QStandardItemModel model(1, 1);
        QCOMPARE(ZrParamRow::idAt(model.index(0, 0)), QString());
        QVERIFY(ZrParamRow::presentValues(model.index(0, 0), {{"", {}}}).isEmpty());
    }

private:
    FormHost m_host;
};

ZR_TEST_MAIN(tst_ZrParamRow)
#include "tst_zrparamrow.moc"
