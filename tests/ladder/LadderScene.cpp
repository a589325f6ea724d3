#include "LadderScene.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtGui/QHoverEvent>

namespace {
QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

// Not by the test library, which takes the corner of a widget for its middle.
void send(QWidget *widget, QEvent::Type type, const QPoint &at, Qt::MouseButton button)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}
} // namespace

LadderScene::LadderScene(Margins margins)
    : m_window(new QWidget)
    , m_panel(new ZrSecurityAskBidPanel(m_window.get()))
{
    m_window->resize(widthPx, heightPx);
    m_panel->resize(widthPx, heightPx);
    m_panel->ensurePolished(); // the skin's margin comes first
    if (margins == Fixed)
        m_panel->setCurrentMargins(marginPx);
    m_panel->setCodeLastAskBidInfo(book());
    m_panel->setLastPriceInfo(last());
    m_panel->setCodePrevClose(20.0);
    m_window->show();
    m_window->activateWindow();
    m_panel->setFocus();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        QTest::qFail("the window does not become active", __FILE__, __LINE__);
}

LadderScene::~LadderScene() = default;

ZrAskBidLevels LadderScene::book()
{
    ZrAskBidLevels levels;
    for (int row = 0; row < 20; ++row) {
        ZrSecurityAskBidData level;
        level.side = row < 10 ? 1 : 0;
        level.level = row < 10 ? 10 - row : row - 9;
        level.price = QString::number((2010 - row) / 100.0, 'f', 2);
        level.volume = 100 * row + 7;
        level.spare = row;
        levels.insert(row, level);
    }
    return levels;
}

ZrSecurityAskBidData LadderScene::last()
{
    ZrSecurityAskBidData data;
    data.price = QStringLiteral("20.55");
    data.volumeText = QStringLiteral("1.2w");
    return data;
}

void LadderScene::press(const QPoint &at, Qt::MouseButton button)
{
    send(m_panel, QEvent::MouseButtonPress, at, button);
}

void LadderScene::release(const QPoint &at, Qt::MouseButton button)
{
    send(m_panel, QEvent::MouseButtonRelease, at, button);
}

void LadderScene::click(const QPoint &at)
{
    press(at);
    release(at);
}

void LadderScene::doubleClick(const QPoint &at, Qt::MouseButton button)
{
    press(at, button);
    release(at, button);
    send(m_panel, QEvent::MouseButtonDblClick, at, button);
    release(at, button);
}

void LadderScene::hover(const QPoint &at)
{
    QHoverEvent event(QEvent::HoverMove, at, QPointF(-1, -1));
    QCoreApplication::sendEvent(m_panel, &event);
}

void LadderScene::leave()
{
    QHoverEvent event(QEvent::HoverLeave, QPointF(-1, -1), QPointF(5, 5));
    QCoreApplication::sendEvent(m_panel, &event);
}

int LadderScene::waitMs() const
{
    const auto timers = timersOf(m_panel);
    return timers.isEmpty() ? 0 : timers.constFirst().interval;
}

Qt::TimerType LadderScene::waitType() const
{
    const auto timers = timersOf(m_panel);
    return timers.isEmpty() ? Qt::PreciseTimer : timers.constFirst().timerType;
}

bool LadderScene::ring()
{
    const auto timers = timersOf(m_panel);
    if (timers.size() != 1)
        return false;
    QTimerEvent event(timers.constFirst().timerId);
    QCoreApplication::sendEvent(m_panel, &event);
    return true;
}

LadderReports::LadderReports(const ZrSecurityAskBidPanel *panel)
{
    connect(panel, &ZrSecurityAskBidPanel::signalCurrentPriceInfo, this,
            [this](const ZrSecurityAskBidData &data) { note(QStringLiteral("price"), data); });
    connect(panel, &ZrSecurityAskBidPanel::signalCurrentClicked, this,
            [this](const ZrSecurityAskBidData &data) { note(QStringLiteral("level"), data); });
    connect(
        panel, &ZrSecurityAskBidPanel::signalPanelBarClicked, this,
        [this](int cmd, const ZrSecurityAskBidData &data) { note(QStringLiteral("bar %1").arg(cmd), data); });
}

void LadderReports::note(const QString &what, const ZrSecurityAskBidData &data)
{
    m_reports.append(what + QLatin1Char(' ') + data.price);
    m_last = data;
}

QString LadderReports::take()
{
    const QString all = m_reports.join(QStringLiteral(", "));
    m_reports.clear();
    return all;
}
