#include "ZrPluginTitleWidgets.h"
#include "ZrTestMain.h"

#include <memory>

class TestZrPluginTitleWidgets : public QObject
{
    Q_OBJECT
private slots:
    void anAddedWidgetIsToldWithItsSide();
    void nullAndKnownWidgetsAreIgnored();
    void aRemovedWidgetIsHiddenAndTold();
    void anUnknownWidgetIsNotRemoved();
    void nullRemovesAllInOrder();
    void aDeadWidgetIsForgotten();
    void aListenerMayEndTheNextWidget();
    void aListenerMayEndThePlugin();
};

void TestZrPluginTitleWidgets::anAddedWidgetIsToldWithItsSide()
{
    ZrPluginTitleWidgets title;
    QSignalSpy added(&title, &ZrPluginTitleWidgets::added);
    QWidget left, right;
    title.add(&left, false);
    title.add(&right, true);
    QCOMPARE(title.widgets(), (QList<QWidget *>{&left, &right}));
    QCOMPARE(added.size(), 2);
    QCOMPARE(added.at(0).at(0).value<QWidget *>(), &left);
    QCOMPARE(added.at(0).at(1).toBool(), false);
    QCOMPARE(added.at(1).at(1).toBool(), true);
}

void TestZrPluginTitleWidgets::nullAndKnownWidgetsAreIgnored()
{
    ZrPluginTitleWidgets title;
    QSignalSpy added(&title, &ZrPluginTitleWidgets::added);
    QWidget widget;
    title.add(nullptr, true);
    title.add(&widget, false);
    title.add(&widget, true);
    QCOMPARE(added.size(), 1);
    QCOMPARE(title.widgets(), QList<QWidget *>{&widget});
}

void TestZrPluginTitleWidgets::aRemovedWidgetIsHiddenAndTold()
{
    ZrPluginTitleWidgets title;
    QWidget widget;
    widget.show();
    title.add(&widget, false);
    bool wasHidden = false;
    bool wasListed = false;
    connect(&title, &ZrPluginTitleWidgets::removed, this, [&](QWidget *leaving) {
        wasHidden = leaving->isHidden();
        wasListed = title.widgets().contains(leaving);
    });
    title.remove(&widget);
    QVERIFY(wasHidden);
    QVERIFY(wasListed);
    QVERIFY(title.widgets().isEmpty());
    title.add(&widget, false);
    QCOMPARE(title.widgets(), QList<QWidget *>{&widget});
}

void TestZrPluginTitleWidgets::anUnknownWidgetIsNotRemoved()
{
    ZrPluginTitleWidgets title;
    QSignalSpy removed(&title, &ZrPluginTitleWidgets::removed);
    QWidget widget;
    widget.show();
    title.remove(&widget);
    title.remove(nullptr);
    QVERIFY(removed.isEmpty());
    QVERIFY(!widget.isHidden());
}

void TestZrPluginTitleWidgets::nullRemovesAllInOrder()
{
    ZrPluginTitleWidgets title;
    QSignalSpy removed(&title, &ZrPluginTitleWidgets::removed);
    QWidget first, second;
    title.add(&first, false);
    title.add(&second, true);
    title.remove(nullptr);
    QCOMPARE(removed.size(), 2);
    QCOMPARE(removed.at(0).at(0).value<QWidget *>(), &first);
    QCOMPARE(removed.at(1).at(0).value<QWidget *>(), &second);
    QVERIFY(title.widgets().isEmpty());
}

void TestZrPluginTitleWidgets::aDeadWidgetIsForgotten()
{
    ZrPluginTitleWidgets title;
    {
        QWidget widget;
        title.add(&widget, false);
    }
    QVERIFY(title.widgets().isEmpty());
    title.remove(nullptr);
}

void TestZrPluginTitleWidgets::aListenerMayEndTheNextWidget()
{
    ZrPluginTitleWidgets title;
    auto *const first = new QWidget;
    auto *const second = new QWidget;
    title.add(first, false);
    title.add(second, false);
    QSignalSpy removed(&title, &ZrPluginTitleWidgets::removed);
    connect(&title, &ZrPluginTitleWidgets::removed, this, [&] {
        delete first;
        delete second;
    });
    title.remove(nullptr);
    QCOMPARE(removed.size(), 1);
    QVERIFY(title.widgets().isEmpty());
}

void TestZrPluginTitleWidgets::aListenerMayEndThePlugin()
{
    auto title = std::make_unique<ZrPluginTitleWidgets>();
    QWidget first, second;
    title->add(&first, false);
    title->add(&second, false);
    int told = 0;
    connect(title.get(), &ZrPluginTitleWidgets::removed, this, [&] {
        ++told;
        title.reset();
    });
    title->remove(nullptr);
    QCOMPARE(told, 1);
}

ZR_TEST_MAIN(TestZrPluginTitleWidgets)
#include "tst_zrplugintitlewidgets.moc"
