#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QModelIndex>
#include <QtCore/QVariantMap>

class QAbstractItemModel;

/// What follows in a row of a parameter table when one of its parameters was given a value.
///
/// Shape:     a security brings its name and market along; a cell whose parameter depends on the edited one
///            is cleared when its value is no longer offered.
/// Ownership: the model is borrowed.
/// Threads:   GUI thread only.
/// Errors:    a row that is gone meanwhile ends the update.
class ZRWIDGET_PRIVATE_EXPORT ZrParamRowUpdate
{
public:
    using Records = QMap<QString, QVariantMap>; // parameter records by id

    ZrParamRowUpdate(const QString &editedId, const QVariant &value, const Records &records);
    /// Goes through the cells of the row that `edited` is in, from the first column to the last.
    void applyTo(QAbstractItemModel *model, const QModelIndex &edited) const;

private:
    void bringSecurity(QAbstractItemModel *model, const QModelIndex &cell, const QString &cellId) const;
    void clearImpossible(QAbstractItemModel *model, const QModelIndex &cell, const QString &cellId) const;

    QString m_editedId;
    QVariant m_value;
    Records m_records;
};
