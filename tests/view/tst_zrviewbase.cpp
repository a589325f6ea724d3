#include "ZrTestMain.h"
#include "ZrViewBase.h"

namespace {

class Grid : public ZrViewBase
{
public:
    void setPluginViewColumnVisiableProperity(const QList<int> &) override {}
    QList<int> getHeadLogicIndexList() override { return {}; }
    void setPluginViewHeadLogicIndexProperity(const QList<int> &) override {}
    HeadList getHeadList() override { return {}; }
    HeadList getVisibleHeadData() override { return {}; }
    RecordDataList getViewCurrentDisplayData() override { return {}; }
    using ZrViewBase::setCanCfgFromPluginSetting;
};

} // namespace

class TestZrViewBase : public QObject
{
    Q_OBJECT
private slots:
    void newGridHasNoCaptionAndBothSwitchesOff()
    {
        const Grid grid;
        QCOMPARE(grid.GetViewCaption(), QString());
        QVERIFY(!grid.GetRowCheckOnClickEnable());
        QVERIFY(!grid.canCfgFromPluginSetting());
    }

    void whatIsSetIsReadBack()
    {
        Grid grid;
        grid.SetViewCaption(QStringLiteral("Orders"));
        grid.SetRowCheckOnClickEnable(true);
        QVERIFY(!grid.canCfgFromPluginSetting());
        grid.setCanCfgFromPluginSetting(true);
        QCOMPARE(grid.GetViewCaption(), QStringLiteral("Orders"));
        QVERIFY(grid.GetRowCheckOnClickEnable());
        QVERIFY(grid.canCfgFromPluginSetting());
    }

    void gridWithoutExportOfItsOwnLeavesItToTheFrame()
    {
        Grid grid;
        grid.showCfgPanel();
        QVERIFY(!grid.exportViewData());
    }
};

ZR_TEST_MAIN(TestZrViewBase)
#include "tst_zrviewbase.moc"
