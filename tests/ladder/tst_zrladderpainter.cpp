#include "EditorScene.h"
#include "LadderScene.h"
#include "PaintRecorder.h"
#include "ZrBalanceColor.h"
#include "ZrLadderPainter.h"

#include <QtGui/QPainter>

class tst_ZrLadderPainter : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { m_host.reset(); }
    void init();
    void theGroundIsFilledFirst();
    void rowsStandOneBelowTheOther_data();
    void rowsStandOneBelowTheOther();
    void textsStandInTheirColumns();
    void levelsAreSmallerThanTheRest();
    void aMissingPriceStandsInTheMiddle();
    void pricesHaveTheColourOfTheirChange();
    void anUnknownSideKeepsTheBrush();
    void levelsMayBeNumerals();
    void theBandShowsTheLatestPrice();
    void aLineMayStandInPlaceOfTheBand();
    void theHoveredCellIsMarked_data();
    void theHoveredCellIsMarked();
    void theHoveredBandIsMarked_data();
    void theHoveredBandIsMarked();
    void theSelectedRowStandsOut_data();
    void theSelectedRowStandsOut();
    void theSelectedRowIsTheApplicationsFont();
    void aSelectedRowBeyondTheBookIsEmpty();
    void aSelectedRowFarAwayIsNotPainted();
    void theBalanceColourIsLookedUpEachTime();
    void aBalanceColourThatIsNoneIsBlack();
    void anySizeOfFontIsPainted_data();
    void anySizeOfFontIsPainted();
    void anEndlessTextIsCut();
    void outsideTextIsDrawnAsItStands();
    void thePainterIsLeftAsItWas();

private:
    void paint(bool withCurrentRow);
    QFont rowFont() const;
    int sideWidth(const QString &side) const;
    int levelWidth() const;
    /// The badges of rows that aren't selected, from the top.
    QList<PaintedThing> badges() const;

    std::unique_ptr<EditorHost> m_host;
    ZrLadderState m_state;
    std::unique_ptr<PaintRecorder> m_recorder;
};

namespace {
const QSize panelSize(LadderScene::widthPx, LadderScene::heightPx);

bool isNear(double one, double other)
{
    return qAbs(one - other) <= 1.0; // texts are placed by fractions of a pixel
}

QColor balance(const QString &name)
{
    QColor color(name);
    color.setAlpha(200);
    return color;
}

/// Where a row begins without a selection.
int rowTop(int row)
{
    return LadderScene::marginPx + LadderScene::rowPx * (row + (row >= 10 ? 1 : 0));
}
} // namespace

void tst_ZrLadderPainter::initTestCase()
{
    m_host = std::make_unique<EditorHost>();
    QVERIFY(m_host->isReady());
}

void tst_ZrLadderPainter::init()
{
    m_host->host.setDictionary(QStringLiteral("DefaultMasterColorInfo"),
                               {{QStringLiteral("banlanceColor_dark"), QStringLiteral("#c8cdd6")},
                                {QStringLiteral("banlanceColor_light"), QStringLiteral("#3a4250")}});
    m_state = ZrLadderState();
    m_state.look = {QBrush(QColor(1, 2, 3)),
                    QColor(10, 10, 10),
                    QColor(200, 0, 0),
                    QColor(0, 200, 0),
                    QColor(20, 20, 20),
                    QColor(100, 0, 0),
                    QColor(0, 100, 0),
                    12,
                    12.0,
                    0};
    m_state.book.setLevels(LadderScene::book());
    m_state.last = LadderScene::last();
    m_state.previousClose = 20.0;
    m_state.geometry.reset(panelSize, 10, 12.0);
    m_recorder = std::make_unique<PaintRecorder>(panelSize);
}

void tst_ZrLadderPainter::paint(bool withCurrentRow)
{
    m_state.placeCurrent();
    m_recorder->clear();
    QPainter painter(m_recorder.get());
    ZrLadderPainter(&painter, m_state, panelSize).paint(withCurrentRow);
}

QFont tst_ZrLadderPainter::rowFont() const
{
    QFont font;
    font.setPixelSize(12);
    font.setFamily(QStringLiteral("微软雅黑"));
    font.setFamilies({QStringLiteral("微软雅黑")});
    return font;
}

int tst_ZrLadderPainter::sideWidth(const QString &side) const
{
    return QFontMetrics(rowFont(), m_recorder.get()).horizontalAdvance(side);
}

int tst_ZrLadderPainter::levelWidth() const
{
    return QFontMetrics(rowFont(), m_recorder.get()).horizontalAdvance(QStringLiteral("10"));
}

QList<PaintedThing> tst_ZrLadderPainter::badges() const
{
    QList<PaintedThing> found;
    const QList<PaintedThing> shapes = m_recorder->shapes();
    for (const PaintedThing &shape : shapes) {
        if (shape.rect.width() == levelWidth() + 4 && shape.rect.height() == LadderScene::rowPx - 1)
            found.append(shape);
    }
    return found;
}

void tst_ZrLadderPainter::theGroundIsFilledFirst()
{
    paint(false);
    const PaintedThing ground = m_recorder->shapes().value(0);
    QCOMPARE(ground.rect, QRectF(0, 0, 400, 600));
    QCOMPARE(ground.brush, QBrush(QColor(10, 10, 10)));
    QVERIFY(!ground.hasPen);
}

void tst_ZrLadderPainter::rowsStandOneBelowTheOther_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("selected"); // -1: painted without a selection
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("first") << 0 << -1 << QPointF(0, 12 + 2);
    QTest::newRow("last seller") << 9 << -1 << QPointF(0, 12 + 243 + 2);
    QTest::newRow("first buyer") << 10 << -1 << QPointF(0, 12 + 297 + 1);
    QTest::newRow("last") << 19 << -1 << QPointF(0, 12 + 540 + 1);
    QTest::newRow("above the selected row") << 2 << 3 << QPointF(0, 12 + 54 + 2);
    QTest::newRow("below the selected row") << 4 << 3 << QPointF(0, 12 + 108 + 24 + 2);
    QTest::newRow("buyer below a selected seller") << 19 << 3 << QPointF(0, 12 + 540 + 24 + 1);
    QTest::newRow("seller above a selected buyer") << 9 << 15 << QPointF(0, 12 + 243 + 2);
}

void tst_ZrLadderPainter::rowsStandOneBelowTheOther()
{
    QFETCH(int, row);
    QFETCH(int, selected);
    QFETCH(QPointF, expected);
    m_state.currentIndex = selected;
    paint(selected >= 0);
    const QList<PaintedThing> found = badges();
    QCOMPARE(found.size(), selected < 0 ? 20 : 19);
    const PaintedThing badge = found.at(selected >= 0 && row > selected ? row - 1 : row);
    QCOMPARE(badge.rect.top(), expected.y());
    QCOMPARE(badge.rect.height(), 26.0);
    QCOMPARE(badge.rect.left(), 12.0 + sideWidth(row < 10 ? QStringLiteral("卖 ") : QStringLiteral("买 ")));
    QCOMPARE(badge.brush.color(), row < 10 ? QColor(0, 100, 0) : QColor(100, 0, 0));
    QVERIFY(!badge.hasPen);
}

void tst_ZrLadderPainter::textsStandInTheirColumns()
{
    paint(false);
    const double middle = rowTop(9) + LadderScene::rowPx / 2.0;
    const PaintedThing price = m_recorder->text(QStringLiteral("20.01"));
    const PaintedThing volume = m_recorder->text(QStringLiteral("907"));
    QVERIFY(isNear(price.rect.right(), 114 + 12 + 114));
    QVERIFY(isNear(volume.rect.right(), 228 + 171));
    for (const PaintedThing &text : {price, volume})
        QVERIFY(isNear(text.rect.center().y(), middle));
    const QList<PaintedThing> texts = m_recorder->texts();
    const PaintedThing side = texts.value(9 * 4);
    const PaintedThing level = texts.value(9 * 4 + 1);
    QCOMPARE(side.text.trimmed(), QStringLiteral("卖"));
    QVERIFY(isNear(side.rect.left(), 12));
    QCOMPARE(side.pen, balance(QStringLiteral("#c8cdd6")));
    QCOMPARE(level.text, QStringLiteral("1"));
    QVERIFY(isNear(level.rect.center().x(), badges().at(9).rect.center().x()));
    QVERIFY(isNear(level.rect.center().y(), badges().at(9).rect.center().y()));
}

void tst_ZrLadderPainter::levelsAreSmallerThanTheRest()
{
    paint(false);
    const QList<PaintedThing> texts = m_recorder->texts();
    const QList<int> expected = {12, 11, 12, 12}; // side, level, price, quantity
    for (int i = 0; i < 40; ++i) {
        QCOMPARE(texts.at(i).font.pixelSize(), expected.at(i % 4));
        QCOMPARE(texts.at(i).font.family(), QStringLiteral("微软雅黑"));
    }
}

void tst_ZrLadderPainter::aMissingPriceStandsInTheMiddle()
{
    ZrAskBidLevels levels = LadderScene::book();
    levels[9].price = QStringLiteral("0");
    m_state.book.setLevels(levels);
    for (const bool withCurrentRow : {false, true}) {
        m_state.currentIndex = withCurrentRow ? 9 : -1;
        paint(withCurrentRow);
        const PaintedThing price = m_recorder->text(QStringLiteral("—"));
        QVERIFY(isNear(price.rect.center().x(), 114 + 12 + 57));
        QCOMPARE(price.pen, balance(QStringLiteral("#c8cdd6")));
    }
}

void tst_ZrLadderPainter::pricesHaveTheColourOfTheirChange()
{
    paint(false);
    QCOMPARE(m_recorder->text(QStringLiteral("20.01")).pen, QColor(200, 0, 0));
    QCOMPARE(m_recorder->text(QStringLiteral("20.00")).pen, balance(QStringLiteral("#c8cdd6")));
    QCOMPARE(m_recorder->text(QStringLiteral("19.99")).pen, QColor(0, 200, 0));
    for (const char *const volume : {"907", "1007", "1107"})
        QCOMPARE(m_recorder->text(QLatin1String(volume)).pen, balance(QStringLiteral("#c8cdd6")));
}

void tst_ZrLadderPainter::anUnknownSideKeepsTheBrush()
{
    ZrAskBidLevels levels = LadderScene::book();
    for (const int row : {0, 4, 10})
        levels[row].side = -1;
    m_state.book.setLevels(levels);
    paint(false);
    QCOMPARE(badges().at(0).brush.color(), QColor(10, 10, 10));  // the ground's
    QCOMPARE(badges().at(4).brush.color(), QColor(0, 100, 0));   // of the row above
    QCOMPARE(badges().at(10).brush.color(), QColor(20, 20, 20)); // the band's
    QCOMPARE(badges().at(10).rect.top(), rowTop(10) + 2.0);      // as a seller's
    QCOMPARE(m_recorder->texts().value(0).text.trimmed(), QStringLiteral("卖"));
}

void tst_ZrLadderPainter::levelsMayBeNumerals()
{
    m_state.look.numerals = 1;
    paint(false);
    QCOMPARE(m_recorder->texts().value(1).text, QStringLiteral("十"));
    m_state.currentIndex = 0;
    paint(true);
    QCOMPARE(m_recorder->texts().value(1).text, QStringLiteral("十"));
}

void tst_ZrLadderPainter::theBandShowsTheLatestPrice()
{
    paint(false);
    const QList<PaintedThing> shapes = m_recorder->shapes();
    QCOMPARE(shapes.at(11).rect, QRectF(0, 12 + 270, 400, 27));
    QCOMPARE(shapes.at(11).brush.color(), QColor(20, 20, 20));
    QVERIFY(!shapes.at(11).hasPen);
    const PaintedThing title = m_recorder->text(QStringLiteral("最新"));
    const PaintedThing price = m_recorder->text(QStringLiteral("20.55"));
    const PaintedThing volume = m_recorder->text(QStringLiteral("1.2w"));
    QVERIFY(isNear(title.rect.left(), 12));
    QCOMPARE(title.pen, balance(QStringLiteral("#c8cdd6")));
    QVERIFY(isNear(price.rect.right(), 114 + 12 + 114));
    QCOMPARE(price.pen, QColor(200, 0, 0));
    QVERIFY(isNear(volume.rect.right(), 228 + 12 + 171));
    QCOMPARE(volume.pen, QColor(200, 0, 0));
    for (const PaintedThing &text : {title, price, volume})
        QVERIFY(isNear(text.rect.center().y(), 12 + 270 + 13.5));
}

void tst_ZrLadderPainter::aLineMayStandInPlaceOfTheBand()
{
    m_state.bandShown = false;
    m_state.hoverIndex = ZrLadderState::BandRow;
    m_state.hoverPart = ZrLadderState::FirstColumn;
    paint(false);
    const QList<PaintedThing> shapes = m_recorder->shapes();
    QCOMPARE(shapes.size(), 1 + 20 + 1);
    QCOMPARE(shapes.at(11).rect, QRectF(0, 12 + 270 + 12, 400, 2));
    QCOMPARE(shapes.at(11).brush.color(), QColor(20, 20, 20));
    QVERIFY(m_recorder->text(QStringLiteral("最新")).text.isEmpty());
    QCOMPARE(badges().at(10).rect.top(), rowTop(10) + 1.0);
}

void tst_ZrLadderPainter::theHoveredCellIsMarked_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("part");
    QTest::addColumn<QRectF>("expected"); // null: nothing is marked
    QTest::newRow("first column") << 4 << 1 << QRectF(0, 12 + 108, 114, 27);
    QTest::newRow("second column") << 4 << 2 << QRectF(114, 12 + 108, 114, 27);
    QTest::newRow("buyer") << 19 << 2 << QRectF(114, 12 + 540, 114, 27);
    QTest::newRow("the pointer has gone") << 4 << 0 << QRectF();
    QTest::newRow("the pointer never came") << 4 << -1 << QRectF();
    QTest::newRow("no row") << -1 << 1 << QRectF();
}

void tst_ZrLadderPainter::theHoveredCellIsMarked()
{
    QFETCH(int, row);
    QFETCH(int, part);
    QFETCH(QRectF, expected);
    m_state.hoverIndex = row;
    m_state.hoverPart = part;
    paint(false);
    QList<QRectF> marked;
    const QList<PaintedThing> shapes = m_recorder->shapes();
    for (const PaintedThing &shape : shapes) {
        if (shape.brush == m_state.look.mark)
            marked.append(shape.rect);
    }
    QCOMPARE(marked, expected.isNull() ? QList<QRectF>() : QList<QRectF>{expected});
}

void tst_ZrLadderPainter::theHoveredBandIsMarked_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("first column") << 1 << QRectF(12, 12 + 270, 114, 27);
    QTest::newRow("second column") << 2 << QRectF(126, 12 + 270, 114, 27);
}

void tst_ZrLadderPainter::theHoveredBandIsMarked()
{
    QFETCH(int, part);
    m_state.hoverIndex = ZrLadderState::BandRow;
    m_state.hoverPart = part;
    paint(false);
    QCOMPARE(m_recorder->shapes().at(12).brush, m_state.look.mark);
    QTEST(m_recorder->shapes().at(12).rect, "expected");
}

void tst_ZrLadderPainter::theSelectedRowStandsOut_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("top");
    QTest::newRow("first") << 0 << 12;
    QTest::newRow("last seller") << 9 << 12 + 243;
    QTest::newRow("first buyer") << 10 << 12 + 297;
    QTest::newRow("last") << 19 << 12 + 540;
}

void tst_ZrLadderPainter::theSelectedRowStandsOut()
{
    QFETCH(int, row);
    QFETCH(int, top);
    m_state.currentIndex = row;
    paint(true);
    const QList<PaintedThing> shapes = m_recorder->shapes();
    QCOMPARE(shapes.at(1).rect, QRectF(0, top, 400, 51));
    QCOMPARE(shapes.at(1).brush, m_state.look.mark);
    const PaintedThing badge = shapes.at(2);
    QCOMPARE(badge.rect.top(), double(top));
    QCOMPARE(badge.rect.height(), 51.0);
    QCOMPARE(badge.brush.color(), row < 10 ? QColor(0, 100, 0) : QColor(100, 0, 0));
    const QList<PaintedThing> texts = m_recorder->texts();
    const QString side = row < 10 ? QStringLiteral("卖") : QStringLiteral("买");
    QCOMPARE(texts.at(0).text.trimmed(), side);
    QVERIFY(isNear(texts.at(0).rect.left(), 12));
    QVERIFY(isNear(texts.at(1).rect.left(), badge.rect.left()));
    QCOMPARE(texts.at(2).text, LadderScene::book().value(row).price);
    QVERIFY(isNear(texts.at(2).rect.right(), 114 + 12 + 114));
    QVERIFY(isNear(texts.at(3).rect.right(), 228 + 171));
    for (int i = 0; i < 4; ++i)
        QVERIFY(isNear(texts.at(i).rect.center().y(), top + 25.5));
    QCOMPARE(texts.size(), 20 * 4 + 3); // each row once, and the band
}

void tst_ZrLadderPainter::theSelectedRowIsTheApplicationsFont()
{
    m_state.currentIndex = 0;
    paint(true);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(m_recorder->texts().at(i).font.family(), QApplication::font().family());
        QCOMPARE(m_recorder->texts().at(i).font.pixelSize(), 12);
    }
}

// Five levels are shown while the eleventh row is still selected.
void tst_ZrLadderPainter::aSelectedRowBeyondTheBookIsEmpty()
{
    m_state.book.setCount(5);
    m_state.geometry.reset(panelSize, 5, 12.0);
    m_state.currentIndex = 10;
    paint(true);
    const QList<PaintedThing> shapes = m_recorder->shapes();
    QCOMPARE(shapes.at(1).rect, QRectF(0, 12 + 11 * 52, 400, 52)); // as high as a row, below them all
    QCOMPARE(m_recorder->texts().size(), 3 + 10 * 4 + 3);          // an empty price is no text
}

void tst_ZrLadderPainter::aSelectedRowFarAwayIsNotPainted()
{
    m_state.currentIndex = std::numeric_limits<int>::max();
    paint(true);
    QCOMPARE(m_recorder->texts().size(), 20 * 4 + 3);
    QCOMPARE(m_recorder->shapes().size(), 1 + 20 + 1);
}

void tst_ZrLadderPainter::theBalanceColourIsLookedUpEachTime()
{
    paint(false);
    QCOMPARE(m_recorder->texts().value(0).pen, balance(QStringLiteral("#c8cdd6")));
    QVERIFY(m_host->host.setSkin(QStringLiteral("light")));
    paint(false);
    QCOMPARE(m_recorder->texts().value(0).pen, balance(QStringLiteral("#3a4250")));
    m_host->host.setDictionary(QStringLiteral("DefaultMasterColorInfo"),
                               {{QStringLiteral("banlanceColor_light"), QStringLiteral("#010203")}});
    paint(false);
    QCOMPARE(m_recorder->texts().value(0).pen, QColor(1, 2, 3, 200));
    QVERIFY(m_host->host.setSkin(QStringLiteral("dark")));
}

void tst_ZrLadderPainter::aBalanceColourThatIsNoneIsBlack()
{
    for (const char *const text : {"", "no colour", "#12", "rgb(1, 2)"}) {
        m_host->host.setDictionary(QStringLiteral("DefaultMasterColorInfo"),
                                   {{QStringLiteral("banlanceColor_dark"), QLatin1String(text)}});
        QCOMPARE(ZrBalanceColor::current(), QColor(0, 0, 0, 200));
    }
}

void tst_ZrLadderPainter::anySizeOfFontIsPainted_data()
{
    QTest::addColumn<int>("sizePx");
    QTest::addColumn<int>("expected");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("below none") << -5 << 1;
    QTest::newRow("least") << 1 << 1;
    QTest::newRow("huge") << 2000000000 << 1000;
}

void tst_ZrLadderPainter::anySizeOfFontIsPainted()
{
    QFETCH(int, sizePx);
    m_state.look.fontPx = sizePx;
    m_state.currentIndex = 2;
    paint(true);
    QTEST(m_recorder->texts().value(0).font.pixelSize(), "expected");
}

void tst_ZrLadderPainter::anEndlessTextIsCut()
{
    ZrAskBidLevels levels = LadderScene::book();
    levels[0].price = QString(100000, QLatin1Char('9'));
    m_state.book.setLevels(levels);
    m_state.last.volumeText = QString(100000, QLatin1Char('w'));
    paint(false);
    const QList<PaintedThing> texts = m_recorder->texts();
    for (const PaintedThing &text : texts)
        QVERIFY(text.text.size() < 1000);
}

void tst_ZrLadderPainter::outsideTextIsDrawnAsItStands()
{
    const QString markup = QStringLiteral("<b>&1</b>");
    ZrAskBidLevels levels = LadderScene::book();
    levels[0].price = markup; // no number either: the book marks it as missing
    m_state.book.setLevels(levels);
    m_state.last.price = markup;
    m_state.last.volumeText = markup;
    paint(false);
    QString all;
    const QList<PaintedThing> texts = m_recorder->texts();
    for (const PaintedThing &text : texts)
        all += text.text;
    QCOMPARE(all.count(markup), 2);
    QCOMPARE(texts.value(2).text, QStringLiteral("—"));
}

void tst_ZrLadderPainter::thePainterIsLeftAsItWas()
{
    m_state.currentIndex = 3;
    m_state.placeCurrent();
    QPainter painter(m_recorder.get());
    painter.setPen(QColor(7, 7, 7));
    painter.translate(5, 6);
    const QFont font = painter.font();
    ZrLadderPainter(&painter, m_state, panelSize).paint(true);
    QCOMPARE(painter.pen().color(), QColor(7, 7, 7));
    QCOMPARE(painter.transform(), QTransform::fromTranslate(5, 6));
    QCOMPARE(painter.font(), font);
}

ZR_TEST_MAIN(tst_ZrLadderPainter)
#include "tst_zrladderpainter.moc"
