#pragma once

#include "FreezeTableView.h"
#include "ZrHeaderView.h"
#include "ZrRoleKeys.h"
#include "ZrTableModel.h"
#include "ZrTableView.h"
#include "ZrTableView_p.h"
#include "ZrViewRegistry.h"

#include <QtTest/QtTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

/// Small grids for the tests of the view family. Column 0 is the key, the others hold numbers.
namespace kit {

inline HeadList heads(int count)
{
    HeadList list;
    for (int column = 0; column < count; ++column)
        list.append({{HEAD_DISPLAYROLE, QStringLiteral("C%1").arg(column)}});
    return list;
}

/// Heads with one group id per column; an empty text means no group.
inline HeadList groupedHeads(const QStringList &groups)
{
    HeadList list = heads(groups.size());
    for (int column = 0; column < list.size(); ++column)
        list[column].insert(HEAD_GROUPID, groups.at(column));
    return list;
}

inline ItemRoleMap cell(const QVariant &value)
{
    return {{ITEM_DISPLAYROLE, value.toString()}, {ITEM_USERROLE, value}};
}

inline RecordData record(const QString &key, int columns, int base = 0)
{
    RecordData row;
    row.insert(0, cell(key));
    for (int column = 1; column < columns; ++column)
        row.insert(column, cell(base + column));
    return row;
}

inline void fill(ZrTableView *view, int rows, int columns)
{
    RecordDataList list;
    for (int row = 0; row < rows; ++row)
        list.append(record(QStringLiteral("k%1").arg(row), columns, row));
    view->addRecordDataList(list);
}

/// Lays a widget out and lets it take events without a window of the platform: the offscreen one warns of
/// each.
inline void show(QWidget *widget)
{
    widget->setAttribute(Qt::WA_DontShowOnScreen);
    widget->show();
    QCoreApplication::processEvents();
}

/// A shown view of 400 by 300 px with `columns` columns of 80 px and `rows` rows.
inline void setUp(ZrTableView *view, int rows, int columns)
{
    HeadList list = heads(columns);
    view->setKeyColumn({0});
    view->setHeadList(list);
    view->setColumnDefaultWidth(80);
    fill(view, rows, columns);
    view->resize(400, 300);
    show(view);
    view->getTableView()->doItemsLayout();
}

/// Middle of a cell in the table's viewport.
inline QPoint middleOf(const QTableView *table, int row, int column)
{
    return table->visualRect(table->model()->index(row, column)).center();
}

/// Middle of a head's section in the head's viewport.
inline QPoint middleOf(const QHeaderView *head, int section)
{
    return {head->sectionViewportPosition(section) + head->sectionSize(section) / 2, head->height() / 2};
}

/// A plugin widget as a grid sees it.
class Plugin : public QWidget, public ZrViewRegistry
{
    Q_OBJECT
    Q_INTERFACES(ZrViewRegistry)
public:
    QString instanceId = QStringLiteral("7#orders#_1");
    QMap<QString, QList<int>> visible;
    QMap<QString, QList<int>> order;
    QList<ZrViewBase *> views;
    QList<ZrViewBase *> hideStyleResets;
    int orderChanges = 0;

    QString pluginInstanceId() const override { return instanceId; }
    void addPluginView(ZrViewBase *view) override { views.append(view); }
    void removePluginView(ZrViewBase *view) override { views.removeAll(view); }
    void unregisterTable(ZrViewBase *view) override { views.removeAll(view); }
    std::optional<QList<int>> columnVisibleProperty(const QString &caption) const override
    {
        return lookUp(visible, caption);
    }
    std::optional<QList<int>> columnOrderProperty(const QString &caption) const override
    {
        return lookUp(order, caption);
    }
    void resetPluginViewCurrentHideStyle(ZrViewBase *view) override { hideStyleResets.append(view); }
    void orderChanged() override { ++orderChanges; }

private:
    static std::optional<QList<int>> lookUp(const QMap<QString, QList<int>> &map, const QString &caption)
    {
        const auto entry = map.constFind(caption);
        return entry == map.cend() ? std::nullopt : std::make_optional(entry.value());
    }
};

} // namespace kit
