#include "EditorScene.h"
#include "SheetColours.h"
#include "ZrQuotationLabel.h"
#include "ZrTestMain.h"

class tst_ZrQuotationLabel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void aNewLabelHasModeNull();
    void itIsASkinnedView();
    void itWearsTheSheetOfTheSkin();
    void aValidSheetReplacesTheLast();
    void anotherModeAppliesTheSheet();
    void changingTheModeEmitsNothing();
    void eachModeHasItsOwnLook_data();
    void eachModeHasItsOwnLook();
    void anUnknownModeLooksPlain();
    void textsCanBeRead_data();
    void textsCanBeRead();
    void outsideTextIsNoMarkup();

private:
    std::unique_ptr<EditorHost> m_host;
};

void tst_ZrQuotationLabel::initTestCase()
{
    m_host = std::make_unique<EditorHost>();
    QVERIFY(m_host->isReady());
}

void tst_ZrQuotationLabel::init()
{
    QVERIFY(m_host->host.setSkin("dark"));
}

void tst_ZrQuotationLabel::aNewLabelHasModeNull()
{
    const ZrQuotationLabel label;
    QCOMPARE(label.getLabelMode(), 0);
    QCOMPARE(label.property("labelMode").toInt(), 0);
    const ZrQuotationLabel quoted(QStringLiteral("12.34"));
    QCOMPARE(quoted.text(), QString("12.34"));
}

void tst_ZrQuotationLabel::itIsASkinnedView()
{
    ZrQuotationLabel label;
    QVERIFY(label.qt_metacast("IZrSkin"));
    QVERIFY(label.qt_metacast("com.orbenlake.Plugin.ISkin"));
    QCOMPARE(qobject_cast<IZrSkin *>(static_cast<QObject *>(&label)), static_cast<IZrSkin *>(&label));
}

void tst_ZrQuotationLabel::itWearsTheSheetOfTheSkin()
{
    ZrQuotationLabel label;
    const QString dark = EditorHost::sheet("dark", "zrquotationlabel.css");
    const QString light = EditorHost::sheet("light", "zrquotationlabel.css");
    QVERIFY(!dark.isEmpty() && !light.isEmpty() && dark != light);
    QCOMPARE(label.styleSheet(), dark);
    QVERIFY(m_host->host.setSkin("light"));
    QCOMPARE(label.styleSheet(), light);
}

void tst_ZrQuotationLabel::aValidSheetReplacesTheLast()
{
    ZrQuotationLabel label;
    label.loadSkin(QStringLiteral("ZrQuotationLabel { color: #010203; }"));
    QCOMPARE(label.styleSheet(), QString("ZrQuotationLabel { color: #010203; }"));
    label.loadSkin(QVariant());
    QCOMPARE(label.styleSheet(), QString("ZrQuotationLabel { color: #010203; }"));
    label.loadSkin(QString(""));
    QCOMPARE(label.styleSheet(), QString());
}

void tst_ZrQuotationLabel::anotherModeAppliesTheSheet()
{
    PolishCounter style;
    ZrQuotationLabel label;
    label.setStyleSheet(QString());
    label.setStyle(&style);
    label.ensurePolished();
    style.count = 0;
    label.setLabelMode(0);
    QCOMPARE(style.count, 0);
    label.setLabelMode(2);
    QCOMPARE(style.count, 1);
    label.setLabelMode(2);
    QCOMPARE(style.count, 1);
    QVERIFY(label.setProperty("labelMode", 1));
    QCOMPARE(style.count, 2);
    QCOMPARE(label.getLabelMode(), 1);
}

void tst_ZrQuotationLabel::changingTheModeEmitsNothing()
{
    ZrQuotationLabel label;
    QSignalSpy changed(&label, &ZrQuotationLabel::labelModeChanged);
    label.setLabelMode(1);
    label.setLabelMode(-1);
    QCOMPARE(changed.count(), 0);
}

void tst_ZrQuotationLabel::eachModeHasItsOwnLook_data()
{
    QTest::addColumn<QString>("skin");
    QTest::newRow("dark") << "dark";
    QTest::newRow("light") << "light";
}

void tst_ZrQuotationLabel::eachModeHasItsOwnLook()
{
    QFETCH(QString, skin);
    QVERIFY(m_host->host.setSkin(skin));
    ZrQuotationLabel label(QStringLiteral("12.34"));
    QList<QImage> looks;
    for (const int mode : {0, 1, 2, 3}) {
        label.setLabelMode(mode);
        const QImage look = label.grab().toImage();
        QVERIFY(!looks.contains(look));
        looks += look;
    }
    label.setLabelMode(0);
    QCOMPARE(label.grab().toImage(), looks.at(0));
}

void tst_ZrQuotationLabel::anUnknownModeLooksPlain()
{
    ZrQuotationLabel label(QStringLiteral("12.34"));
    const QImage plain = label.grab().toImage();
    label.setLabelMode(99);
    QCOMPARE(label.grab().toImage(), plain);
}

void tst_ZrQuotationLabel::textsCanBeRead_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("ground"); // of the windows that quotes stand in

    QTest::newRow("dark window") << "dark"
                                 << "#12161d";
    QTest::newRow("dark panel") << "dark"
                                << "#161b23";
    QTest::newRow("light window") << "light"
                                  << "#eef1f5";
    QTest::newRow("light panel") << "light"
                                 << "#ffffff";
}

void tst_ZrQuotationLabel::textsCanBeRead()
{
    QFETCH(QString, skin);
    QFETCH(QString, ground);
    const auto rules = SheetColours::read(EditorHost::sheet(skin, "zrquotationlabel.css"), QColor(ground));
    QCOMPARE(rules.size(), 5);
    for (const SheetColours &rule : rules) {
        QVERIFY2(SheetColours::contrast(rule.text, rule.background) >= 4.5, qPrintable(rule.selector));
    }
}

void tst_ZrQuotationLabel::outsideTextIsNoMarkup()
{
    ZrQuotationLabel label(QStringLiteral("<img src='/etc/hostname'>"));
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.text(), QString("<img src='/etc/hostname'>"));
    label.setText(QString(100000, 'W'));
    QVERIFY(label.text().size() < 1000);
    QVERIFY(label.minimumSizeHint().width() < 400);
}

ZR_TEST_MAIN(tst_ZrQuotationLabel)
#include "tst_zrquotationlabel.moc"
