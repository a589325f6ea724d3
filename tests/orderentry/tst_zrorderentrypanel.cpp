#include "ZrMoneyQtyLineEdit.h"
#include "ZrOrderEntryNames.h"
#include "ZrOrderEntryPanel.h"
#include "ZrOrderReports.h"
#include "ZrPushButton.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrSearchBox.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/VexlorFields.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QWindow>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>

/// The form of an order, by keys and clicks.
class tst_ZrOrderEntryPanel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ZrQuietPlatform::install(); }
    void init();
    void cleanup();
    void aPickFillsTheForm();
    void returnGoesOnAndSends();
    void aFaultIsSaidAndNothingIsSent();
    void theSideIsChosen();
    void whileWaitingNothingIsSent();
    void aLevelFillsPriceAndQuantity();
    void anotherSecurityEmptiesWhatWasEntered();
    void theAccountIsChosen();
    void reportsUpdateTheirOrder();
    void everyEditorHasAName();

private:
    void type(const char *text);
    void press(Qt::Key key) { QTest::keyClick(m_panel->windowHandle(), key); }
    template<typename Part>
    Part *part(const char *name) const
    {
        return m_panel->findChild<Part *>(QLatin1String(name));
    }
    ZrMoneyQtyLineEdit *price() const { return part<ZrMoneyQtyLineEdit>("orderEntryPrice"); }
    ZrMoneyQtyLineEdit *quantity() const { return part<ZrMoneyQtyLineEdit>("orderEntryQuantity"); }

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<ZrOrderEntryPanel> m_panel;
    QList<ZrOrderTicket> m_sent;
};

void tst_ZrOrderEntryPanel::init()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    options.database.language = QStringLiteral("en");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
    m_panel = std::make_unique<ZrOrderEntryPanel>();
    m_sent.clear();
    connect(m_panel.get(), &ZrOrderEntryPanel::signalSend, this,
            [this](const ZrOrderTicket &ticket) { m_sent.append(ticket); });
    m_panel->resize(380, 560);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->findChild<ZrSearchBox *>()->setFocus();
}

void tst_ZrOrderEntryPanel::cleanup()
{
    m_panel.reset();
    m_host.stop();
}

void tst_ZrOrderEntryPanel::type(const char *text)
{
    for (const char *key = text; *key; ++key)
        QTest::keyClick(m_panel->windowHandle(), *key);
}

void tst_ZrOrderEntryPanel::aPickFillsTheForm()
{
    QSignalSpy chosen(m_panel.get(), &ZrOrderEntryPanel::signalSecurityChosen);
    type("600003");
    QTRY_COMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toString(), QString("600003.SH"));
    QCOMPARE(part<QLabel>("orderEntryName")->text(),
             CBusinessDataBase::GetInstance()->GetSecurityChineseName("600003.SH", QString()));
    QCOMPARE(price()->text(), QString("27.2"));
    QCOMPARE(quantity()->text(), QString("100"));
    QVERIFY(price()->hasFocus());
    QCOMPARE(price()->selectedText(), QString("27.2"));
}

void tst_ZrOrderEntryPanel::returnGoesOnAndSends()
{
    type("600003");
    QTRY_VERIFY(price()->hasFocus());
    type("27.35");
    press(Qt::Key_Return);
    QVERIFY(quantity()->hasFocus());
    quantity()->selectAll();
    type("500");
    press(Qt::Key_Return);
    QCOMPARE(m_sent.size(), 1);
    const ZrOrderTicket order = m_sent.constFirst();
    QCOMPARE(order.symbol, QString("600003.SH"));
    QCOMPARE(order.side, ZrOrderEntryCode::buy);
    QCOMPARE(order.price, QString("27.35"));
    QCOMPARE(order.quantity, QString("500"));
    QVERIFY(!order.account.isEmpty());
    QCOMPARE(order.timeInForce, QString("0"));
}

void tst_ZrOrderEntryPanel::aFaultIsSaidAndNothingIsSent()
{
    QTest::mouseClick(part<ZrPushButton>("orderEntrySend"), Qt::LeftButton);
    QCOMPARE(m_panel->said(), QString("Choose a security."));
    QCOMPARE(part<QLabel>("orderEntryMessage")->property("isError").toBool(), true);
    m_panel->setSecurity("600003.SH");
    price()->setText("1000");
    QTest::mouseClick(part<ZrPushButton>("orderEntrySend"), Qt::LeftButton);
    QCOMPARE(m_panel->said(), QString("The price must lie between 24.48 and 29.92."));
    QCOMPARE(m_sent.size(), 0);
    price()->setText("27.2");
    QTest::mouseClick(part<ZrPushButton>("orderEntrySend"), Qt::LeftButton);
    QCOMPARE(m_panel->said(), QString());
    QCOMPARE(m_sent.size(), 1);
}

void tst_ZrOrderEntryPanel::theSideIsChosen()
{
    QCOMPARE(m_panel->ticket().side, ZrOrderEntryCode::buy);
    part<QRadioButton>("orderEntrySell")->click();
    QCOMPARE(m_panel->ticket().side, ZrOrderEntryCode::sell);
    QVERIFY(!part<QRadioButton>("orderEntryBuy")->isChecked());
}

void tst_ZrOrderEntryPanel::whileWaitingNothingIsSent()
{
    m_panel->setSecurity("600003.SH");
    m_panel->setWaiting(true);
    quantity()->setFocus();
    press(Qt::Key_Return);
    QTest::mouseClick(part<ZrPushButton>("orderEntrySend"), Qt::LeftButton);
    QCOMPARE(m_sent.size(), 0);
    m_panel->setWaiting(false);
    press(Qt::Key_Return);
    QCOMPARE(m_sent.size(), 1);
}

void tst_ZrOrderEntryPanel::aLevelFillsPriceAndQuantity()
{
    m_panel->setSecurity("600003.SH");
    m_panel->setLevel(27.18, 1300);
    QCOMPARE(price()->text(), QString("27.18"));
    QCOMPARE(quantity()->text(), QString("1300"));
    m_panel->setLevel(0, -1);
    QCOMPARE(price()->text(), QString("27.18"));
    QCOMPARE(quantity()->text(), QString("1300"));
}

void tst_ZrOrderEntryPanel::anotherSecurityEmptiesWhatWasEntered()
{
    m_panel->setSecurity("600003.SH");
    m_panel->setLevel(27.18, 1300);
    m_panel->setSecurity("600003.SH");
    QCOMPARE(quantity()->text(), QString("1300"));
    m_panel->setSecurity("600000.SH");
    QCOMPARE(price()->text(), QString("33.94"));
    QCOMPARE(quantity()->text(), QString("100"));
    m_panel->setSecurity("nothing.XX");
    QCOMPARE(price()->text(), QString());
    QCOMPARE(quantity()->text(), QString());
}

void tst_ZrOrderEntryPanel::theAccountIsChosen()
{
    const auto boxes = m_panel->findChildren<QComboBox *>();
    const QString second = boxes.at(0)->itemText(1);
    m_panel->setAccount(second);
    QCOMPARE(m_panel->ticket().account, second);
    m_panel->setAccount("unknown");
    QCOMPARE(m_panel->ticket().account, second);
}

void tst_ZrOrderEntryPanel::reportsUpdateTheirOrder()
{
    ZrOrderReports *const reports = m_panel->reports();
    const QVariantMap first = {
        {ZrOrderEntryField::clientOrderId, "me/1"},     {ZrOrderEntryField::orderId, "V000001"},
        {Vexlor_Fields::Security::symbol, "600003.SH"}, {ZrOrderEntryField::price, 27.2},
        {ZrOrderEntryField::orderQty, 500.0},           {ZrOrderEntryField::cumQty, 0.0},
        {ZrOrderEntryField::orderStatus, "0"}};
    reports->take(first);
    QVariantMap other = first;
    other.insert(ZrOrderEntryField::clientOrderId, "me/2");
    reports->take(other);
    reports->take({{ZrOrderEntryField::clientOrderId, "me/1"}, {ZrOrderEntryField::orderStatus, "2"}});
    reports->take({{ZrOrderEntryField::orderStatus, "8"}}); // of no order
    QCOMPARE(reports->view()->getRowCount(), 2);
    const RecordData row = reports->view()->getRowDataByKey("me/1");
    QCOMPARE(row.value(6).value("0").toString(), QString("Filled"));
    QCOMPARE(row.value(1).value("0").toString(), QString("V000001"));
    QCOMPARE(row.value(3).value("0").toString(), QString("27.20"));
    QCOMPARE(reports->view()->getRowDataByKey("me/2").value(6).value("0").toString(), QString("New"));
}

void tst_ZrOrderEntryPanel::everyEditorHasAName()
{
    for (QWidget *const editor : {static_cast<QWidget *>(m_panel->findChild<ZrSearchBox *>()),
                                  static_cast<QWidget *>(price()), static_cast<QWidget *>(quantity())})
        QVERIFY(!editor->accessibleName().isEmpty());
    const auto boxes = m_panel->findChildren<QComboBox *>();
    for (const QComboBox *const box : boxes)
        QVERIFY(!box->accessibleName().isEmpty());
}

ZR_TEST_MAIN(tst_ZrOrderEntryPanel)
#include "tst_zrorderentrypanel.moc"
