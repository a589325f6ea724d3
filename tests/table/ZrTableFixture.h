#pragma once

#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"
#include "ZrTableModel_p.h"

#include <QtTest/QtTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

/// A table model under a view, with the columns 0 (key), 1 (text) and 2 (number), and records for it.
class ZrTableFixture
{
public:
    ZrTableFixture()
        : model(new ZrTableModel(&view))
        , fields(model->getModelPrivate())
        , changed(model, &QAbstractItemModel::dataChanged)
        , inserted(model, &QAbstractItemModel::rowsInserted)
        , removed(model, &QAbstractItemModel::rowsRemoved)
        , reset(model, &QAbstractItemModel::modelReset)
        , head(model, &ZrTableModel::stateChanged)
    {
        model->setItemSelectable(true);
        view.setModel(model);
        model->setKeyColumn({0});
        model->setHeaderData(heads());
        clearSpies();
    }

    static HeadList heads()
    {
        HeadList list;
        for (int column = 0; column < 3; ++column)
            list.append({{"Head_ColumnIndex", column}, {"Head_DisplayRole", QString("head %1").arg(column)}});
        return list;
    }

    static RecordData row(const QString &key, int number = 0)
    {
        return {{0, {{"256", key}}}, {2, {{"0", QString::number(number)}, {"256", number}}}};
    }

    static RecordDataList rows(const QStringList &keys)
    {
        RecordDataList list;
        for (const QString &key : keys)
            list.append(row(key));
        return list;
    }

    static QList<QList<QVariantMap>> atLeast(int number)
    {
        QVariantMap condition;
        condition[Vexlor_Fields::Infomation::compareOperator] =
            Vexlor_Values::CompareOperator::greaterOrEqual;
        condition[Vexlor_Fields::System::filterValue] = number;
        return {{condition}};
    }

    QStringList shownKeys() const
    {
        QStringList keys;
        for (int row = 0; row < model->rowCount(); ++row)
            keys.append(model->makeRecordKey(model->getRowData(row)));
        return keys;
    }

    QStringList modelKeys() const
    {
        QStringList keys;
        for (const RecordData &record : model->getModelData())
            keys.append(model->makeRecordKey(record));
        return keys;
    }

    void clearSpies()
    {
        for (QSignalSpy *spy : {&changed, &inserted, &removed, &reset, &head})
            spy->clear();
    }

    static QPair<int, int> range(const QSignalSpy &spy, int at = 0)
    {
        return {spy.value(at).value(1).toInt(), spy.value(at).value(2).toInt()};
    }

    QTableView view;
    ZrTableModel *model; // child of the view
    ZrTableModelPrivate *fields;
    QSignalSpy changed, inserted, removed, reset, head;
};

using ZrRange = QPair<int, int>;
