#include "ZrBlotterToolBar.h"

#include "ZrBlotterPanel.h"
#include "ZrTableView.h"

#include <QtCore/QLocale>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

namespace {
constexpr int FrozenLeft = 2;
constexpr int FrozenRight = 1;
constexpr ushort DelayMs = 200;
} // namespace

ZrBlotterToolBar::ZrBlotterToolBar(ZrBlotterPanel *panel, int maxRows, QWidget *parent)
    : QToolBar(parent)
    , m_panel(panel)
{
    setObjectName(QStringLiteral("blotterToolBar"));
    setWindowTitle(tr("Blotter"));
    setMovable(false);
    addToggles();
    addSeparator();
    addSerial();
    addRowLimit(maxRows);
}

QAction *ZrBlotterToolBar::toggle(const QString &name) const
{
    return findChild<QAction *>(name, Qt::FindDirectChildrenOnly);
}

QAction *ZrBlotterToolBar::addToggle(const char *name, const QString &text, const QString &tip)
{
    auto *const action = new QAction(text, this);
    action->setObjectName(QString::fromLatin1(name));
    action->setCheckable(true);
    action->setToolTip(tip);
    addAction(action);
    return action;
}

QComboBox *ZrBlotterToolBar::addChoice(const QString &label, const QString &tip)
{
    auto *const caption = new QLabel(label, this);
    auto *const choice = new QComboBox(this);
    caption->setBuddy(choice);
    caption->setContentsMargins(6, 0, 4, 0);
    choice->setToolTip(tip);
    choice->setAccessibleName(label);
    addWidget(caption);
    addWidget(choice);
    return choice;
}

void ZrBlotterToolBar::addToggles()
{
    QAction *const left = addToggle("freezeLeft", tr("Freeze left"), tr("The first columns stay in place"));
    QAction *const right = addToggle("freezeRight", tr("Freeze right"), tr("The last column stays in place"));
    QAction *const boxes = addToggle("checkBoxes", tr("Check boxes"), tr("A check box in front of each row"));
    QAction *const follow = addToggle("follow", tr("Follow"), tr("New orders come into sight"));
    QAction *const open = addToggle("openOnly", tr("Open orders"), tr("Leaves out finished orders"));
    QAction *const summary = addToggle("summary", tr("Summary"), tr("Sums of all orders"));
    QAction *const delayed =
        addToggle("delayed", tr("Delayed display"), tr("Gathers new rows for 200 ms; stays on once chosen"));
    follow->setChecked(true);
    connect(left, &QAction::toggled, this, [this](bool on) { freeze(1, on); });
    connect(right, &QAction::toggled, this, [this](bool on) { freeze(2, on); });
    connect(boxes, &QAction::toggled, m_panel->view(), &ZrTableView::setCheckBoxShow);
    connect(boxes, &QAction::toggled, this, &ZrBlotterToolBar::freezeAgain);
    connect(follow, &QAction::toggled, m_panel, &ZrBlotterPanel::setFollowing);
    connect(open, &QAction::toggled, m_panel, &ZrBlotterPanel::setOpenOnly);
    connect(summary, &QAction::toggled, m_panel, &ZrBlotterPanel::setSummaryShown);
    connect(delayed, &QAction::toggled, this, [this, delayed] { delayDisplay(delayed); });
}

void ZrBlotterToolBar::freeze(int side, bool on)
{
    // The left count takes in the columns of check boxes and numbers, which no head tells of.
    const ZrTableView *const view = m_panel->view();
    const int extra = view->getZrTableModel()->columnCount() - m_panel->view()->getHeadList().size();
    m_panel->view()->setFrozenColumns(side, on, side == 1 ? FrozenLeft + extra : FrozenRight);
}

void ZrBlotterToolBar::freezeAgain()
{
    if (toggle(QStringLiteral("freezeLeft"))->isChecked())
        freeze(1, true);
}

// The grid knows no way back from delayed display.
void ZrBlotterToolBar::delayDisplay(QAction *toggle)
{
    toggle->setEnabled(false);
    m_panel->view()->setViewDelayDisplayTime(DelayMs);
}

void ZrBlotterToolBar::addSerial()
{
    QComboBox *const choice = addChoice(tr("Numbers"), tr("A column that counts the rows"));
    choice->addItem(tr("none"), int(ZrViewModel::SerialNumNone));
    choice->addItem(tr("upwards"), int(ZrViewModel::SerialNumAscending));
    choice->addItem(tr("downwards"), int(ZrViewModel::SerialNumDescending));
    connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this, [this, choice](int index) {
        const int order = choice->itemData(index).toInt();
        m_panel->view()->setSerialNumberColumnPropety(ZrViewModel::SerialNumColumnOrder(order));
        m_panel->applyColumns();
        freezeAgain();
    });
}

void ZrBlotterToolBar::addRowLimit(int maxRows)
{
    QComboBox *const choice = addChoice(tr("Rows"), tr("The oldest orders leave beyond this"));
    QList<int> limits = {1000, 5000, 20000, 100000};
    if (!limits.contains(maxRows))
        limits.append(maxRows);
    std::sort(limits.begin(), limits.end());
    for (const int limit : qAsConst(limits))
        choice->addItem(locale().toString(limit), limit);
    choice->setCurrentIndex(choice->findData(maxRows));
    m_panel->view()->setMaxRowCount(maxRows);
    connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this, choice](int index) { m_panel->view()->setMaxRowCount(choice->itemData(index).toInt()); });
}
