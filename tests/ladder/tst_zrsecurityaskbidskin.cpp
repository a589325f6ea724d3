#include "EditorScene.h"
#include "LadderScene.h"
#include "SheetColours.h"
#include "ZrBalanceColor.h"

/// The ladder in the skins that are shipped.
class tst_ZrSecurityAskBidSkin : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void theSheetSetsEveryColour_data() { addSkins(); }
    void theSheetSetsEveryColour();
    void allTextsCanBeRead_data() { addSkins(); }
    void allTextsCanBeRead();
    void badgesHaveTheirSidesColour_data() { addSkins(); }
    void badgesHaveTheirSidesColour();
    void anotherSkinLooksLikeAFreshStartInIt_data() { addSkins(); }
    void anotherSkinLooksLikeAFreshStartInIt();

private:
    static void addSkins();
    std::unique_ptr<EditorHost> m_host;
};

namespace {
QColor over(const QColor &upper, const QColor &lower)
{
    const double share = upper.alphaF();
    return QColor::fromRgbF(upper.redF() * share + lower.redF() * (1 - share),
                            upper.greenF() * share + lower.greenF() * (1 - share),
                            upper.blueF() * share + lower.blueF() * (1 - share));
}
} // namespace

void tst_ZrSecurityAskBidSkin::initTestCase()
{
    m_host = std::make_unique<EditorHost>();
    QVERIFY(m_host->isReady());
}

void tst_ZrSecurityAskBidSkin::addSkins()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("other");
    QTest::newRow("dark") << "dark"
                          << "light";
    QTest::newRow("light") << "light"
                           << "dark";
}

void tst_ZrSecurityAskBidSkin::theSheetSetsEveryColour()
{
    QFETCH(QString, skin);
    QVERIFY(m_host->host.setSkin(skin));
    LadderScene scene(LadderScene::OfTheSkin);
    const ZrSecurityAskBidPanel &panel = *scene.panel();
    const QList<QColor> colors = {panel.panelBgColor(),      panel.upColor(),  panel.downColor(),
                                  panel.lastPriceColor(),    panel.buyColor(), panel.sellColor(),
                                  panel.brushColor().color()};
    for (const QColor &color : colors)
        QVERIFY(color.isValid());
    QVERIFY(panel.upColor() != panel.downColor());
    QVERIFY(panel.buyColor() != panel.sellColor());
}

void tst_ZrSecurityAskBidSkin::allTextsCanBeRead()
{
    QFETCH(QString, skin);
    QVERIFY(m_host->host.setSkin(skin));
    LadderScene scene(LadderScene::OfTheSkin);
    const ZrSecurityAskBidPanel &panel = *scene.panel();
    const QColor ground = panel.panelBgColor();
    const QColor mark = panel.brushColor().color();
    const QList<QColor> rows = {ground, panel.lastPriceColor(), over(mark, ground),
                                over(mark, panel.lastPriceColor())};
    const QColor balance = ZrBalanceColor::current();
    QStringList poor;
    const auto check = [&poor](const QColor &text, const QColor &back) {
        const double found = SheetColours::contrast(over(text, back), back);
        if (found < 4.5)
            poor.append(QStringLiteral("%1 on %2 is %3").arg(text.name(), back.name()).arg(found));
    };
    for (const QColor &back : rows) {
        for (const QColor &text : {balance, panel.upColor(), panel.downColor()})
            check(text, back);
    }
    for (const QColor &badge : {panel.buyColor(), panel.sellColor()})
        check(balance, badge);
    QVERIFY2(poor.isEmpty(), qPrintable(poor.join(QLatin1Char('\n'))));
}

void tst_ZrSecurityAskBidSkin::badgesHaveTheirSidesColour()
{
    QFETCH(QString, skin);
    QVERIFY(m_host->host.setSkin(skin));
    LadderScene scene(LadderScene::OfTheSkin);
    scene.panel()->setCurIndex(-1);
    const QImage image = scene.panel()->grab().toImage();
    QVERIFY(pixelsOf(image.copy(0, 0, 400, 270), scene.panel()->sellColor()) > 1000);
    QVERIFY(pixelsOf(image.copy(0, 320, 400, 270), scene.panel()->buyColor()) > 1000);
    QCOMPARE(pixelsOf(image.copy(0, 320, 400, 270), scene.panel()->sellColor()), 0);
    QCOMPARE(image.pixelColor(399, 599), scene.panel()->panelBgColor());
}

void tst_ZrSecurityAskBidSkin::anotherSkinLooksLikeAFreshStartInIt()
{
    QFETCH(QString, skin);
    QFETCH(QString, other);
    QVERIFY(m_host->host.setSkin(other));
    LadderScene changed(LadderScene::OfTheSkin);
    changed.panel()->grab();
    QVERIFY(m_host->host.setSkin(skin));
    const QImage switched = changed.panel()->grab().toImage();
    LadderScene fresh(LadderScene::OfTheSkin);
    QCOMPARE(switched, fresh.panel()->grab().toImage());
}

ZR_TEST_MAIN(tst_ZrSecurityAskBidSkin)
#include "tst_zrsecurityaskbidskin.moc"
