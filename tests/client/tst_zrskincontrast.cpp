#include "SkinSheet.h"
#include "ZrTestMain.h"

/// Every text of the skins is readable: it stands apart from its background by 4.5 to 1.
class tst_ZrSkinContrast : public QObject
{
    Q_OBJECT
private slots:
    void theMeasureIsTheUsualOne_data();
    void theMeasureIsTheUsualOne();
    void statesStandOverTheirBase();
    void everyTextIsReadable_data();
    void everyTextIsReadable();
    void changesOfPriceAreReadableInEveryRow_data();
    void changesOfPriceAreReadableInEveryRow();
    void textsOnTheColoursOfGroupsAreReadable_data();
    void textsOnTheColoursOfGroupsAreReadable();
};

namespace {
constexpr double Least = 4.5;

SkinSheet sheet(const QString &skin, const QString &path)
{
    QFile file(QStringLiteral(ZR_SKINS "/%1/system/%2").arg(skin, path));
    if (!file.open(QIODevice::ReadOnly))
        qWarning() << "no sheet" << file.fileName();
    return SkinSheet(QString::fromUtf8(file.readAll()));
}

QColor background(const SkinSheet::Values &values)
{
    const QString name = values.contains(QStringLiteral("background")) ? QStringLiteral("background")
                                                                       : QStringLiteral("background-color");
    return SkinSheet::colours(values.value(name)).value(0);
}

// What a text without a background of its own may stand on.
QList<QColor> surfaces(const QString &skin)
{
    const SkinSheet frame = sheet(skin, QStringLiteral("client/workstation.css"));
    const SkinSheet grid = sheet(skin, QStringLiteral("zrwidget/zrtableview.css"));
    return {background(frame.values(QStringLiteral("QMainWindow"))),
            background(frame.values(QStringLiteral("QDockWidget::title"))),
            background(grid.values(QStringLiteral("ZrTableView")))};
}

QList<QColor> backgrounds(const SkinSheet::Values &values, const QString &property,
                          const QList<QColor> &surfaces)
{
    const QList<QColor> own = SkinSheet::colours(values.value(property));
    if (own.isEmpty())
        return surfaces;
    QList<QColor> result;
    for (const QColor &colour : own) {
        for (const QColor &surface : surfaces)
            result.append(SkinSheet::over(colour, surface));
    }
    return result;
}

void compare(const QString &selector, const QString &text, const QList<QColor> &backs, QStringList *poor)
{
    const QList<QColor> colours = SkinSheet::colours(text);
    for (const QColor &colour : colours) {
        for (const QColor &back : backs) {
            const double found = SkinSheet::contrast(colour, back);
            if (found < Least)
                poor->append(QStringLiteral("%1: %2 on %3 is %4")
                                 .arg(selector, colour.name(), back.name())
                                 .arg(found, 0, 'f', 2));
        }
    }
}

void eachSkin()
{
    QTest::addColumn<QString>("skin");
    const QStringList skins = QDir(QStringLiteral(ZR_SKINS)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(skins.contains(QStringLiteral("dark")) && skins.contains(QStringLiteral("light")));
    for (const QString &skin : skins)
        QTest::newRow(qPrintable(skin)) << skin;
}
} // namespace

void tst_ZrSkinContrast::theMeasureIsTheUsualOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("back");
    QTest::addColumn<double>("expected");
    QTest::newRow("black on white") << "#000000"
                                    << "#ffffff" << 21.0;
    QTest::newRow("the same") << "#336699"
                              << "#336699" << 1.0;
    QTest::newRow("grey that just passes") << "#767676"
                                           << "#ffffff" << 4.54;
    QTest::newRow("grey that just fails") << "#777777"
                                          << "#ffffff" << 4.48;
    QTest::newRow("half a black") << "rgba(0, 0, 0, 50%)"
                                  << "#ffffff" << 3.98;
}

void tst_ZrSkinContrast::theMeasureIsTheUsualOne()
{
    QFETCH(QString, text);
    QFETCH(QString, back);
    QFETCH(double, expected);
    const double found =
        SkinSheet::contrast(SkinSheet::colours(text).value(0), SkinSheet::colours(back).value(0));
    QVERIFY2(qAbs(found - expected) < 0.01, qPrintable(QString::number(found)));
}

void tst_ZrSkinContrast::statesStandOverTheirBase()
{
    const SkinSheet sheet(
        QStringLiteral("/* a { color: red; } */ A, B::tab { color: #111; background: #222; }\n"
                       "B::tab:hover:!selected { background-color: #333; }"));
    QCOMPARE(sheet.selectors(), (QStringList{QStringLiteral("A"), QStringLiteral("B::tab"),
                                             QStringLiteral("B::tab:hover:!selected")}));
    const SkinSheet::Values values = sheet.values(QStringLiteral("B::tab:hover:!selected"));
    QCOMPARE(values.value(QStringLiteral("color")), QStringLiteral("#111"));
    QCOMPARE(values.value(QStringLiteral("background-color")), QStringLiteral("#333"));
    QVERIFY(!values.contains(QStringLiteral("background")));
}

void tst_ZrSkinContrast::everyTextIsReadable_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("path");
    const QDir root(QStringLiteral(ZR_SKINS));
    const QStringList skins = root.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &skin : skins) {
        for (const char *const folder : {"client", "zrwidget"}) {
            const QDir dir(root.filePath(QStringLiteral("%1/system/%2").arg(skin, QLatin1String(folder))));
            const QStringList sheets = dir.entryList({QStringLiteral("*.css")});
            for (const QString &name : sheets) {
                const QString path = QStringLiteral("%1/%2").arg(QLatin1String(folder), name);
                QTest::newRow(qPrintable(skin + QLatin1Char('/') + path)) << skin << path;
            }
        }
    }
}

void tst_ZrSkinContrast::everyTextIsReadable()
{
    QFETCH(QString, skin);
    QFETCH(QString, path);
    const SkinSheet rules = sheet(skin, path);
    const QList<QColor> below = surfaces(skin);
    QStringList poor;
    const QStringList selectors = rules.selectors();
    QVERIFY(!selectors.isEmpty());
    for (const QString &selector : selectors) {
        // Its ground stands in no sheet; see textsOnTheColoursOfGroupsAreReadable.
        if (selector.startsWith(QLatin1String("ZrLinkageCombox")))
            continue;
        const SkinSheet::Values values = rules.values(selector);
        const QString back = values.contains(QStringLiteral("background"))
                                 ? QStringLiteral("background")
                                 : QStringLiteral("background-color");
        const QString text = values.value(QStringLiteral("color"));
        compare(selector, text, backgrounds(values, back, below), &poor);
        if (values.contains(QStringLiteral("alternate-background-color")))
            compare(selector, text, backgrounds(values, QStringLiteral("alternate-background-color"), below),
                    &poor);
        const QString selected = values.value(QStringLiteral("selection-color"), text);
        if (values.contains(QStringLiteral("selection-background-color")))
            compare(selector + QStringLiteral(" (selection)"), selected,
                    backgrounds(values, QStringLiteral("selection-background-color"), below), &poor);
    }
    QVERIFY2(poor.isEmpty(), qPrintable(poor.join(QLatin1Char('\n'))));
}

void tst_ZrSkinContrast::changesOfPriceAreReadableInEveryRow_data()
{
    eachSkin();
}

void tst_ZrSkinContrast::changesOfPriceAreReadableInEveryRow()
{
    QFETCH(QString, skin);
    const SkinSheet grid = sheet(skin, QStringLiteral("zrwidget/zrtableview.css"));
    const SkinSheet::Values view = grid.values(QStringLiteral("ZrTableView"));
    const SkinSheet::Values table = grid.values(QStringLiteral("QTableView"));
    QStringList poor;
    for (const char *const name : {"qproperty-upColor", "qproperty-downColor"}) {
        const QString colour = view.value(QLatin1String(name));
        QVERIFY(!SkinSheet::colours(colour).isEmpty());
        for (const char *const back : {"background", "alternate-background-color"})
            compare(QLatin1String(name), colour, SkinSheet::colours(table.value(QLatin1String(back))), &poor);
    }
    QVERIFY2(poor.isEmpty(), qPrintable(poor.join(QLatin1Char('\n'))));
}

void tst_ZrSkinContrast::textsOnTheColoursOfGroupsAreReadable_data()
{
    eachSkin();
}

void tst_ZrSkinContrast::textsOnTheColoursOfGroupsAreReadable()
{
    QFETCH(QString, skin);
    const SkinSheet frame = sheet(skin, QStringLiteral("client/workstation.css"));
    const QString usual =
        frame.values(QStringLiteral("ZrLinkageCombox"))
            .value(QStringLiteral("color"),
                   frame.values(QStringLiteral("QComboBox")).value(QStringLiteral("color")));
    const QString onBright = frame.values(QStringLiteral("ZrLinkageCombox[brightGroup=\"true\"]"))
                                 .value(QStringLiteral("color"), usual);
    QStringList poor;
    const QMap<QString, bool> groups = {{QStringLiteral("rgba(255, 127, 39, 150)"), false},
                                        {QStringLiteral("rgba(255, 242, 0, 150)"), true},
                                        {QStringLiteral("rgba(0, 162, 232, 150)"), false},
                                        {QStringLiteral("rgba(63, 72, 204, 150)"), false},
                                        {QStringLiteral("rgba(163, 73, 164, 150)"), false}};
    for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
        QList<QColor> grounds;
        const QList<QColor> below = surfaces(skin);
        for (const QColor &surface : below)
            grounds.append(SkinSheet::over(SkinSheet::colours(group.key()).value(0), surface));
        compare(group.key(), group.value() ? onBright : usual, grounds, &poor);
    }
    QVERIFY2(poor.isEmpty(), qPrintable(poor.join(QLatin1Char('\n'))));
}

ZR_TEST_GUILESS_MAIN(tst_ZrSkinContrast)
#include "tst_zrskincontrast.moc"
