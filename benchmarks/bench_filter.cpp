// The popup of a filter button over a column of 100,000 different texts: opening it, and typing in its search
// line.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrHeaderView.h"
#include "ZrTableView.h"

#include <QtCore/QSet>
#include <QtGui/QMouseEvent>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int Column = ZrBenchData::KeyColumn; // "K00000000" and on, each once
constexpr double OpenMsMost = 200;
constexpr double KeyMsMost = 50;
constexpr double PeerReach = 0.2;
constexpr int PopupHeightPx = 150;
constexpr int BesideTextPx = 60;
const char *const PeerName = "QListView with check boxes on QSortFilterProxyModel";

void press(QWidget *widget, const QPoint &at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
}

/// A letter, or the key that takes the last one away.
void type(QLineEdit *line, QChar letter)
{
    const int key = letter.isNull() ? int(Qt::Key_Backspace) : letter.unicode();
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, letter.isNull() ? QString() : QString(letter));
    QCoreApplication::sendEvent(line, &event);
}

/// Our grid, by the mouse.
class OurPopup
{
public:
    OurPopup()
    {
        ZrBenchData data;
        m_grid.load(data.records(ZrBenchData::Rows));
        m_grid.view()->setViewFilterable(true);
    }

    /// With a head that has opened none yet, so that the making of the popup counts too.
    void prepare()
    {
        auto *const head = new ZrHeaderView(Qt::Horizontal);
        head->setViewFilterable(true);
        m_grid.view()->setZrTableHorizontalHeader(head);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        head->viewport()->grab();
        ZrBenchStopwatch::drain();
    }

    void open()
    {
        constexpr int buttonMiddlePx = 8; // from the right end of a section
        ZrHeaderView *const head = m_grid.view()->getZrTableHorizontalHeader();
        press(head->viewport(),
              {head->sectionViewportPosition(Column) + head->sectionSize(Column) - buttonMiddlePx,
               head->height() / 2});
    }

    QLineEdit *search() const
    {
        return m_grid.view()->getZrTableHorizontalHeader()->findChild<QLineEdit *>();
    }
    void close() { m_grid.view()->getZrTableHorizontalHeader()->findChild<QDialog *>()->hide(); }

private:
    ZrBenchOurGrid m_grid;
};

/// What a user would write with the toolkit: the distinct texts as checkable items, as wide as the widest.
class PeerPopup
{
public:
    PeerPopup()
        : m_grid(false)
    {
        ZrBenchData data;
        QVector<ZrBenchCells> rows;
        for (int row = 0; row < ZrBenchData::Rows; ++row)
            rows.append(data.row(row));
        m_grid.load(rows);
        m_source = qobject_cast<QStandardItemModel *>(m_grid.view()->model());
    }

    void prepare() { m_window.reset(); }

    void open()
    {
        m_window = std::make_unique<QDialog>(m_grid.view(), Qt::Window | Qt::FramelessWindowHint);
        auto *const layout = new QVBoxLayout(m_window.get());
        m_search = new QLineEdit(m_window.get());
        auto *const list = new QListView(m_window.get());
        list->setUniformItemSizes(true);
        layout->addWidget(m_search);
        layout->addWidget(list);
        auto *const model = new QStandardItemModel(m_window.get());
        int widest = 0;
        model->appendColumn(items(list->fontMetrics(), &widest));
        auto *const proxy = new QSortFilterProxyModel(m_window.get());
        proxy->setSourceModel(model);
        list->setModel(proxy);
        QObject::connect(m_search, &QLineEdit::textEdited, proxy,
                         &QSortFilterProxyModel::setFilterFixedString);
        m_window->setFixedSize(widest + BesideTextPx, PopupHeightPx);
        m_window->show();
    }

    QLineEdit *search() const { return m_search; }
    void close() { m_window->hide(); }

private:
    QList<QStandardItem *> items(const QFontMetrics &metrics, int *widest) const
    {
        QList<QStandardItem *> list;
        QSet<QString> seen;
        for (int row = 0; row < m_source->rowCount(); ++row) {
            const QString text = m_source->item(row, Column)->text();
            if (seen.contains(text))
                continue;
            seen.insert(text);
            *widest = qMax(*widest, metrics.horizontalAdvance(text));
            auto *const item = new QStandardItem(text);
            item->setCheckable(true);
            list.append(item);
        }
        return list;
    }

    ZrBenchPeerGrid m_grid;
    QStandardItemModel *m_source = nullptr; // the grid's
    std::unique_ptr<QDialog> m_window;
    QLineEdit *m_search = nullptr; // the window's
};

struct Popups
{
    OurPopup ours;
    PeerPopup peer;
};

template<typename Popup>
double openMs(Popup &popup)
{
    popup.prepare();
    const double ms = 1000 * secondsOf([&popup] {
                          popup.open();
                          ZrBenchStopwatch::drain();
                      });
    popup.close();
    ZrBenchStopwatch::drain();
    return ms;
}

/// The slowest of the keys of a search: a word typed letter by letter, the first of which leaves all choices,
/// and taken back again.
template<typename Popup>
double slowestKeyMs(Popup &popup)
{
    popup.prepare();
    popup.open();
    ZrBenchStopwatch::drain();
    double slowest = 0;
    for (const char letter : {'0', '7', '7', '\0', '\0', '\0'}) {
        const double ms = 1000 * secondsOf([&popup, letter] {
                              type(popup.search(), QLatin1Char(letter));
                              ZrBenchStopwatch::drain();
                          });
        slowest = qMax(slowest, ms);
    }
    popup.close();
    ZrBenchStopwatch::drain();
    return slowest;
}

ZrBenchRow row(const QString &name, const QString &limitName)
{
    return {name, "ms", false, PeerName, limitName, PeerReach, 1.0};
}
} // namespace

ZrBenchCases filterBenches()
{
    const auto popups = zrLazily<Popups>([] { return std::make_shared<Popups>(); });
    const ZrBenchCase open = {row("filter/open_100k", "200 ms"), [popups] {
                                  const auto both = popups();
                                  return ZrBenchSides{[both] { return openMs(both->ours); },
                                                      [both] { return openMs(both->peer); },
                                                      [] { return OpenMsMost; }};
                              }};
    const ZrBenchCase key = {row("filter/search_key", "50 ms"), [popups] {
                                 const auto both = popups();
                                 return ZrBenchSides{[both] { return slowestKeyMs(both->ours); },
                                                     [both] { return slowestKeyMs(both->peer); },
                                                     [] { return KeyMsMost; }};
                             }};
    return {open, key};
}
