// Painting: the whole viewport again, and page after page.
#include "FreezeTableView.h"
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrTableView.h"

#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

namespace {
constexpr int Paints = 20;
constexpr int Pages = 20;
const char *const PeerName = "QStandardItemModel, QTableView";

class PaintFixture
{
public:
    PaintFixture()
        : m_peer(false)
    {
        ZrBenchData data;
        QVector<ZrBenchCells> cells;
        RecordDataList records;
        for (int row = 0; row < ZrBenchData::Rows; ++row) {
            cells.append(data.row(row));
            records.append(ZrBenchData::toRecord(cells.constLast()));
        }
        m_ours.load(records);
        m_peer.load(cells);
        ZrBenchStopwatch::drain();
    }
    QTableView *ours() const { return m_ours.view()->getTableView(); }
    QTableView *peer() const { return m_peer.view(); }

private:
    ZrBenchOurGrid m_ours;
    ZrBenchPeerGrid m_peer;
};

double repaintMs(QTableView *table)
{
    return 1000 / Paints * secondsOf([&] {
               for (int i = 0; i < Paints; ++i)
                   table->viewport()->repaint();
           });
}

double scrollMs(QTableView *table)
{
    QScrollBar *bar = table->verticalScrollBar();
    bar->setValue(0);
    ZrBenchStopwatch::drain();
    return 1000 / Pages * secondsOf([&] {
               for (int i = 0; i < Pages; ++i) {
                   bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
                   ZrBenchStopwatch::drain();
               }
           });
}

ZrBenchCase paintCase(const QString &name, const std::function<std::shared_ptr<PaintFixture>()> &maker,
                      double (*measureMs)(QTableView *))
{
    const ZrBenchRow row = {name, "ms", false, PeerName, {}, 1.1, ZrBenchRow::None};
    return {row, [=] {
                const auto fixture = maker();
                return ZrBenchSides{[=] { return measureMs(fixture->ours()); },
                                    [=] { return measureMs(fixture->peer()); },
                                    {}};
            }};
}
} // namespace

ZrBenchCases gridPaintBenches()
{
    const auto maker = zrLazily<PaintFixture>([] { return std::make_shared<PaintFixture>(); });
    return {paintCase("grid/repaint", maker, repaintMs), paintCase("grid/scroll_page", maker, scrollMs)};
}
