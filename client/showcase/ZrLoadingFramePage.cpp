#include "ZrLoadingFrame.h"
#include "ZrOrderSample.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrTableView.h"

#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int Loading = 1;
constexpr int Finished = 2;

/// A grid under a cover.
class CoveredGrid : public QWidget
{
public:
    explicit CoveredGrid(int rows)
        : m_grid(ZrOrderSample::make(rows))
        , m_cover(new ZrLoadingFrame(this))
    {
        m_grid->setParent(this);
        m_grid->setAccessibleName(ZrShowcase::tr("Orders"));
        m_cover->raise();
        m_cover->hide();
        setFixedSize(ZrOrderSample::size());
    }

    ZrLoadingFrame *cover() const { return m_cover; }

protected:
    void resizeEvent(QResizeEvent *) override
    {
        m_grid->setGeometry(rect());
        m_cover->setGeometry(rect());
    }

private:
    ZrTableView *const m_grid;
    ZrLoadingFrame *const m_cover;
};

/// The cover as it stands at one of its pictures: a clock would make each look of the page another.
CoveredGrid *standingAt(int picture, int rows = ZrOrderSample::MostRows)
{
    auto *const sample = new CoveredGrid(rows);
    ZrLoadingFrame *const cover = sample->cover();
    cover->ensurePolished();
    for (int step = 0; step < picture; ++step)
        cover->slotTimerOut();
    cover->show();
    return sample;
}

CoveredGrid *disabled()
{
    CoveredGrid *const sample = standingAt(1);
    sample->setEnabled(false);
    return sample;
}

/// Runs while its button is down.
QWidget *live()
{
    auto *const sample = new QWidget;
    auto *const covered = new CoveredGrid(ZrOrderSample::MostRows);
    auto *const button = new QPushButton(ZrShowcase::tr("Load"));
    button->setCheckable(true);
    auto *const layout = new QVBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(covered);
    layout->addWidget(button, 0, Qt::AlignLeft);
    QObject::connect(button, &QPushButton::toggled, covered->cover(),
                     [covered](bool down) { covered->cover()->setLoadingState(down ? Loading : Finished); });
    return sample;
}
} // namespace

ZrShowcasePage *zrMakeLoadingFramePage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("loading-frame"), QStringLiteral("ZrLoadingFrame"),
        ZrShowcase::tr("Covers a plugin with a moving picture while its data load."), parent);
    page->beginRow(ZrShowcase::tr("States"));
    page->addSample(ZrShowcase::tr("Before the first picture"), standingAt(0));
    page->addSample(ZrShowcase::tr("First picture"), standingAt(1));
    page->addSample(ZrShowcase::tr("Sixth picture"), standingAt(6));
    page->addSample(ZrShowcase::tr("Over an empty grid"), standingAt(1, 0));
    page->addSample(ZrShowcase::tr("Disabled"), disabled());
    page->beginRow(ZrShowcase::tr("Try it"));
    page->addSample(ZrShowcase::tr("Finished"), live());
    return page;
}
