#include "ZrCellText.h"
#include "ZrItemModelDeletage.h"
#include "ZrItemModelDeletage_p.h"
#include "ZrItemStyle.h"
#include "ZrPlainText.h"
#include "ZrTestMain.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTableView>

Q_DECLARE_METATYPE(std::function<void(QStyleOptionViewItem &)>)

namespace {

constexpr int cellsPerScene = 1700; // each compared with a neighbour of its, too
constexpr int cellsPerFont = 40;    // so that the list of fonts is filled more than once
const QSize sheetPx(150, 48);

/// Draws a cell on either road; the reference is the style's own item, as any view without us has it.
class OpenDelegate : public ZrItemModelDeletage
{
public:
    OpenDelegate() { setItemGridShow(false); }

    void paintByStyle(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.text = ZrPlainText::visiblePart(item.text, item.rect.size());
        item.state &= ~QStyle::State_HasFocus;
        option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, option.widget);
    }
};

/// Paints something below each item.
class OwnStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        painter->fillRect(option->rect, Qt::magenta);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
};

QString sheetFile(const QString &path)
{
    QFile file(QStringLiteral(ZR_SKINS "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_ZrCellText : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void randomCellsAreTheStylesOwnToThePixel_data();
    void randomCellsAreTheStylesOwnToThePixel();
    void aStyleOfTheCallersIsAsked();
    void aKeptLineIsDrawnAgain();
    void moreThanOneShortLineIsRefused_data();
    void moreThanOneShortLineIsRefused();
    void theLinesAreBounded();
    void newFontsOfTheProgramEmptyIt();
    void delegatesShareIt();
    void thePainterIsLeftAsItWas();

private:
    struct Cell
    {
        QStyleOptionViewItem option;
        qreal ratio = 1;
        int painterMood = 0;
    };

    void useStyle(const QString &name);
    Cell randomCell();
    void changeOneThing(QStyleOptionViewItem *option);
    void compareRoads(const Cell &cell);
    QFont randomFont();
    void fillItem();
    QStyle::State randomState();
    QImage shot(const Cell &cell, bool byStyle);
    QStyleOptionViewItem simpleOption(const QString &text) const;
    template<typename T>
    T oneOf(const QVector<T> &choices)
    {
        return choices.at(m_random.bounded(choices.size()));
    }
    bool oneIn(int count) { return m_random.bounded(count) == 0; }

    QRandomGenerator m_random;
    std::unique_ptr<QWidget> m_window;
    QTableView *m_view = nullptr;
    QStandardItemModel m_model{1, 1};
    std::unique_ptr<OpenDelegate> m_delegate;
};

void tst_ZrCellText::init()
{
    m_random.seed(20240611);
    useStyle("Fusion");
    m_window = std::make_unique<QWidget>();
    m_view = new QTableView(m_window.get());
    m_delegate = std::make_unique<OpenDelegate>();
    m_window->show();
}

void tst_ZrCellText::cleanup()
{
    m_delegate.reset();
    m_window.reset();
    qApp->setStyleSheet(QString());
}

void tst_ZrCellText::useStyle(const QString &name)
{
    QApplication::setStyle(QStyleFactory::create(name));
}

QFont tst_ZrCellText::randomFont()
{
    QFont font(oneOf<QString>(
        {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono", "Noto Sans CJK SC", "no such font"}));
    font.setPixelSize(m_random.bounded(7, 26));
    font.setBold(oneIn(3));
    font.setItalic(oneIn(4));
    font.setUnderline(oneIn(8));
    font.setStrikeOut(oneIn(8));
    font.setOverline(oneIn(12));
    font.setKerning(!oneIn(4));
    font.setStretch(oneIn(6) ? 130 : 100);
    if (oneIn(6))
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1.3);
    if (oneIn(6))
        font.setCapitalization(QFont::SmallCaps);
    if (oneIn(6))
        font.setStyleStrategy(QFont::NoAntialias);
    if (oneIn(6))
        font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void tst_ZrCellText::fillItem()
{
    const QString number = QString::number(m_random.bounded(100000.0) - 50000.0, 'f', m_random.bounded(4));
    auto *const item = new QStandardItem(
        oneOf<QString>({number,
                        number,
                        number + QStringLiteral(" %"),
                        QString(),
                        QStringLiteral("A"),
                        QStringLiteral("AVATAR To. office fi ffl"),
                        QStringLiteral("沪深300指数"),
                        QStringLiteral("买入开仓"),
                        QStringLiteral("مرحبا بالعالم 123"),
                        QStringLiteral("שלום 12.5 abc"),
                        QStringLiteral("abc שלום"),
                        QStringLiteral("नमस्ते สวัสดี"),
                        QStringLiteral("e\u0301a\u0308 \u200bx\u00ad y"),
                        QStringLiteral("\U0001F600 up \u2191\u25b2"),
                        QStringLiteral("\u202eforced\u202c back"),
                        QStringLiteral("  blanks around  "),
                        QStringLiteral("   "),
                        QStringLiteral("one\ttab"),
                        QStringLiteral("two\nlines"),
                        QStringLiteral("two\u2028lines"),
                        QStringLiteral("two\u2029paragraphs"),
                        QStringLiteral("long form\u009cshort"),
                        QStringLiteral("a&b &c"),
                        QStringLiteral("<b>not bold</b>"),
                        QStringLiteral("several words that may be wrapped where there is room"),
                        QStringLiteral("0123456789").repeated(7)}));
    if (oneIn(8))
        item->setData(QBrush(oneOf<QColor>({Qt::red, QColor(10, 200, 30, 90)})), Qt::ForegroundRole);
    if (oneIn(8))
        item->setData(QBrush(oneOf<QColor>({Qt::yellow, QColor(0, 0, 90, 60)})), Qt::BackgroundRole);
    if (oneIn(20))
        item->setData(QFont("DejaVu Serif", 11), Qt::FontRole);
    if (oneIn(20))
        item->setData(QColor(Qt::blue), Qt::DecorationRole);
    if (oneIn(20))
        item->setData(Qt::Checked, Qt::CheckStateRole);
    const QVector<int> across = {Qt::AlignLeft,
                                 Qt::AlignRight,
                                 Qt::AlignHCenter,
                                 Qt::AlignJustify,
                                 0,
                                 Qt::AlignLeft | Qt::AlignAbsolute,
                                 Qt::AlignRight | Qt::AlignAbsolute};
    const QVector<int> down = {Qt::AlignVCenter, Qt::AlignVCenter,  Qt::AlignTop,
                               Qt::AlignBottom,  Qt::AlignBaseline, 0};
    item->setData(oneOf(across) | oneOf(down), Qt::TextAlignmentRole);
    m_model.setItem(0, 0, item);
}

QStyle::State tst_ZrCellText::randomState()
{
    QStyle::State state = QStyle::State_None;
    state.setFlag(QStyle::State_Enabled, !oneIn(4));
    state.setFlag(QStyle::State_Active, !oneIn(3));
    state.setFlag(QStyle::State_Selected, oneIn(3));
    state.setFlag(QStyle::State_MouseOver, oneIn(3));
    state.setFlag(QStyle::State_HasFocus, oneIn(4));
    state.setFlag(QStyle::State_Open, oneIn(8));
    state.setFlag(QStyle::State_Editing, oneIn(20));
    return state;
}

tst_ZrCellText::Cell tst_ZrCellText::randomCell()
{
    fillItem();
    Cell cell;
    QStyleOptionViewItem &option = cell.option;
    option.initFrom(m_view);
    option.widget = m_view;
    option.font = m_view->font();
    option.state = randomState();
    if (oneIn(4)) { // colours that differ in all groups, as those of a sheet seldom do
        for (int group = 0; group < QPalette::NColorGroups; ++group) {
            for (const auto role : {QPalette::Text, QPalette::HighlightedText, QPalette::Highlight})
                option.palette.setColor(QPalette::ColorGroup(group), role,
                                        QColor::fromHsv(group * 90 + role * 3, 200, 150));
        }
    }
    option.direction = oneIn(4) ? Qt::RightToLeft : Qt::LeftToRight;
    option.textElideMode = oneOf<Qt::TextElideMode>(
        {Qt::ElideRight, Qt::ElideRight, Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideNone});
    option.showDecorationSelected = !oneIn(10);
    option.decorationPosition = oneOf<QStyleOptionViewItem::Position>(
        {QStyleOptionViewItem::Left, QStyleOptionViewItem::Left, QStyleOptionViewItem::Left,
         QStyleOptionViewItem::Right, QStyleOptionViewItem::Top, QStyleOptionViewItem::Bottom});
    option.decorationSize = QSize(12, 12);
    option.features.setFlag(QStyleOptionViewItem::WrapText, oneIn(2));
    option.features.setFlag(QStyleOptionViewItem::Alternate, oneIn(2));
    const int width =
        oneIn(3) ? m_random.bounded(130)
                 : m_view->fontMetrics().horizontalAdvance(m_model.item(0)->text()) + m_random.bounded(3, 9);
    option.rect =
        QRect(m_random.bounded(12), m_random.bounded(12), width, oneOf<int>({22, 22, 30, 16, 9, 3, 1, 0}));
    cell.ratio = oneOf<qreal>({1, 1.5, 2});
    cell.painterMood = m_random.bounded(24);
    return cell;
}

// A neighbour that would be the same line to a careless look.
void tst_ZrCellText::changeOneThing(QStyleOptionViewItem *option)
{
    switch (m_random.bounded(6)) {
    case 0:
        option->direction = option->direction == Qt::LeftToRight ? Qt::RightToLeft : Qt::LeftToRight;
        break;
    case 1:
        option->textElideMode = option->textElideMode == Qt::ElideLeft ? Qt::ElideMiddle : Qt::ElideLeft;
        break;
    case 2:
        option->features ^= QStyleOptionViewItem::WrapText;
        break;
    case 3:
        option->rect.setHeight(option->rect.height() + 5);
        break;
    case 4:
        option->rect.setWidth(option->rect.width() + 5);
        break;
    default: {
        QStandardItem *const item = m_model.item(0);
        const bool right = item->textAlignment() & Qt::AlignRight;
        item->setTextAlignment(Qt::AlignBottom | (right ? Qt::AlignHCenter : Qt::AlignRight));
        break;
    }
    }
}

QImage tst_ZrCellText::shot(const Cell &cell, bool byStyle)
{
    QImage image(sheetPx * cell.ratio,
                 cell.painterMood % 2 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(cell.ratio);
    image.fill(cell.painterMood % 3 ? QColor(Qt::white) : QColor(22, 27, 35));
    QPainter painter(&image);
    if (cell.painterMood == 5)
        painter.setClipRect(20, 3, 40, 12);
    if (cell.painterMood == 6)
        painter.translate(0.4, 0.7);
    if (cell.painterMood == 7)
        painter.scale(1.3, 0.9);
    if (cell.painterMood == 8)
        painter.rotate(4);
    if (cell.painterMood == 9)
        painter.setOpacity(0.6);
    if (cell.painterMood == 10)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QModelIndex index = m_model.index(0, 0);
    if (byStyle)
        m_delegate->paintByStyle(&painter, cell.option, index);
    else
        m_delegate->paint(&painter, cell.option, index);
    return image;
}

void tst_ZrCellText::compareRoads(const Cell &cell)
{
    const QImage expected = shot(cell, true);
    for (int time = 0; time < 2; ++time) { // laid out, then kept
        if (shot(cell, false) == expected)
            continue;
        qInfo() << cell.option << m_model.item(0)->text() << m_model.item(0)->textAlignment() << cell.ratio
                << cell.painterMood << m_view->font() << m_view->isEnabled() << time;
        QFAIL("the roads differ");
    }
}

void tst_ZrCellText::randomCellsAreTheStylesOwnToThePixel_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("applicationSheet");
    QTest::addColumn<QString>("windowSheet");
    QTest::addColumn<bool>("toolkit");
    const QString dark = sheetFile("dark/system/zrwidget/zrtableview.css");
    const QString light = sheetFile("light/system/zrwidget/zrtableview.css");
    const QString window = sheetFile("dark/system/client/workstation.css");
    QTest::newRow("Fusion") << "Fusion"
                            << ""
                            << "" << true;
    QTest::newRow("Windows") << "Windows"
                             << ""
                             << "" << true;
    QTest::newRow("dark skin") << "Fusion"
                               << "" << dark << true;
    QTest::newRow("light skin") << "Windows"
                                << "" << light << true;
    QTest::newRow("skin of all windows") << "Fusion" << window + dark << "" << true;
    QTest::newRow("skins of both") << "Fusion" << window << light << true;
    QTest::newRow("items with a box")
        << "Fusion" << dark << "QTableView::item { padding: 2px 5px; border: 1px solid red }" << false;
    QTest::newRow("items in a colour") << "Fusion"
                                       << "QTableView::item { color: blue }"
                                       << "" << false;
    QTest::newRow("items in states") << "Windows"
                                     << ""
                                     << "::item:selected { background: green; color: white } "
                                        "::item:hover { border: none }"
                                     << false;
}

void tst_ZrCellText::randomCellsAreTheStylesOwnToThePixel()
{
    QFETCH(QString, style);
    QFETCH(QString, applicationSheet);
    QFETCH(QString, windowSheet);
    QFETCH(bool, toolkit);
    useStyle(style);
    qApp->setStyleSheet(applicationSheet);
    m_window->setStyleSheet(windowSheet);
    const ZrItemModelDeletagePrivate &fields = *m_delegate->getDelegatePrivate();
    QCOMPARE(fields.itemStyle->toolkitStyle(m_view) != nullptr, toolkit);
    int kept = 0;
    for (int i = 0; i < cellsPerScene; ++i) {
        if (i % cellsPerFont == 0) {
            m_view->setFont(randomFont());
            m_view->setEnabled(!oneIn(5));
        }
        const int before = fields.cellText->lineCount();
        Cell cell = randomCell();
        compareRoads(cell);
        changeOneThing(&cell.option);
        compareRoads(cell);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString("cell %1").arg(i)));
        kept += fields.cellText->lineCount() > before ? 1 : 0;
    }
    // Else the two roads would be one.
    QVERIFY2(toolkit ? kept > cellsPerScene / 4 : kept == 0, qPrintable(QString::number(kept)));
}

QStyleOptionViewItem tst_ZrCellText::simpleOption(const QString &text) const
{
    QStyleOptionViewItem option;
    option.initFrom(m_view);
    option.widget = m_view;
    option.font = m_view->font();
    option.rect = QRect(2, 2, 90, 22);
    option.text = text;
    option.features = QStyleOptionViewItem::HasDisplay;
    option.showDecorationSelected = true;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    return option;
}

void tst_ZrCellText::aStyleOfTheCallersIsAsked()
{
    fillItem();
    Cell cell;
    cell.option = simpleOption(QString());
    QVERIFY(shot(cell, false).pixelColor(60, 12) != QColor(Qt::magenta));
    OwnStyle own(QStringLiteral("Fusion"));
    m_view->setStyle(&own);
    QCOMPARE(shot(cell, false).pixelColor(60, 3), QColor(Qt::magenta));
    QCOMPARE(shot(cell, false), shot(cell, true));
    m_view->setStyle(nullptr);
}

void tst_ZrCellText::aKeptLineIsDrawnAgain()
{
    ZrCellText text;
    QImage image(sheetPx, QImage::Format_RGB32);
    QPainter painter(&image);
    QStyleOptionViewItem option = simpleOption("12.50");
    for (int row = 0; row < 5; ++row) {
        option.rect.moveTop(row * 3); // where it stands makes no other line of it
        option.state.setFlag(QStyle::State_Selected, row == 2);
        QVERIFY(text.draw(&painter, option, QApplication::style()));
    }
    QCOMPARE(text.lineCount(), 1);
    option.rect.setWidth(50);
    QVERIFY(text.draw(&painter, option, QApplication::style()));
    QCOMPARE(text.lineCount(), 2);
    option.textElideMode = Qt::ElideLeft;
    QVERIFY(text.draw(&painter, option, QApplication::style()));
    QCOMPARE(text.lineCount(), 3);
    QFont bold = m_view->font();
    bold.setBold(true);
    m_view->setFont(bold);
    option.font = m_view->font();
    QVERIFY(text.draw(&painter, option, QApplication::style()));
    QCOMPARE(text.lineCount(), 4);
}

void tst_ZrCellText::moreThanOneShortLineIsRefused_data()
{
    using Change = std::function<void(QStyleOptionViewItem &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("drawn");
    const auto row = [](const char *name, bool drawn, const Change &change) {
        QTest::newRow(name) << change << drawn;
    };
    row("text", true, [](QStyleOptionViewItem &) {});
    row("no text", true, [](QStyleOptionViewItem &o) { o.text.clear(); });
    row("longest", true, [](QStyleOptionViewItem &o) { o.text = QString(ZrCellText::longestText, 'x'); });
    row("too long", false,
        [](QStyleOptionViewItem &o) { o.text = QString(ZrCellText::longestText + 1, 'x'); });
    row("two lines", false, [](QStyleOptionViewItem &o) { o.text = QStringLiteral("a\u2028b"); });
    row("tab", false, [](QStyleOptionViewItem &o) { o.text = "a\tb"; });
    row("text in two lengths", false,
        [](QStyleOptionViewItem &o) { o.text = QStringLiteral("long\u009cs"); });
    row("wrapped", false, [](QStyleOptionViewItem &o) {
        o.text = "several words in a low and narrow cell";
        o.features |= QStyleOptionViewItem::WrapText;
    });
    row("justified", false, [](QStyleOptionViewItem &o) { o.displayAlignment = Qt::AlignJustify; });
    row("own font", false, [](QStyleOptionViewItem &o) { o.font.setPixelSize(31); });
    row("picture", false, [](QStyleOptionViewItem &o) { o.features |= QStyleOptionViewItem::HasDecoration; });
    row("mark", false,
        [](QStyleOptionViewItem &o) { o.features |= QStyleOptionViewItem::HasCheckIndicator; });
    row("icon alone", false, [](QStyleOptionViewItem &o) { o.icon = QIcon(QPixmap(3, 3)); });
    row("focus", false, [](QStyleOptionViewItem &o) { o.state |= QStyle::State_HasFocus; });
    row("editor", false, [](QStyleOptionViewItem &o) { o.state |= QStyle::State_Editing; });
    row("selected text alone", false, [](QStyleOptionViewItem &o) { o.showDecorationSelected = false; });
    row("picture above", false,
        [](QStyleOptionViewItem &o) { o.decorationPosition = QStyleOptionViewItem::Top; });
    row("no room", false, [](QStyleOptionViewItem &o) { o.rect.setWidth(6); });
    row("no height", false, [](QStyleOptionViewItem &o) { o.rect.setHeight(0); });
}

void tst_ZrCellText::moreThanOneShortLineIsRefused()
{
    QFETCH(std::function<void(QStyleOptionViewItem &)>, change);
    QFETCH(bool, drawn);
    QStyleOptionViewItem option = simpleOption("12.50");
    option.state |= QStyle::State_Selected;
    change(option);
    QImage image(sheetPx, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage blank = image;
    QPainter painter(&image);
    ZrCellText text;
    for (int time = 0; time < 2; ++time)
        QCOMPARE(text.draw(&painter, option, QApplication::style()), drawn);
    QCOMPARE(image != blank, drawn);
}

void tst_ZrCellText::theLinesAreBounded()
{
    ZrCellText text;
    QImage image(sheetPx, QImage::Format_RGB32);
    QPainter painter(&image);
    QStyleOptionViewItem option = simpleOption(QString());
    for (int i = 0; i < ZrCellText::mostLines + 50; ++i) {
        option.text = QString::number(i);
        QVERIFY(text.draw(&painter, option, QApplication::style()));
    }
    QCOMPARE(text.lineCount(), ZrCellText::mostLines);
}

void tst_ZrCellText::newFontsOfTheProgramEmptyIt()
{
    ZrCellText text;
    QImage image(sheetPx, QImage::Format_RGB32);
    QPainter painter(&image);
    QVERIFY(text.draw(&painter, simpleOption("1"), QApplication::style()));
    QCOMPARE(text.lineCount(), 1);
    emit qGuiApp->fontDatabaseChanged();
    QCOMPARE(text.lineCount(), 0);
    QVERIFY(text.draw(&painter, simpleOption("1"), QApplication::style()));
}

void tst_ZrCellText::delegatesShareIt()
{
    const ZrItemModelDeletage other;
    QCOMPARE(other.getDelegatePrivate()->cellText, m_delegate->getDelegatePrivate()->cellText);
}

void tst_ZrCellText::thePainterIsLeftAsItWas()
{
    ZrCellText text;
    QImage image(sheetPx, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::green, 3));
    painter.setClipRect(1, 2, 30, 40);
    QVERIFY(text.draw(&painter, simpleOption("1"), QApplication::style()));
    QCOMPARE(painter.pen(), QPen(Qt::green, 3));
    QCOMPARE(painter.clipBoundingRect(), QRectF(1, 2, 30, 40));
}

ZR_TEST_MAIN(tst_ZrCellText)
#include "tst_zrcelltext.moc"
