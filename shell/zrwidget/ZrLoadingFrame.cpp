#include "ZrLoadingFrame.h"

#include "ui_ZrLoadingFrame.h"
#include "ZrSkinPixmap.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QVariant>
#include <QtGui/QPainter>

namespace {
constexpr int loading = 1;
// A skin that says 0 would keep the event loop busy.
constexpr int leastIntervalMs = 1;
} // namespace

ZrLoadingFrame::ZrLoadingFrame(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::ZrLoadingFrame>())
{
    m_ui->setupUi(this);
    m_ui->LoadingImageLabel->setAccessibleName(tr("Loading"));
    ZrCore *const core = ZrCore::instance();
    connect(&m_timer, &QTimer::timeout, this, &ZrLoadingFrame::slotTimerOut);
    connect(core, &ZrCore::signalSkinChanged, this, &ZrLoadingFrame::refreshUI);
    core->addStyle2View(this, Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/zrloadingframe.css"));
}

ZrLoadingFrame::~ZrLoadingFrame() = default;

void ZrLoadingFrame::setLoadingState(int state)
{
    if (state == loading) {
        if (!m_timer.isActive()) {
            m_frameIndex = 0;
            m_timer.start(qMax(leastIntervalMs, m_timerInterval));
        }
        show();
    } else {
        m_timer.stop();
        hide();
    }
}

void ZrLoadingFrame::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrLoadingFrame::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

void ZrLoadingFrame::setLoadingImageCount(int count)
{
    m_loadingImageCount = count;
}

void ZrLoadingFrame::setTimerInterval(int intervalMs)
{
    if (intervalMs == m_timerInterval)
        return;
    m_timerInterval = intervalMs;
    // The sheet of a frame that was never shown arrives with the first show(), after the start.
    if (m_timer.isActive())
        m_timer.setInterval(qMax(leastIntervalMs, m_timerInterval));
}

void ZrLoadingFrame::setImagePath(const QUrl &path)
{
    m_imagePath = path;
}

void ZrLoadingFrame::slotTimerOut()
{
    ++m_frameIndex;
    if (m_frameIndex > m_loadingImageCount)
        m_frameIndex = 1;
    refreshUI();
}

void ZrLoadingFrame::paintEvent(QPaintEvent *event)
{
    {
        // Ended before the base begins its own painter on this widget.
        QPainter painter(this);
        painter.fillRect(rect(), m_backgroundColor);
    }
    QFrame::paintEvent(event);
}

void ZrLoadingFrame::refreshUI()
{
    const QString path =
        m_imagePath.path() + QStringLiteral("/%1.png").arg(m_frameIndex, 2, 10, QLatin1Char('0'));
    const QPixmap picture(ZrSkinPixmap::fileName(ZrCore::instance()->getCurrentSkinId(), path));
    if (!picture.isNull())
        m_ui->LoadingImageLabel->setPixmap(picture);
}
