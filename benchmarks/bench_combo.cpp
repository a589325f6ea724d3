// A box of many choices: opening it, and ticking a row while others are ticked.
#include "CheckBoxInMultiBox.h"
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrMultiComboBox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>

namespace {
constexpr int Items = 5000;
constexpr int TickedBefore = 2500; // what a user may have chosen by and by
constexpr int Ticks = 50;
constexpr double OpenMsMost = 100;
constexpr double TickMsMost = 2;
const char *const PeerName = "QComboBox on checkable QStandardItemModel";

QString textOf(int row)
{
    return QStringLiteral("6%1.SH account").arg(row, 5, 10, QLatin1Char('0'));
}

/// The shipped sheet of our box; the peer gets the same, with the toolkit's names in our place.
QString sheet(bool forPeer)
{
    QDir::setSearchPaths(QStringLiteral("ZRSkin"), {QStringLiteral(ZR_BENCH_SKINS)});
    QFile file(QStringLiteral("ZRSkin:dark/system/zrwidget/zrmulticombobox.css"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no style sheet");
    QString text = QString::fromUtf8(file.readAll());
    if (forPeer) {
        text.replace(QLatin1String("ZrMultiComboBox"), QLatin1String("QComboBox"));
        text.replace(QLatin1String("CheckBoxInMultiBox::indicator"), QLatin1String("QListView::indicator"));
    }
    return text;
}

/// What a user would write with the toolkit: checkable items, and their texts joined in the editor.
class PeerBox : public QComboBox
{
public:
    explicit PeerBox(QWidget *parent)
        : QComboBox(parent)
        , m_items(new QStandardItemModel(this))
    {
        setModel(m_items);
        setEditable(true);
        lineEdit()->setReadOnly(true);
        lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        setStyleSheet(sheet(true));
        connect(m_items, &QStandardItemModel::itemChanged, this, [this] { join(); });
    }

    void fill()
    {
        for (int row = 0; row < Items; ++row) {
            auto *const item = new QStandardItem(textOf(row));
            item->setData(row, Qt::UserRole);
            item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            item->setData(Qt::Unchecked, Qt::CheckStateRole);
            m_items->appendRow(item);
        }
    }

    void tick(int row)
    {
        QStandardItem *const item = m_items->item(row);
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }

private:
    void join()
    {
        QStringList texts;
        for (int row = 0; row < m_items->rowCount(); ++row) {
            const QStandardItem *const item = m_items->item(row);
            if (item->checkState() == Qt::Checked)
                texts.append(item->text());
        }
        const QString joined = texts.join(QLatin1Char(';'));
        lineEdit()->setText(joined);
        lineEdit()->setToolTip(joined);
    }

    QStandardItemModel *const m_items; // our child
};

class OurBox : public ZrMultiComboBox
{
public:
    explicit OurBox(QWidget *parent)
        : ZrMultiComboBox(parent)
    {
        loadSkin(sheet(false));
    }

    void fill()
    {
        for (int row = 0; row < Items; ++row)
            addItem(textOf(row), row);
    }

    // As the user does it, signals included.
    void tick(int row)
    {
        auto *const list = static_cast<QListWidget *>(view());
        static_cast<CheckBoxInMultiBox *>(list->itemWidget(list->item(row)))->click();
    }
};

template<typename Box>
class BoxOnAWindow
{
public:
    BoxOnAWindow()
        : m_box(new Box(&m_window))
    {
        m_box->fill();
        m_box->setGeometry(20, 20, 240, 28);
        m_window.resize(400, 600);
        m_window.show();
        ZrBenchStopwatch::drain();
    }

    Box *box() const { return m_box; }

    double openMs()
    {
        const double ms = 1000 * secondsOf([this] {
                              m_box->showPopup();
                              ZrBenchStopwatch::drain();
                          });
        m_box->hidePopup();
        ZrBenchStopwatch::drain();
        return ms;
    }

    /// With the popup open, and what changes painted.
    double tickMs()
    {
        m_box->showPopup();
        ZrBenchStopwatch::drain();
        const double ms = 1000 / Ticks * secondsOf([this] {
                              for (int i = 0; i < Ticks; ++i) {
                                  m_box->tick(i * (Items / Ticks) + 1);
                                  ZrBenchStopwatch::drain();
                              }
                          });
        m_box->hidePopup();
        return ms;
    }

    void tickSome()
    {
        for (int i = 0; i < TickedBefore; ++i)
            m_box->tick(i * (Items / TickedBefore));
    }

private:
    QWidget m_window;
    Box *const m_box; // the window's
};

struct Boxes
{
    BoxOnAWindow<OurBox> ours;
    BoxOnAWindow<PeerBox> peer;
};

template<typename Box>
double addMs()
{
    QWidget window;
    Box *const box = new Box(&window);
    return 1000 * secondsOf([box] { box->fill(); });
}

template<typename Box>
double firstOpenMs()
{
    BoxOnAWindow<Box> fresh;
    return fresh.openMs();
}

ZrBenchRow row(const QString &name, const QString &limitName)
{
    return {name, "ms", false, PeerName, limitName, 1.0, limitName.isEmpty() ? ZrBenchRow::None : 1.0};
}
} // namespace

ZrBenchCases comboBenches()
{
    // Thousands of widgets cost more than thousands of plain items; how much is shown here and bounded
    // nowhere.
    ZrBenchRow unbound = row("combo/add_5k", QString());
    unbound.peerReach = ZrBenchRow::None;
    const ZrBenchCase add = {unbound, [] { return ZrBenchSides{addMs<OurBox>, addMs<PeerBox>, {}}; }};
    const ZrBenchCase open = {
        row("combo/open_5k", "100 ms"), [] {
            return ZrBenchSides{firstOpenMs<OurBox>, firstOpenMs<PeerBox>, [] { return OpenMsMost; }};
        }};
    const ZrBenchCase reopen = {row("combo/reopen_5k", "100 ms"), [] {
                                    const auto boxes = std::make_shared<Boxes>();
                                    boxes->ours.openMs();
                                    boxes->peer.openMs();
                                    return ZrBenchSides{[=] { return boxes->ours.openMs(); },
                                                        [=] { return boxes->peer.openMs(); },
                                                        [] { return OpenMsMost; }};
                                }};
    const ZrBenchCase tick = {row("combo/tick_5k", "2 ms"), [] {
                                  const auto boxes = std::make_shared<Boxes>();
                                  boxes->ours.tickSome();
                                  boxes->peer.tickSome();
                                  return ZrBenchSides{[=] { return boxes->ours.tickMs(); },
                                                      [=] { return boxes->peer.tickMs(); },
                                                      [] { return TickMsMost; }};
                              }};
    return {add, open, reopen, tick};
}
