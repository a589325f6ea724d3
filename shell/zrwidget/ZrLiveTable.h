#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPointer>
#include <QtGui/QRegion>
#include <QtWidgets/QTableView>

class ZrRowHeader;

/// A table under a stream of updates: paints what changed in sight, and spends nothing on what is out of
/// sight.
///
/// Shape:     its vertical head is a ZrRowHeader. Where the model tells which rows a reset is about (see
///            ZrTouchedRows), the others are not painted anew; all else that a reset does is done.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none; for a model that tells nothing, and while a widget lies over a cell, it does what the
/// toolkit's
///            table does.
class ZRWIDGET_EXPORT ZrLiveTable : public QTableView
{
    Q_OBJECT
public:
    explicit ZrLiveTable(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    void reset() override;
    void doItemsLayout() override;

protected:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

private:
    bool isInSight(int row) const;
    void resetInPlace(const QVector<int> &touchedRows);
    void updateRow(int row);

    void noteMarks();

    QPointer<ZrRowHeader> m_rowHead; // a caller may set another head, which ends this one
    QRegion m_marked; // of selection and current row before the reset under way, which ends both
};
