#include "FilterScene.h"

#include "FreezeTableView.h"
#include "ZrHeaderView_p.h"
#include "ZrModelIndex.h"
#include "ZrRoleKeys.h"

#include <QtWidgets/QLineEdit>

namespace {
constexpr int ColumnPx = 90;
constexpr int ButtonMiddlePx = 8; // from the right end of a section

HeadList heads()
{
    HeadList list;
    for (int column = 0; column < FilterScene::ColumnCount; ++column)
        list.append({{HEAD_DISPLAYROLE, QStringLiteral("C%1").arg(column)}});
    return list;
}
} // namespace

FilterScene::FilterScene(int rows, QWidget *place)
    : grid(new ZrTableView(place ? place : &desk.mainWindow))
{
    HeadList list = heads();
    grid->setKeyColumn({Key});
    grid->setHeadList(list);
    grid->setColumnDefaultWidth(ColumnPx);
    grid->setStretchLastSection(false);
    grid->setViewFilterable(true);
    fill(grid, rows);
    grid->resize(600, 300);
    desk.mainWindow.show();
    grid->show();
    QCoreApplication::processEvents();
}

FilterScene::~FilterScene() = default;

ItemRoleMap FilterScene::cell(const QVariant &value)
{
    return {{ITEM_DISPLAYROLE, value.toString()}, {ITEM_USERROLE, value}};
}

RecordData FilterScene::record(int row)
{
    return {{Key, cell(QStringLiteral("k%1").arg(row))},
            {Text, cell(QString(QChar('a' + row % 3)))},
            {Number, cell(row + 1)}};
}

void FilterScene::fill(ZrTableView *grid, int rows)
{
    RecordDataList records;
    for (int row = 0; row < rows; ++row)
        records.append(record(row));
    grid->updateRecordDataList(records);
}

void FilterScene::press(int column, ZrHeaderView *head)
{
    pressIn(head ? head : this->head(), ZrModelIndex::getLogicColumn(column, grid));
}

void FilterScene::pressIn(ZrHeaderView *head, int section)
{
    head->viewport()->grab(); // a button can be pressed once it was painted
    const QPoint button(head->sectionViewportPosition(section) + head->sectionSize(section) - ButtonMiddlePx,
                        head->height() / 2);
    QTest::mousePress(head->viewport(), Qt::LeftButton, Qt::NoModifier, button);
    QTest::mouseRelease(head->viewport(), Qt::LeftButton, Qt::NoModifier, button);
}

QRect FilterScene::buttonOf(int column) const
{
    const QRect button = head()->getPrivate()->filterButtonRects.value(column);
    return button.isNull() ? QRect() : QRect(head()->mapToGlobal(button.topLeft()), button.size());
}

ZrDialog *FilterScene::popup() const
{
    return grid ? head()->getPrivate()->filterDialog.data() : nullptr;
}

ZrViewFilterWidget *FilterScene::panel() const
{
    return grid ? head()->getPrivate()->filterWidget.data() : nullptr;
}

ZrTableView *FilterScene::list() const
{
    return panel() ? panel()->findChild<ZrTableView *>() : nullptr;
}

QLineEdit *FilterScene::search() const
{
    return panel() ? panel()->findChild<QLineEdit *>() : nullptr;
}

QStringList FilterScene::listed() const
{
    QStringList texts;
    const RecordDataList rows = list()->getViewCurrentDisplayData();
    for (const RecordData &row : rows) {
        const bool isTicked = row.value(ZrRowStateColumn).value(ITEM_USERROLE).toBool();
        texts.append((isTicked ? "*" : "") + row.value(0).value(ITEM_DISPLAYROLE).toString());
    }
    return texts;
}

QStringList FilterScene::shown() const
{
    QStringList keys;
    const RecordDataList rows = grid->getViewCurrentDisplayData();
    for (const RecordData &row : rows)
        keys.append(row.value(Key).value(ITEM_USERROLE).toString());
    return keys;
}

void FilterScene::clickBox(int row)
{
    clickAt(row, 0);
}

void FilterScene::clickText(int row)
{
    clickAt(row, 1);
}

void FilterScene::clickAt(int row, int viewColumn)
{
    QTableView *const table = list()->getTableView();
    const QModelIndex index = table->model()->index(row, viewColumn);
    table->scrollTo(index);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, table->visualRect(index).center());
}
