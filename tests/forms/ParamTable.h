#pragma once

#include "FormScene.h"
#include "FreezeTableView.h"
#include "ZrRoleKeys.h"
#include "ZrTableView.h"

/// A parameter table: a column for each id, one of them the key. Cells hold what is stored, and the same
/// in capitals as what is shown.
class ParamTable
{
public:
    explicit ParamTable(const QStringList &ids, int keyColumn = 0)
        : view(&window)
    {
        HeadList heads;
        for (const QString &id : ids)
            heads.append({{HEAD_DISPLAYROLE, id + " name"}, {HEAD_USERROLE, id}});
        view.setKeyColumn({keyColumn});
        view.setHeadList(heads);
        view.resize(600, 200);
        window.resize(620, 220);
    }

    void addRow(const QVariantList &stored)
    {
        RecordData row;
        for (int column = 0; column < stored.size(); ++column) {
            if (stored.at(column).isValid())
                row.insert(column, {{ITEM_DISPLAYROLE, stored.at(column).toString().toUpper()},
                                    {ITEM_USERROLE, stored.at(column)}});
        }
        view.addRecordData(row);
    }

    QModelIndex at(int row, int column) const { return view.index(row, column); }
    ZrTableModel *model() const { return view.getZrTableModel(); }
    QVariant stored(int row, int column) const { return at(row, column).data(Qt::UserRole); }
    QVariant shown(int row, int column) const { return at(row, column).data(Qt::DisplayRole); }

    QWidget window;
    ZrTableView view;
};
