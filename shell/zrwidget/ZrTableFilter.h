#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QVector>

class ZrTableModelPrivate;

/// Which records pass the view-side filter: the host's conditions, then the columns' match functions.
///
/// Shape: a view on the model's fields for the length of a call.
class ZRWIDGET_PRIVATE_EXPORT ZrTableFilter
{
public:
    explicit ZrTableFilter(const ZrTableModelPrivate &fields);

    bool matches(const RecordData &record) const;
    /// A mark per model row, from one call of the host for all rows.
    QVector<bool> marks() const;

private:
    bool passesFunctions(const RecordData &record) const;
    bool passesAll() const;
    void markFound(const RecordDataList &found, QVector<bool> &marks) const;

    const ZrTableModelPrivate &m_fields;
    ViewFilterList m_hostFilters; // without the columns that have a match function
    QList<int> m_functionColumns; // in head order, with a filter and a function
};
