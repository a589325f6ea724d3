#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QModelIndex;
class ZrTableModelPrivate;

/// Check boxes of rows and head: reading, writing, and who is told.
class ZRWIDGET_PRIVATE_EXPORT ZrTableChecks
{
public:
    explicit ZrTableChecks(ZrTableModelPrivate &fields);

    /// 0 none, 1 some, 2 all of the shown rows.
    int countedState();
    void headClicked(int state);
    void rowClicked(const QModelIndex &index, bool checked);
    bool setEnabledByKey(const QString &key, bool enabled);
    bool setEnabledByRow(int row, bool enabled);
    bool setStatusByKey(const QString &key, bool checked);
    bool setStatusByRow(int row, bool checked);
    QList<int> rowsByStatus(bool checked);

private:
    void recount();
    bool areAllEnabled(bool checked) const;
    void setAllEnabled(int state);
    void invertAllEnabled();
    void writeState(int modelRow, const QVariant &state);
    void writeEnabled(int modelRow, bool enabled);
    void tellState(int row);

    ZrTableModelPrivate &m_fields;
};
