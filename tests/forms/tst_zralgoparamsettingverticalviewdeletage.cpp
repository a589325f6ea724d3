#include "ParamTable.h"
#include "ZrAlgoParamSettingVerticalViewDeletage.h"

#include <QtWidgets/QLineEdit>

#include <memory>

class tst_ZrAlgoParamSettingVerticalViewDeletage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_quiet = std::make_unique<QuietPlatform>();
        QVERIFY(m_host.isReady());
    }
    void cleanupTestCase() { m_quiet.reset(); }

    void anEditorHasAnEdgeOfFivePixels()
    {
        QWidget window;
        QLineEdit edit(&window);
        QStyleOptionViewItem option;
        option.rect = QRect(100, 40, 200, 32);
        ZrAlgoParamSettingVerticalViewDeletage().updateEditorGeometry(&edit, option, QModelIndex());
        QCOMPARE(edit.geometry(), QRect(105, 45, 190, 22));
    }

    void aCellWidgetStandsInTheMiddleOfItsCell()
    {
        ParamTable table({"name", "value"});
        table.view.setZrTableItemDelegate(new ZrAlgoParamSettingVerticalViewDeletage);
        table.addRow({"k", "v"});
        auto *const edit = new QLineEdit;
        table.view.setItemWidget(0, 1, edit);
        table.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table.window));
        const QRect cell = table.view.getTableView()->visualRect(table.at(0, 1));
        QCOMPARE(edit->geometry(), cell.adjusted(5, 5, -5, -5));
    }

    void nothingGoesBetweenEditorAndModel()
    {
        ParamTable table({"name", "value"});
        table.addRow({"k", "v"});
        QSignalSpy changed(table.model(), &QAbstractItemModel::dataChanged);
        const ZrAlgoParamSettingVerticalViewDeletage delegate;
        QLineEdit edit("typed");
        delegate.setEditorData(&edit, table.at(0, 1));
        QCOMPARE(edit.text(), QString("typed"));
        delegate.setModelData(&edit, table.model(), table.at(0, 1));
        QCOMPARE(table.stored(0, 1), QVariant("v"));
        QVERIFY(changed.isEmpty());
    }

private:
    FormHost m_host;
    std::unique_ptr<QuietPlatform> m_quiet; // once the test's own handler is in place
};

ZR_TEST_MAIN(tst_ZrAlgoParamSettingVerticalViewDeletage)
#include "tst_zralgoparamsettingverticalviewdeletage.moc"
