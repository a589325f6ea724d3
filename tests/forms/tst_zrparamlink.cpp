#include "FormScene.h"
#include "ZrParamLink.h"

namespace {
QStringList texts(const ZrParamLink &link)
{
    QStringList list;
    const QVector<ZrParamOption> options = link.options();
    for (const ZrParamOption &option : options)
        list.append(option.text);
    return list;
}

QVariantMap withOptions(const form::Options &options)
{
    return {{Constants::STRATEGYPARAM_OPTIONS, form::options(options)}};
}

QVariantMap linkedRecord(const QVariantList &cases)
{
    return form::joined(form::record("price", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_STRING,
                                     withOptions({{"own", "o"}})),
                        form::link("side", cases));
}
} // namespace

class tst_ZrParamLink : public QObject
{
    Q_OBJECT
private slots:
    void theOtherValueSelectsTheCase_data()
    {
        QTest::addColumn<QVariant>("caseValue");
        QTest::addColumn<QString>("present");
        QTest::addColumn<bool>("expected");
        QTest::newRow("same text") << QVariant("buy") << "buy" << true;
        QTest::newRow("other text") << QVariant("buy") << "sell" << false;
        QTest::newRow("other letters") << QVariant("buy") << "BUY" << false;
        QTest::newRow("number for its text") << QVariant(1) << "1" << true;
        QTest::newRow("number for no number") << QVariant(1) << "one" << false;
        QTest::newRow("truth for its text") << QVariant(true) << "true" << true;
        QTest::newRow("truth for untruth") << QVariant(true) << "false" << false;
        QTest::newRow("nothing for nothing") << QVariant("") << "" << true;
        QTest::newRow("no value for nothing") << QVariant() << "" << false;
    }

    void theOtherValueSelectsTheCase()
    {
        QFETCH(QVariant, caseValue);
        QFETCH(QString, present);
        QFETCH(bool, expected);
        const QVariantMap record = linkedRecord({form::linkCase(caseValue, withOptions({{"case", "c"}}))});
        const ZrParamLink link(record, present);
        QVERIFY(link.isLinked());
        QCOMPARE(!link.currentCase().isEmpty(), expected);
        QCOMPARE(texts(link), QStringList(expected ? "case" : "own"));
    }

    void theFirstOfSeveralMatchesWins()
    {
        const ZrParamLink link(linkedRecord({form::linkCase("buy", withOptions({{"first", 1}})),
                                             form::linkCase("buy", withOptions({{"second", 2}}))}),
                               "buy");
        QCOMPARE(texts(link), QStringList("first"));
    }

    void aCaseWithoutChoicesLeavesNone()
    {
        const ZrParamLink link(linkedRecord({form::linkCase("buy", {})}), "buy");
        QVERIFY(link.options().isEmpty());
    }

    void casesWithoutALinkHaveNoSay()
    {
        QVariantMap record = linkedRecord({form::linkCase("buy", withOptions({{"case", "c"}}))});
        record.remove(Constants::STRATEGYPARAM_LINKPARAMID);
        const ZrParamLink link(record, "buy");
        QVERIFY(!link.isLinked());
        QCOMPARE(texts(link), QStringList("own"));
    }

    void presentValuesAreLookedUpById()
    {
        const QVariantMap record = linkedRecord({form::linkCase(2, withOptions({{"case", "c"}}))});
        QCOMPARE(ZrParamLink::otherId(record), QString("side"));
        QCOMPARE(texts(ZrParamLink::among(record, {{"side", 2}, {"price", 1}})), QStringList("case"));
        QCOMPARE(texts(ZrParamLink::among(record, {{"price", 2}})), QStringList("own"));
    }

    void offersComparesStoredValues()
    {
        const ZrParamLink link(linkedRecord({form::linkCase("buy", withOptions({{"one", 1}, {"b", "two"}}))}),
                               "buy");
        QVERIFY(link.offers(1));
        QVERIFY(link.offers("1"));
        QVERIFY(link.offers("two"));
        QVERIFY(!link.offers("one")); // a text that is shown
        QVERIFY(!link.offers("o"));   // the record's own
        QVERIFY(!link.offers(QVariant()));
    }

    void whatIsNoListHasNoChoices()
    {
        QVariantMap record = form::record("p", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_STRING);
        record.insert(Constants::STRATEGYPARAM_OPTIONS, "Stock");
        QVERIFY(ZrParamLink(record, QString()).options().isEmpty());
        record.insert(Constants::STRATEGYPARAM_OPTIONS, QVariantList{"Stock"});
        QCOMPARE(ZrParamLink(record, QString()).options().size(), 1);
        QVERIFY(ZrParamLink(record, QString()).options().constFirst().text.isEmpty());
    }
};

ZR_TEST_GUILESS_MAIN(tst_ZrParamLink)
#include "tst_zrparamlink.moc"
