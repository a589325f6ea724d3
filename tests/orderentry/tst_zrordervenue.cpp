#include "desk/ZrOrderVenue.h"
#include "ZrClientFields.h"
#include "ZrOrderEntryNames.h"
#include "ZrOrderEntryPresenter.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

/// What the client's own venue does with an order that comes over the bus.
class tst_ZrOrderVenue : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void bothSidesUseTheSameNames();
    void anOrderIsAcceptedReportedAndFilled();
    void theAccountsDetailsAreAdded();
    void ordersAreNumbered();
    void aFaultyOrderIsRejected_data();
    void aFaultyOrderIsRejected();
    void withoutAVenueNobodyAnswers();
    void reportsOnOtherOrdersAreNotTold();

private:
    static QVariantMap order(const QString &number);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrOrderVenue> m_venue;
    QPointer<ZrOrderEntryPresenter> m_presenter; // goes by its own deleteLater
};

void tst_ZrOrderVenue::init()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); // one line for each message
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_venue = std::make_unique<ZrOrderVenue>(
        &m_host, QList<QVariantMap>{{{Vexlor_Fields::UserAccount::tradingAccount, "A1"},
                                     {ZrClientFields::productAccount, "P1"}}});
    m_presenter = new ZrOrderEntryPresenter(QStringLiteral("desk#orderentry#_0"), nullptr);
    m_presenter->open();
}

void tst_ZrOrderVenue::cleanup()
{
    m_presenter->detach();
    m_presenter->deleteLater();
    m_venue.reset();
    m_host.stop();
}

QVariantMap tst_ZrOrderVenue::order(const QString &number)
{
    return {{Vexlor_Fields::System::msgType, ZrOrderVenue::messageType()},
            {Vexlor_Fields::System::clientMsgID, number},
            {ZrOrderEntryField::clientOrderId, number},
            {Vexlor_Fields::Security::symbol, "600519.SH"},
            {Vexlor_Fields::UserAccount::tradingAccount, "A1"},
            {ZrOrderEntryField::side, "1"},
            {ZrOrderEntryField::orderType, "2"},
            {ZrOrderEntryField::timeInForce, "0"},
            {ZrOrderEntryField::price, 10.0},
            {ZrOrderEntryField::orderQty, 300.0}};
}

void tst_ZrOrderVenue::bothSidesUseTheSameNames()
{
    QCOMPARE(ZrOrderVenue::messageType(), ZrOrderEntryMsgType::newOrder);
    QCOMPARE(ZrClientFields::orderId, ZrOrderEntryField::orderId);
    QCOMPARE(ZrClientFields::side, ZrOrderEntryField::side);
    QCOMPARE(ZrClientFields::orderType, ZrOrderEntryField::orderType);
    QCOMPARE(ZrClientFields::timeInForce, ZrOrderEntryField::timeInForce);
    QCOMPARE(ZrClientFields::price, ZrOrderEntryField::price);
    QCOMPARE(ZrClientFields::orderQty, ZrOrderEntryField::orderQty);
    QCOMPARE(ZrClientFields::orderStatus, ZrOrderEntryField::orderStatus);
    QCOMPARE(ZrClientFields::cumQty, ZrOrderEntryField::cumQty);
    QCOMPARE(ZrClientFields::averagePrice, ZrOrderEntryField::averagePrice);
    QCOMPARE(ZrClientFields::updateClock, ZrOrderEntryField::updateClock);
}

void tst_ZrOrderVenue::anOrderIsAcceptedReportedAndFilled()
{
    QSignalSpy accepted(m_presenter.data(), &ZrOrderEntryPresenter::signalAccepted);
    QSignalSpy reports(m_presenter.data(), &ZrOrderEntryPresenter::signalReport);
    m_presenter->send(order(m_presenter->nextOrderNumber()));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(reports.size(), 2);
    const QVariantMap taken = reports.at(0).at(0).toMap();
    const QVariantMap filled = reports.at(1).at(0).toMap();
    QCOMPARE(taken.value(ZrClientFields::orderStatus).toString(), QString("0"));
    QCOMPARE(taken.value(ZrClientFields::leavesQty).toDouble(), 300.0);
    QCOMPARE(filled.value(ZrClientFields::orderStatus).toString(), QString("2"));
    QCOMPARE(filled.value(ZrClientFields::cumQty).toDouble(), 300.0);
    QCOMPARE(filled.value(ZrClientFields::leavesQty).toDouble(), 0.0);
    QCOMPARE(filled.value(ZrClientFields::averagePrice).toDouble(), 10.0);
    QCOMPARE(filled.value(ZrClientFields::orderId), accepted.at(0).at(0).toMap().value("OrderID"));
}

void tst_ZrOrderVenue::theAccountsDetailsAreAdded()
{
    QSignalSpy reports(m_presenter.data(), &ZrOrderEntryPresenter::signalReport);
    m_presenter->send(order(m_presenter->nextOrderNumber()));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(reports.value(0).value(0).toMap().value(ZrClientFields::productAccount).toString(),
             QString("P1"));
}

void tst_ZrOrderVenue::ordersAreNumbered()
{
    QSignalSpy accepted(m_presenter.data(), &ZrOrderEntryPresenter::signalAccepted);
    m_presenter->send(order(m_presenter->nextOrderNumber()));
    m_presenter->send(order(m_presenter->nextOrderNumber()));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(accepted.size(), 2);
    QVERIFY(accepted.at(0).at(0).toMap().value("OrderID") != accepted.at(1).at(0).toMap().value("OrderID"));
}

void tst_ZrOrderVenue::aFaultyOrderIsRejected_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("expected");
    QTest::newRow("security") << Vexlor_Fields::Security::symbol << "Order without a security";
    QTest::newRow("side") << ZrOrderEntryField::side << "Order without a side";
    QTest::newRow("price") << ZrOrderEntryField::price << "Order without a price";
    QTest::newRow("quantity") << ZrOrderEntryField::orderQty << "Order without a quantity";
}

void tst_ZrOrderVenue::aFaultyOrderIsRejected()
{
    QFETCH(QString, field);
    QFETCH(QString, expected);
    QSignalSpy refused(m_presenter.data(), &ZrOrderEntryPresenter::signalRefused);
    QSignalSpy reports(m_presenter.data(), &ZrOrderEntryPresenter::signalReport);
    QVariantMap faulty = order(m_presenter->nextOrderNumber());
    faulty.remove(field);
    m_presenter->send(faulty);
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.at(0).at(0).toInt(), 2);
    QCOMPARE(refused.at(0).at(1).toString(), expected);
    QCOMPARE(reports.size(), 0);
}

void tst_ZrOrderVenue::withoutAVenueNobodyAnswers()
{
    m_venue.reset();
    QSignalSpy accepted(m_presenter.data(), &ZrOrderEntryPresenter::signalAccepted);
    QSignalSpy refused(m_presenter.data(), &ZrOrderEntryPresenter::signalRefused);
    m_presenter->setRequestTimeOut(0); // at the next tick of its clock
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Async request timeout"));
    m_presenter->send(order(m_presenter->nextOrderNumber()));
    QTRY_COMPARE(refused.size(), 1);
    QCOMPARE(refused.at(0).at(0).toInt(), 1);
    QCOMPARE(accepted.size(), 0);
}

void tst_ZrOrderVenue::reportsOnOtherOrdersAreNotTold()
{
    QSignalSpy reports(m_presenter.data(), &ZrOrderEntryPresenter::signalReport);
    m_presenter->send(order(QStringLiteral("desk#orderentry#_1/1")));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(reports.size(), 0);
}

ZR_TEST_MAIN(tst_ZrOrderVenue)
#include "tst_zrordervenue.moc"
