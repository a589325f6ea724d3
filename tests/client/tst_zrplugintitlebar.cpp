#include "PluginProbe.h"
#include "ZrAccountBox.h"
#include "ZrPluginTitleBar.h"
#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

/// The title that a plugin's properties make.
class tst_ZrPluginTitleBar : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void buttonsFollowTheProperties_data();
    void buttonsFollowTheProperties();
    void aFreshPluginHasItsButtons();
    void onlyTheNamedPropertyIsShownAnew();
    void theTitleIsPlainAndBounded();
    void aLongTitleEndsInAnEllipsis();
    void aPictureOfTheSkinIsTheIcon();
    void aPictureFromElsewhereIsNot_data();
    void aPictureFromElsewhereIsNot();
    void theAccountBoxComesAndGoes();
    void customWidgetsStandOnTheirSides();
    void aHiddenCustomWidgetStaysHidden();
    void aRemovedWidgetIsThePluginsAgain();
    void eachButtonIsTold();

private:
    QToolButton *button(const QString &name) const;
    void set(const QString &name, const QVariant &value);

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<PluginProbe> m_plugin;
    std::unique_ptr<ZrPluginTitleBar> m_title;
};

void tst_ZrPluginTitleBar::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrPluginTitleBar::init()
{
    m_title.reset();
    m_plugin = std::make_unique<PluginProbe>();
    m_title = std::make_unique<ZrPluginTitleBar>(m_plugin.get());
    m_title->resize(700, 28);
    m_title->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_title.get()));
}

QToolButton *tst_ZrPluginTitleBar::button(const QString &name) const
{
    return m_title->findChild<QToolButton *>(name);
}

void tst_ZrPluginTitleBar::set(const QString &name, const QVariant &value)
{
    m_plugin->setPluginWidgetPropety(name, value);
    m_title->showProperty(name);
}

void tst_ZrPluginTitleBar::buttonsFollowTheProperties_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("name");
    QTest::newRow("copy") << PluginPropety::PLUGIN_WIDGET_COPYBUTTONVISIABLE << "pluginCopy";
    QTest::newRow("setting") << PluginPropety::PLUGIN_WIDGET_SETTINGBUTTONVISIABLE << "pluginSetting";
    QTest::newRow("refresh") << PluginPropety::PLUGIN_WIDGET_FRESHABLE << "pluginRefresh";
    QTest::newRow("dock") << PluginPropety::PLUGIN_WIDGET_DOCKABLE << "pluginDock";
    QTest::newRow("close") << PluginPropety::PLUGIN_WIDGET_CLOSEBUTTONVISIABLE << "pluginClose";
}

void tst_ZrPluginTitleBar::buttonsFollowTheProperties()
{
    QFETCH(QString, property);
    QFETCH(QString, name);
    QVERIFY(button(name));
    QVERIFY(!button(name)->accessibleName().isEmpty());
    for (const bool shown : {false, true, false}) {
        set(property, shown);
        QCOMPARE(button(name)->isVisible(), shown);
    }
}

void tst_ZrPluginTitleBar::aFreshPluginHasItsButtons()
{
    for (const char *const name : {"pluginCopy", "pluginSetting", "pluginDock", "pluginClose"})
        QVERIFY2(button(QLatin1String(name))->isVisible(), name);
    QVERIFY(!button(QStringLiteral("pluginRefresh"))->isVisible());
}

void tst_ZrPluginTitleBar::onlyTheNamedPropertyIsShownAnew()
{
    m_plugin->setPluginWidgetPropety(PluginPropety::PLUGIN_WIDGET_FRESHABLE, true);
    m_title->showProperty(PluginPropety::PLUGINWIDGET_TITLETEXT);
    QVERIFY(!button(QStringLiteral("pluginRefresh"))->isVisible());
    m_title->showProperty(QString()); // any of them
    QVERIFY(button(QStringLiteral("pluginRefresh"))->isVisible());
}

void tst_ZrPluginTitleBar::theTitleIsPlainAndBounded()
{
    set(PluginPropety::PLUGINWIDGET_TITLETEXT, QStringLiteral("<b>R&D</b>\nbook"));
    const auto *const text = m_title->findChild<QLabel *>(QStringLiteral("pluginTitle"));
    QCOMPARE(text->textFormat(), Qt::PlainText);
    QCOMPARE(m_title->title(), QStringLiteral("<b>R&D</b> book"));
    QCOMPARE(text->text(), m_title->title());
    set(PluginPropety::PLUGINWIDGET_TITLETEXT, QString(1000000, QLatin1Char('w')));
    QCOMPARE(m_title->title().size(), 200);
}

void tst_ZrPluginTitleBar::aLongTitleEndsInAnEllipsis()
{
    set(PluginPropety::PLUGINWIDGET_TITLETEXT, QString(200, QLatin1Char('w')));
    const auto *const text = m_title->findChild<QLabel *>(QStringLiteral("pluginTitle"));
    QVERIFY(text->text().endsWith(QChar(0x2026)));
    const int shown = text->text().size();
    m_title->resize(400, 28);
    QTRY_VERIFY(text->text().size() < shown);
    // The buttons keep their room.
    QVERIFY(m_title->rect().contains(button(QStringLiteral("pluginClose"))->geometry()));
}

void tst_ZrPluginTitleBar::aPictureOfTheSkinIsTheIcon()
{
    const auto *const icon = m_title->findChild<QLabel *>(QStringLiteral("pluginIcon"));
    QVERIFY(!icon->isVisible());
    set(PluginPropety::PLUGINWIDGET_TITLEICON, QStringLiteral("plugins/blotter/blotter.svg"));
    QVERIFY(icon->isVisible());
    const QImage dark = icon->pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    const QImage light = icon->pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(m_host.setSkin(QStringLiteral("dark")));
    QVERIFY(!dark.isNull() && dark != light);
}

void tst_ZrPluginTitleBar::aPictureFromElsewhereIsNot_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << "";
    QTest::newRow("none of the skin's") << "plugins/blotter/none.svg";
    QTest::newRow("another skin's") << "../light/plugins/blotter/blotter.svg";
    QTest::newRow("another skin's, hidden") << "plugins/../../light/plugins/blotter/blotter.svg";
    QTest::newRow("any file") << QStringLiteral(ZR_SKINS "/light/plugins/blotter/blotter.svg");
    QTest::newRow("a search path") << "ZRSkin:dark/plugins/blotter/blotter.svg";
}

void tst_ZrPluginTitleBar::aPictureFromElsewhereIsNot()
{
    QFETCH(QString, path);
    set(PluginPropety::PLUGINWIDGET_TITLEICON, path);
    QVERIFY(!m_title->findChild<QLabel *>(QStringLiteral("pluginIcon"))->isVisible());
}

void tst_ZrPluginTitleBar::theAccountBoxComesAndGoes()
{
    QVERIFY(!m_title->findChild<ZrAccountBox *>());
    m_title->showAccount({}); // nothing to show it in
    set(PluginPropety::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET, 1);
    auto *const box = m_title->findChild<ZrAccountBox *>();
    QVERIFY(box && box->isVisible());
    m_title->showAccount(box->itemData(1).toMap());
    QCOMPARE(box->currentIndex(), 1);
    QSignalSpy chosen(m_title.get(), &ZrPluginTitleBar::signalAccountChosen);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toMap(), box->itemData(2).toMap());
    set(PluginPropety::PLUGIN_TITLE_HAS_ACCOUNT_WIDGET, 0);
    QVERIFY(!box->isVisible());
}

void tst_ZrPluginTitleBar::customWidgetsStandOnTheirSides()
{
    auto *const left = new QToolButton(m_plugin.get());
    auto *const right = new QToolButton(m_plugin.get());
    m_title->addCustomWidget(right, true);
    m_title->addCustomWidget(left, false);
    m_title->addCustomWidget(left, true); // already here
    m_title->addCustomWidget(nullptr, true);
    m_title->layout()->activate();
    const int titleEnd = m_title->findChild<QLabel *>(QStringLiteral("pluginTitle"))->geometry().right();
    QVERIFY(left->isVisible() && right->isVisible());
    QVERIFY(titleEnd < left->x());
    QVERIFY(left->x() < right->x());
    QVERIFY(right->x() < button(QStringLiteral("pluginCopy"))->x());
}

void tst_ZrPluginTitleBar::aHiddenCustomWidgetStaysHidden()
{
    auto *const hidden = new QToolButton(m_plugin.get());
    hidden->hide();
    m_title->addCustomWidget(hidden, true);
    QVERIFY(!hidden->isVisible());
    hidden->show();
    QVERIFY(hidden->isVisible());
}

void tst_ZrPluginTitleBar::aRemovedWidgetIsThePluginsAgain()
{
    auto *const first = new QToolButton(m_plugin.get());
    auto *const second = new QToolButton(m_plugin.get());
    auto *const gone = new QToolButton(m_plugin.get());
    for (QWidget *const widget : {first, second, gone})
        m_title->addCustomWidget(widget, true);
    m_title->removeCustomWidget(first);
    QCOMPARE(first->parentWidget(), m_plugin.get());
    QVERIFY(first->isHidden());
    m_title->removeCustomWidget(first); // no longer here
    m_title->removeCustomWidget(nullptr);
    delete gone;
    m_title->giveBack();
    QCOMPARE(second->parentWidget(), m_plugin.get());
    m_title.reset();
    QVERIFY(m_plugin->findChildren<QToolButton *>().contains(second));
}

void tst_ZrPluginTitleBar::eachButtonIsTold()
{
    set(PluginPropety::PLUGIN_WIDGET_FRESHABLE, true);
    QSignalSpy copy(m_title.get(), &ZrPluginTitleBar::signalCopy);
    QSignalSpy setting(m_title.get(), &ZrPluginTitleBar::signalSetting);
    QSignalSpy refresh(m_title.get(), &ZrPluginTitleBar::signalRefresh);
    QSignalSpy dock(m_title.get(), &ZrPluginTitleBar::signalDock);
    QSignalSpy close(m_title.get(), &ZrPluginTitleBar::signalClose);
    for (const char *const name :
         {"pluginCopy", "pluginSetting", "pluginRefresh", "pluginDock", "pluginClose"})
        QTest::mouseClick(button(QLatin1String(name)), Qt::LeftButton);
    for (const QSignalSpy *const spy : {&copy, &setting, &refresh, &dock, &close})
        QCOMPARE(spy->size(), 1);
}

ZR_TEST_MAIN(tst_ZrPluginTitleBar)
#include "tst_zrplugintitlebar.moc"
