#include "ZrBlotterFields.h"
#include "ZrBlotterPresenter.h"
#include "ZrClientFields.h"
#include "ZrMessageInbox.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"

#include <QtCore/QTemporaryDir>

/// What the blotter takes from the bus, and what it gives to it.
class tst_ZrBlotterPresenter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void ordersAndReportsGoToTheInbox();
    void otherMessagesDoNot();
    void nothingComesAfterDetaching();
    void aSecurityGoesToTheGroup();
    void otherEventsSelectNothing();
    void theNamesAreThoseOfTheClient();

private:
    void publish(const QString &type);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrMessageInbox> m_inbox;
    QPointer<ZrBlotterPresenter> m_presenter;
    std::vector<ZrInboxMessage> m_taken;
};

void tst_ZrBlotterPresenter::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_inbox = std::make_unique<ZrMessageInbox>();
    m_taken.clear();
    connect(m_inbox.get(), &ZrMessageInbox::signalBatch, this,
            [this](const std::vector<ZrInboxMessage> &batch) {
                m_taken.insert(m_taken.end(), batch.begin(), batch.end());
            });
    m_presenter = new ZrBlotterPresenter(QStringLiteral("desk#blotter#_0"), nullptr, m_inbox.get());
    m_presenter->open();
}

void tst_ZrBlotterPresenter::cleanup()
{
    m_presenter->detach();
    m_presenter->deleteLater();
    QTRY_VERIFY(!m_presenter);
    m_host.stop();
    m_inbox.reset();
}

void tst_ZrBlotterPresenter::publish(const QString &type)
{
    m_host.publish(type, {{{ZrBlotterFields::orderId, "9"}}});
    QVERIFY(m_host.waitIdle(60000));
}

void tst_ZrBlotterPresenter::ordersAndReportsGoToTheInbox()
{
    publish(ZrBlotterMsgType::order);
    publish(Vexlor_MsgType::executionReport);
    QTRY_COMPARE(int(m_taken.size()), 2);
    QCOMPARE(m_taken[0].type, ZrBlotterMsgType::order);
    QCOMPARE(m_taken[1].type, Vexlor_MsgType::executionReport);
    QCOMPARE(m_taken[1].record.value(ZrBlotterFields::orderId).toString(), QStringLiteral("9"));
}

void tst_ZrBlotterPresenter::otherMessagesDoNot()
{
    publish(ZrClientMsgType::trade);
    publish(ZrClientMsgType::depth);
    m_presenter->ProcMsg(QString(), ZrClientMsgType::trade, QVariantList{QVariantMap{{"OrderID", "9"}}});
    QVERIFY(m_inbox->isEmpty());
}

void tst_ZrBlotterPresenter::nothingComesAfterDetaching()
{
    publish(ZrBlotterMsgType::order);
    QTRY_COMPARE(int(m_taken.size()), 1);
    m_presenter->detach();
    publish(ZrBlotterMsgType::order);
    // A message may be on its way to the receiver while the subscription ends.
    m_presenter->ProcMsg(QString(), ZrBlotterMsgType::order, QVariantList{QVariantMap{{"OrderID", "9"}}});
    QVERIFY(m_inbox->isEmpty());
}

void tst_ZrBlotterPresenter::aSecurityGoesToTheGroup()
{
    const QString menu = QStringLiteral("desk");
    const auto linked = [&](const char *pid, RelationColor_t group) {
        auto *const other = new ZrBlotterPresenter(QLatin1String(pid), nullptr, m_inbox.get());
        other->setRelation(menu, other->pluginPid(), ZrSecurityLinkage, group, 1);
        return other;
    };
    m_presenter->setRelation(menu, m_presenter->pluginPid(), ZrSecurityLinkage, RelationColorSecond, 1);
    ZrBlotterPresenter *const same = linked("desk#blotter#_1", RelationColorSecond);
    ZrBlotterPresenter *const different = linked("desk#blotter#_2", RelationColorThird);
    QSignalSpy own(m_presenter.data(), &ZrBlotterPresenter::signalSecurityChosen);
    QSignalSpy sameGroup(same, &ZrBlotterPresenter::signalSecurityChosen);
    QSignalSpy otherGroup(different, &ZrBlotterPresenter::signalSecurityChosen);
    m_presenter->tellSecurity(QStringLiteral("600000.SH"));
    QVERIFY(m_host.waitIdle(60000));
    QCOMPARE(sameGroup.size(), 1);
    QCOMPARE(sameGroup.at(0).at(0).toString(), QStringLiteral("600000.SH"));
    QCOMPARE(otherGroup.size(), 0);
    QCOMPARE(own.size(), 0);
    for (ZrBlotterPresenter *const other : {same, different}) {
        other->detach();
        QSignalSpy gone(other, &QObject::destroyed);
        other->deleteLater();
        QTRY_COMPARE(gone.size(), 1);
    }
}

void tst_ZrBlotterPresenter::otherEventsSelectNothing()
{
    QSignalSpy chosen(m_presenter.data(), &ZrBlotterPresenter::signalSecurityChosen);
    const QVariantMap good = {{Vexlor_Fields::Security::symbol, "600000.SH"}};
    m_presenter->ProcEventMsg(QString(), ZrSecurityLinkage + 1, good);
    m_presenter->ProcEventMsg(QString(), ZrSecurityLinkage, QVariantMap());
    m_presenter->ProcEventMsg(QString(), ZrSecurityLinkage, QStringLiteral("600000.SH"));
    m_presenter->ProcEventMsg(QString(), QVariant(), good);
    QCOMPARE(chosen.size(), 0);
    m_presenter->ProcEventMsg(QString(), ZrSecurityLinkage, good);
    QCOMPARE(chosen.size(), 1);
}

void tst_ZrBlotterPresenter::theNamesAreThoseOfTheClient()
{
    QCOMPARE(ZrBlotterMsgType::order, ZrClientMsgType::order);
    const QVector<QPair<QString, QString>> names = {
        {ZrBlotterFields::seqNo, ZrClientFields::seqNo},
        {ZrBlotterFields::sentNs, ZrClientFields::sentNs},
        {ZrBlotterFields::orderId, ZrClientFields::orderId},
        {ZrBlotterFields::side, ZrClientFields::side},
        {ZrBlotterFields::orderStatus, ZrClientFields::orderStatus},
        {ZrBlotterFields::price, ZrClientFields::price},
        {ZrBlotterFields::orderQty, ZrClientFields::orderQty},
        {ZrBlotterFields::orderValue, ZrClientFields::orderValue},
        {ZrBlotterFields::cumQty, ZrClientFields::cumQty},
        {ZrBlotterFields::leavesQty, ZrClientFields::leavesQty},
        {ZrBlotterFields::cancelledQty, ZrClientFields::cancelledQty},
        {ZrBlotterFields::filledValue, ZrClientFields::filledValue},
        {ZrBlotterFields::fillCount, ZrClientFields::fillCount},
        {ZrBlotterReport::number, ZrPluginReport::number},
        {ZrBlotterReport::appliedNs, ZrPluginReport::appliedNs},
        {ZrBlotterReport::sentNs, ZrPluginReport::sentNs},
        {ZrBlotterReport::inSightNs, ZrPluginReport::inSightNs},
        {ZrBlotterReport::rows, ZrPluginReport::rows},
        {ZrBlotterReport::isWaiting, ZrPluginReport::isWaiting},
        {ZrBlotterProperty::maxRows, ZrPluginSetting::maxRows},
    };
    for (const auto &name : names)
        QCOMPARE(name.first, name.second);
}

ZR_TEST_GUILESS_MAIN(tst_ZrBlotterPresenter)
#include "tst_zrblotterpresenter.moc"
