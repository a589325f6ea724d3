#include "ZrTestMain.h"

#include "ZRSearch.h"

#include <QtCore/QTimer>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

#include <memory>

class tst_ZrCodeSearch : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theCurrentItemIsTaken();
    void withoutACurrentItemTheTextStays();
    void theClockIsStopped_data();
    void theClockIsStopped();
    void nothingIsSuggested();
    void fieldAndPopupMayEndFirst();
    void theSlotsAreFoundByName();

private:
    std::unique_ptr<QLineEdit> m_editor;
    std::unique_ptr<QTreeWidget> m_popup;
    std::unique_ptr<ZRSearch> m_search;
};

void tst_ZrCodeSearch::init()
{
    m_editor = std::make_unique<QLineEdit>("60");
    m_popup = std::make_unique<QTreeWidget>();
    m_popup->setColumnCount(2);
    new QTreeWidgetItem(m_popup.get(), {"600519.SH", "Maotai"});
    m_popup->show();
    m_search = std::make_unique<ZRSearch>(m_editor.get(), m_popup.get());
    m_search->timer()->start(60 * 1000);
}

void tst_ZrCodeSearch::cleanup()
{
    m_search.reset();
    m_popup.reset();
    m_editor.reset();
}

void tst_ZrCodeSearch::theCurrentItemIsTaken()
{
    m_popup->setCurrentItem(m_popup->topLevelItem(0), 1);
    m_search->doneCompletion();
    QCOMPARE(m_editor->text(), QString("600519.SH"));
    QVERIFY(!m_popup->isVisible());
    QVERIFY(!m_search->timer()->isActive());
}

void tst_ZrCodeSearch::withoutACurrentItemTheTextStays()
{
    m_popup->setCurrentItem(nullptr);
    m_search->doneCompletion();
    QCOMPARE(m_editor->text(), QString("60"));
    QVERIFY(!m_popup->isVisible());
}

void tst_ZrCodeSearch::theClockIsStopped_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<bool>("stopped");
    QTest::newRow("done") << QByteArray("doneCompletion") << true;
    QTest::newRow("prevented") << QByteArray("preventSuggest") << true;
    QTest::newRow("suggested") << QByteArray("autoSuggest") << false;
    QTest::newRow("answered") << QByteArray("slotRspCodeSearchs") << false;
}

void tst_ZrCodeSearch::theClockIsStopped()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, stopped);
    QVERIFY(QMetaObject::invokeMethod(m_search.get(), slot.constData()));
    QCOMPARE(m_search->timer()->isActive(), !stopped);
}

void tst_ZrCodeSearch::nothingIsSuggested()
{
    m_search->autoSuggest();
    m_search->slotRspCodeSearchs();
    QCOMPARE(m_editor->text(), QString("60"));
    QVERIFY(m_popup->isVisible());
    QCOMPARE(m_popup->topLevelItemCount(), 1);
}

void tst_ZrCodeSearch::fieldAndPopupMayEndFirst()
{
    m_popup->setCurrentItem(m_popup->topLevelItem(0));
    m_editor.reset();
    m_search->doneCompletion();
    QVERIFY(!m_popup->isVisible());
    m_popup.reset();
    m_search->timer()->start(60 * 1000);
    m_search->doneCompletion();
    QVERIFY(!m_search->timer()->isActive());
}

void tst_ZrCodeSearch::theSlotsAreFoundByName()
{
    const QMetaObject &meta = ZRSearch::staticMetaObject;
    QCOMPARE(meta.className(), "ZRSearch");
    for (const char *const slot :
         {"doneCompletion()", "preventSuggest()", "autoSuggest()", "slotRspCodeSearchs()"})
        QVERIFY2(meta.indexOfSlot(slot) >= 0, slot);
}

ZR_TEST_MAIN(tst_ZrCodeSearch)
#include "tst_zrcodesearch.moc"
