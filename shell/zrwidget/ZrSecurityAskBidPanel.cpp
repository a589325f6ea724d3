#include "ZrSecurityAskBidPanel.h"

#include "ZrLadderPainter.h"
#include "ZrSecurityAskBidPanel_p.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QDebug>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <cmath>

namespace {
constexpr int mostLevels = 1000; // a side
constexpr double mostMarginPx = 10000;
constexpr int leastIndex = -1000000; // what is far below every row; an index is stepped from there

enum BandFlag { AlwaysShown = 1, NeverShown = 2 };
} // namespace

ZrSecurityAskBidPanel::ZrSecurityAskBidPanel(QWidget *parent)
    : QWidget(parent)
    , d(new ZrSecurityAskBidPanelPrivate(this))
{
    setObjectName(QStringLiteral("ZrSecurityAskBidPanel"));
    setAttribute(Qt::WA_Hover);
    d->begin();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    qRegisterMetaType<ZrSecurityAskBidData>("ZrSecurityAskBidData");
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM +
                                                QStringLiteral("zrwidget/zrsecurityaskbidpanel.css"));
    setAttribute(Qt::WA_Hover); // a sheet takes it away from what it has no hover rule for
    installEventFilter(this);
}

ZrSecurityAskBidPanel::~ZrSecurityAskBidPanel()
{
    delete d;
}

QBrush ZrSecurityAskBidPanel::brushColor() const
{
    return d->state.look.mark;
}

void ZrSecurityAskBidPanel::setBrushColor(const QBrush &brush)
{
    d->change(&d->state.look.mark, brush);
}

QColor ZrSecurityAskBidPanel::panelBgColor() const
{
    return d->state.look.ground;
}

void ZrSecurityAskBidPanel::setPanelBgColor(const QColor &color)
{
    d->change(&d->state.look.ground, color);
}

QColor ZrSecurityAskBidPanel::upColor() const
{
    return d->state.look.up;
}

void ZrSecurityAskBidPanel::setUpColor(const QColor &color)
{
    d->change(&d->state.look.up, color);
}

QColor ZrSecurityAskBidPanel::downColor() const
{
    return d->state.look.down;
}

void ZrSecurityAskBidPanel::setDownColor(const QColor &color)
{
    d->change(&d->state.look.down, color);
}

QColor ZrSecurityAskBidPanel::lastPriceColor() const
{
    return d->state.look.band;
}

void ZrSecurityAskBidPanel::setLastPriceColor(const QColor &color)
{
    d->change(&d->state.look.band, color);
}

QColor ZrSecurityAskBidPanel::buyColor() const
{
    return d->state.look.buyBadge;
}

void ZrSecurityAskBidPanel::setBuyColor(const QColor &color)
{
    d->change(&d->state.look.buyBadge, color);
}

QColor ZrSecurityAskBidPanel::sellColor() const
{
    return d->state.look.sellBadge;
}

void ZrSecurityAskBidPanel::setSellColor(const QColor &color)
{
    d->change(&d->state.look.sellBadge, color);
}

int ZrSecurityAskBidPanel::painterFont() const
{
    return d->state.look.fontPx;
}

void ZrSecurityAskBidPanel::setPainterFont(int sizePx)
{
    d->change(&d->state.look.fontPx, sizePx);
}

double ZrSecurityAskBidPanel::currentMargins() const
{
    return d->state.look.marginPx;
}

void ZrSecurityAskBidPanel::setCurrentMargins(double marginPx)
{
    if (std::isfinite(marginPx))
        d->change(&d->state.look.marginPx, qBound(-mostMarginPx, marginPx, mostMarginPx));
}

bool ZrSecurityAskBidPanel::showLastPrice() const
{
    return d->state.bandShown;
}

void ZrSecurityAskBidPanel::setShowLastPrice(bool shown)
{
    if (d->bandFlag != 0)
        return;
    d->state.bandShown = shown;
    d->refresh();
}

void ZrSecurityAskBidPanel::setLastPriceShow(bool shown)
{
    setShowLastPrice(shown);
}

void ZrSecurityAskBidPanel::setLastPriceShowFlag(int flag)
{
    d->bandFlag = flag;
    if (flag == AlwaysShown)
        d->state.bandShown = true;
    else if (flag == NeverShown)
        d->state.bandShown = false;
    d->refresh();
}

int ZrSecurityAskBidPanel::dishShowType() const
{
    return d->state.look.numerals;
}

void ZrSecurityAskBidPanel::setDishShowType(int type)
{
    d->change(&d->state.look.numerals, type);
}

void ZrSecurityAskBidPanel::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrSecurityAskBidPanel::setCodeLastAskBidInfo(const ZrAskBidLevels &levels)
{
    d->state.book.setLevels(levels);
    d->reset();
}

ZrAskBidLevels ZrSecurityAskBidPanel::getCodeLastAskBidInfo() const
{
    return d->state.book.levels();
}

void ZrSecurityAskBidPanel::setCodePrevClose(double price)
{
    d->change(&d->state.previousClose, price);
}

double ZrSecurityAskBidPanel::getCodePrevClose() const
{
    return d->state.previousClose;
}

void ZrSecurityAskBidPanel::setLastPriceInfo(const ZrSecurityAskBidData &data)
{
    d->state.last.price = data.price;
    d->state.last.volumeText = data.volumeText;
    d->refresh();
}

void ZrSecurityAskBidPanel::updateBidAskPrice(int key, float price, int volume)
{
    Q_UNUSED(price)
    Q_UNUSED(volume)
    if (d->state.book.levels().contains(key))
        d->refresh();
}

void ZrSecurityAskBidPanel::setAskBidPricesCounts(int count)
{
    const int bounded = qBound(-mostLevels, count, mostLevels);
    if (bounded != count)
        qWarning() << "ZrSecurityAskBidPanel::setAskBidPricesCounts" << count << "is taken for" << bounded;
    if (bounded == 0 || bounded == d->state.book.count())
        return;
    d->state.book.setCount(bounded);
    d->reset();
}

int ZrSecurityAskBidPanel::getAskBidPricesCounts() const
{
    return d->state.book.count();
}

void ZrSecurityAskBidPanel::setCurIndex(int row)
{
    d->state.currentIndex = row == -1 ? ZrLadderState::NoRow : qMax(row, leastIndex) - 1;
    d->refresh();
}

int ZrSecurityAskBidPanel::getCurIndex() const
{
    return d->state.currentIndex;
}

void ZrSecurityAskBidPanel::changeAskBidCurrentIndex(bool forward)
{
    if (d->state.currentIndex == ZrLadderState::NoRow)
        return;
    d->state.moveCurrent(forward);
    d->refresh();
}

void ZrSecurityAskBidPanel::setBarSelectable(bool selectable)
{
    d->state.selectable = selectable;
    d->reset();
}

void ZrSecurityAskBidPanel::setHoverable(bool hoverable)
{
    d->isHoverable = hoverable;
    d->refresh();
}

ZrSecurityAskBidData ZrSecurityAskBidPanel::getCurrentPriceInfo()
{
    const int row = d->state.currentIndex;
    const ZrSecurityAskBidData shown = d->state.book.shown(row);
    if (row != ZrLadderState::NoRow)
        return shown;
    ZrSecurityAskBidData none;
    none.side = shown.side;
    none.level = shown.level;
    none.volume = shown.volume;
    none.price = QStringLiteral("0");
    return none;
}

bool ZrSecurityAskBidPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == this)
        d->hover(event);
    return QWidget::eventFilter(watched, event);
}

void ZrSecurityAskBidPanel::timerEvent(QTimerEvent *event)
{
    d->ring(event->timerId());
}

void ZrSecurityAskBidPanel::mousePressEvent(QMouseEvent *event)
{
    d->press(event->pos());
    QWidget::mousePressEvent(event);
}

void ZrSecurityAskBidPanel::mouseReleaseEvent(QMouseEvent *event)
{
    qDebug() << "0000000000000 mouseReleaseEvent";
    if (d->state.currentIndex == ZrLadderState::NoRow && d->state.selectable) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    if (d->clicks.isDoubleWaiting()) {
        qDebug() << "0000000000000 mouseReleaseEvent after mouseDoubleClickEvent , return";
        return;
    }
    // The corner is what a release has that was made up by a platform without a pointer.
    if (event->pos().isNull())
        return;
    d->release(event->pos());
    QWidget::mouseReleaseEvent(event);
}

void ZrSecurityAskBidPanel::mouseDoubleClickEvent(QMouseEvent *event)
{
    qDebug() << "0000000000000 mouseDoubleClickEvent";
    if (d->state.currentIndex != ZrLadderState::NoRow && event->button() == Qt::LeftButton)
        d->doubleClick(event->pos());
    QWidget::mouseDoubleClickEvent(event); // takes it for a press
}

void ZrSecurityAskBidPanel::keyPressEvent(QKeyEvent *event)
{
    if (d->state.currentIndex == ZrLadderState::NoRow) {
        QWidget::keyPressEvent(event);
        return;
    }
    // Other keys end here: who walks through a book must not set off what the window has on them.
    if (event->key() != Qt::Key_Up && event->key() != Qt::Key_Down)
        return;
    d->state.moveCurrent(event->key() == Qt::Key_Down);
    emit signalCurrentPriceInfo(getCurrentPriceInfo());
    d->refresh();
    event->accept();
    // The base gives the event on to the window all the same, which the client's order forms listen for.
    QWidget::keyPressEvent(event);
}

void ZrSecurityAskBidPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (d->state.isSelecting())
        drawPanel(&painter);
    else
        drawNormalPanel(&painter);
}

void ZrSecurityAskBidPanel::drawPanel(QPainter *painter)
{
    ZrLadderPainter(painter, d->state, size()).paint(true);
}

void ZrSecurityAskBidPanel::drawNormalPanel(QPainter *painter)
{
    ZrLadderPainter(painter, d->state, size()).paint(false);
}

void ZrSecurityAskBidPanel::resizeEvent(QResizeEvent *event)
{
    if (event->size().isValid())
        d->reset();
}
