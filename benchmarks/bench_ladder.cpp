// The order-book ladder: a paint beside the bare drawing of the same, and what a busy book costs the thread.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrReferenceHost.h"
#include "ZrSecurityAskBidPanel.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <zrdatabase/CDataBase.h>

namespace {
constexpr int WidthPx = 400;
constexpr int HeightPx = 600;
constexpr int Paints = 50;
constexpr int UpdatesPerSecond = 10000;
constexpr int PaintsPerSecond = 60;
constexpr int Books = 64;
constexpr double MostPercent = 30;

/// Twenty levels around a price that moves with the number.
ZrAskBidLevels book(int number)
{
    ZrAskBidLevels levels;
    for (int row = 0; row < 20; ++row) {
        ZrSecurityAskBidData level;
        level.side = row < 10 ? 1 : 0;
        level.level = row < 10 ? 10 - row : row - 9;
        level.price = QString::number((2010 + number - row) / 100.0, 'f', 2);
        level.volume = 100 * (1 + (row * 37 + number * 11) % 900);
        levels.insert(row, level);
    }
    return levels;
}

ZrSecurityAskBidData last()
{
    ZrSecurityAskBidData data;
    data.price = QStringLiteral("20.01");
    data.volumeText = QStringLiteral("1200");
    return data;
}

class Host
{
public:
    Host()
    {
        ZrReferenceHost::Options options;
        options.configFolder = m_folder.path();
        options.skinRoot = QStringLiteral(ZR_BENCH_SKINS);
        options.skinId = QStringLiteral("dark");
        if (!m_host.start(options))
            qFatal("%s", qPrintable(m_host.errorText()));
    }

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
};

class CountingLadder : public ZrSecurityAskBidPanel
{
public:
    using ZrSecurityAskBidPanel::ZrSecurityAskBidPanel;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ZrSecurityAskBidPanel::paintEvent(event);
    }
};

QColor balanceColor()
{
    QColor color(CDataBase::GetInstance()->GetStaticCfgValue(QStringLiteral("DefaultMasterColorInfo"),
                                                             QStringLiteral("banlanceColor_dark")));
    color.setAlpha(200);
    return color;
}

/// One step of a drawing: a filled shape, or a text.
struct Step
{
    QRectF rect;
    double radius = 0; // of a shape; 0: a plain rectangle
    QBrush brush;
    QString text; // empty for a shape
    QColor pen;
    QFont font;
    int alignment = 0;
};

/// The same texts and rectangles without a ladder around them: places, colours and fonts are ready.
class BareDrawing : public QWidget
{
public:
    BareDrawing(const ZrSecurityAskBidPanel &like, QWidget *parent)
        : QWidget(parent)
        , m_like(like)
        , m_balance(balanceColor())
        , m_rowFont(fontOf(QStringLiteral("微软雅黑"), like.painterFont()))
        , m_levelFont(fontOf(QStringLiteral("微软雅黑"), like.painterFont() - 1))
        , m_currentFont(fontOf(QApplication::font().family(), like.painterFont()))
    {
        addShape(QRectF(0, 0, WidthPx, HeightPx), 0, like.panelBgColor());
        addRow(0, 12, 51, true);
        for (int row = 1; row < 10; ++row)
            addRow(row, 36 + 27 * row, 27, false);
        addBand(306);
        for (int row = 10; row < 20; ++row)
            addRow(row, 63 + 27 * row, 27, false);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (const Step &step : qAsConst(m_steps)) {
            if (!step.text.isEmpty()) {
                painter.setPen(step.pen);
                painter.setFont(step.font);
                painter.drawText(step.rect, step.alignment, step.text);
                continue;
            }
            painter.setPen(Qt::NoPen);
            painter.setBrush(step.brush);
            if (step.radius > 0)
                painter.drawRoundedRect(step.rect, step.radius, step.radius);
            else
                painter.drawRect(step.rect);
        }
    }

private:
    QFont fontOf(const QString &family, int sizePx) const
    {
        QFont result = font();
        result.setPixelSize(sizePx);
        result.setFamily(family);
        result.setFamilies({family});
        return result;
    }

    QColor priceColor(const QString &price) const
    {
        const double value = price.toDouble();
        if (value == m_like.getCodePrevClose())
            return m_balance;
        return value > m_like.getCodePrevClose() ? m_like.upColor() : m_like.downColor();
    }

    void addShape(const QRectF &rect, double radius, const QBrush &brush)
    {
        Step step;
        step.rect = rect;
        step.radius = radius;
        step.brush = brush;
        m_steps.append(step);
    }

    void addText(const QRectF &rect, int alignment, const QString &text, const QColor &pen, const QFont &font)
    {
        Step step;
        step.rect = rect;
        step.alignment = alignment | Qt::AlignVCenter;
        step.text = text;
        step.pen = pen;
        step.font = font;
        m_steps.append(step);
    }

    void addRow(int row, double top, double height, bool current)
    {
        const ZrSecurityAskBidData level = m_like.getCodeLastAskBidInfo().value(row);
        const QFont font = current ? m_currentFont : m_rowFont;
        const QFontMetrics metrics(font, this);
        const QString side = level.side != 0 ? QStringLiteral("卖 ") : QStringLiteral("买 ");
        const int sideWidth = metrics.horizontalAdvance(side);
        QRectF badge(sideWidth + 12, top, metrics.horizontalAdvance(QStringLiteral("10")) + 4, height);
        if (current)
            addShape(QRectF(0, top, WidthPx, height), 6, m_like.brushColor());
        else
            badge = QRectF(badge.x(), top + (level.side != 0 ? 2 : 1), badge.width(), height - 1);
        addShape(badge, 2, level.side != 0 ? m_like.sellColor() : m_like.buyColor());
        addText(QRectF(12, top, sideWidth, height), Qt::AlignLeft, side, m_balance, font);
        addText(badge, current ? Qt::AlignLeft : Qt::AlignHCenter, QString::number(level.level), m_balance,
                current ? font : m_levelFont);
        addText(QRectF(126, top, 114, height), Qt::AlignRight, level.price, priceColor(level.price), font);
        addText(QRectF(228, top, 171, height), Qt::AlignRight, QString::number(level.volume), m_balance,
                font);
    }

    void addBand(double top)
    {
        const ZrSecurityAskBidData data = last();
        const QColor color = priceColor(data.price);
        addShape(QRectF(0, top, WidthPx, 27), 0, m_like.lastPriceColor());
        addText(QRectF(12, top, 114, 27), Qt::AlignLeft, QStringLiteral("最新"), m_balance, m_rowFont);
        addText(QRectF(126, top, 114, 27), Qt::AlignRight, data.price, color, m_rowFont);
        addText(QRectF(240, top, 171, 27), Qt::AlignRight, data.volumeText, color, m_rowFont);
    }

    const ZrSecurityAskBidPanel &m_like;
    const QColor m_balance;
    const QFont m_rowFont;
    const QFont m_levelFont;
    const QFont m_currentFont;
    QVector<Step> m_steps;
};

class LadderFixture
{
public:
    LadderFixture()
        : m_ladder(new CountingLadder(&m_window))
    {
        m_ladder->resize(WidthPx, HeightPx);
        m_window.resize(2 * WidthPx, HeightPx);
        m_window.show();
        m_ladder->setCurrentMargins(12);
        m_ladder->setCodePrevClose(20.0);
        m_ladder->setLastPriceInfo(last());
        for (int number = 0; number < Books; ++number)
            m_books.append(book(number));
        m_ladder->setCodeLastAskBidInfo(m_books.constFirst());
        ZrBenchStopwatch::drain();
        m_bare = new BareDrawing(*m_ladder, &m_window);
        m_bare->setGeometry(WidthPx, 0, WidthPx, HeightPx);
        m_bare->show();
        ZrBenchStopwatch::drain();
        if (m_ladder->grab().toImage() != m_bare->grab().toImage())
            qFatal("the bare drawing is another one");
    }

    double paintUs() const { return paintUs(m_ladder); }
    double barePaintUs() const { return paintUs(m_bare); }

    /// Percent of a second that a second of updates takes.
    double busyPercent()
    {
        m_ladder->paints = 0;
        const double seconds = secondsOf([this] {
            int painted = 0;
            for (int update = 0; update < UpdatesPerSecond; ++update) {
                m_ladder->setCodeLastAskBidInfo(m_books.at(update % Books));
                m_ladder->setLastPriceInfo(last());
                if ((update + 1) * PaintsPerSecond / UpdatesPerSecond > painted) {
                    ++painted;
                    ZrBenchStopwatch::drain();
                }
            }
        });
        if (m_ladder->paints != PaintsPerSecond)
            qFatal("%d paints instead of %d", m_ladder->paints, PaintsPerSecond);
        return 100 * seconds;
    }

private:
    static double paintUs(QWidget *widget)
    {
        return 1e6 / Paints * secondsOf([widget] {
                   for (int i = 0; i < Paints; ++i)
                       widget->repaint();
               });
    }

    Host m_host;
    QWidget m_window;
    CountingLadder *const m_ladder; // the window's
    BareDrawing *m_bare = nullptr;  // the window's
    QVector<ZrAskBidLevels> m_books;
};
} // namespace

ZrBenchCases ladderBenches()
{
    const ZrBenchRow paint = {"ladder/paint",   "us", false, {}, "the same texts and rectangles",
                              ZrBenchRow::None, 1.5};
    const ZrBenchRow busy = {"ladder/update_and_paint", "%", false, {}, "30 % of the thread",
                             ZrBenchRow::None,          1.0};
    return {{paint,
             [] {
                 const auto fixture = std::make_shared<LadderFixture>();
                 return ZrBenchSides{
                     [=] { return fixture->paintUs(); }, {}, [=] { return fixture->barePaintUs(); }};
             }},
            {busy, [] {
                 const auto fixture = std::make_shared<LadderFixture>();
                 return ZrBenchSides{[=] { return fixture->busyPercent(); }, {}, [] { return MostPercent; }};
             }}};
}
