#pragma once

#include "zrwidget_global.h"

#include <QtCore/QSet>
#include <zrutils/ZrRecordTypes.h>

#include <map>

/// Which of a column's choices the filter in force holds.
///
/// A choice with a raw value is held when a condition's value equals that; one without, when a condition's
/// comment is its text. The comparison of values converts (a number equals its text), so the conditions are
/// sorted once by what can be equal at all: a column of 100,000 choices, half of them ticked, would compare
/// five billion times otherwise.
///
/// Threads: one object on one thread at a time.
/// Errors:  a condition without a value or a comment holds what has none either.
class ZRWIDGET_PRIVATE_EXPORT ZrFilterTicks
{
public:
    /// The groups of a column; who belongs to whom makes no difference here.
    explicit ZrFilterTicks(const QList<QList<QVariantMap>> &groups);

    /// `choice` is the cell of a choice.
    bool holds(const ItemRoleMap &choice) const;

private:
    void addValue(const QVariant &value);
    bool holdsRaw(const QVariant &raw) const;
    bool holdsNumber(const QVariant &raw, double number) const;

    QSet<QString> m_comments;
    QSet<QString> m_texts;                     // values that are texts
    std::multimap<double, QVariant> m_numbers; // values that read as a number
    QVariantList m_values;                     // each value once
    QVariantList m_others;                     // those of them that are no texts
};
