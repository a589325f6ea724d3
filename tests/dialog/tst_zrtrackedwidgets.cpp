#include "ZrTestMain.h"
#include "ZrTrackedWidgets.h"

class tst_ZrTrackedWidgets : public QObject
{
    Q_OBJECT
private slots:
    void aTreeTracksAndIsGivenBack();
    void whatTrackedByItselfGoesOn();
    void aSecondTimeChangesNothing();
    void widgetsMayGo();
    void nullIsIgnored();
};

void tst_ZrTrackedWidgets::aTreeTracksAndIsGivenBack()
{
    QWidget top;
    QWidget middle(&top);
    const QWidget below(&middle);
    ZrTrackedWidgets tracked;
    tracked.trackTree(&middle);
    QVERIFY(!top.hasMouseTracking());
    QVERIFY(middle.hasMouseTracking());
    QVERIFY(below.hasMouseTracking());
    tracked.giveBack();
    QVERIFY(!middle.hasMouseTracking());
    QVERIFY(!below.hasMouseTracking());
}

void tst_ZrTrackedWidgets::whatTrackedByItselfGoesOn()
{
    QWidget top;
    QWidget own(&top);
    own.setMouseTracking(true);
    ZrTrackedWidgets tracked;
    tracked.trackTree(&top);
    tracked.giveBack();
    QVERIFY(!top.hasMouseTracking());
    QVERIFY(own.hasMouseTracking());
}

void tst_ZrTrackedWidgets::aSecondTimeChangesNothing()
{
    QWidget widget;
    ZrTrackedWidgets tracked;
    tracked.track(&widget);
    tracked.track(&widget);
    QVERIFY(widget.hasMouseTracking());
    tracked.giveBack();
    QVERIFY(!widget.hasMouseTracking());
    widget.setMouseTracking(true);
    tracked.giveBack();
    QVERIFY(widget.hasMouseTracking());
}

void tst_ZrTrackedWidgets::widgetsMayGo()
{
    auto widget = std::make_unique<QWidget>();
    QWidget stays;
    ZrTrackedWidgets tracked;
    tracked.track(widget.get());
    tracked.track(&stays);
    widget.reset();
    tracked.giveBack();
    QVERIFY(!stays.hasMouseTracking());
}

void tst_ZrTrackedWidgets::nullIsIgnored()
{
    ZrTrackedWidgets tracked;
    tracked.track(nullptr);
    tracked.trackTree(nullptr);
    tracked.giveBack();
}

ZR_TEST_MAIN(tst_ZrTrackedWidgets)
#include "tst_zrtrackedwidgets.moc"
