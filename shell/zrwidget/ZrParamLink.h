#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariantMap>
#include <QtCore/QVector>

/// One of the values that a parameter can be given.
struct ZrParamOption
{
    QString text;   // what the user sees
    QVariant value; // what is stored
};

/// How a parameter depends on another one: the case of its record that the other's present value selects.
///
/// Shape:     a record without STRATEGYPARAM_LINKPARAMID depends on nothing; else the first case whose
///            STRATEGYPARAM_PARAMVALUE equals the other's value holds what is different under it.
/// Ownership: a value.
/// Threads:   any.
/// Errors:    what is no case or no option map counts as an empty one.
class ZRWIDGET_PRIVATE_EXPORT ZrParamLink
{
public:
    /// `linkedValue` is the other parameter's present value as a text; of no matter to who depends on
    /// nothing.
    ZrParamLink(const QVariantMap &record, const QString &linkedValue);
    /// The same, with the present values of parameters by id.
    static ZrParamLink among(const QVariantMap &record, const QVariantMap &presentValues);

    /// The id of the other parameter; empty for a record that depends on nothing.
    static QString otherId(const QVariantMap &record);
    bool isLinked() const { return m_isLinked; }
    /// The case in force; empty when there is none.
    const QVariantMap &currentCase() const { return m_case; }
    /// The case's choices when there is a case, be it without any, else the record's own.
    QVector<ZrParamOption> options() const;
    /// Whether one of the choices stores this value.
    bool offers(const QVariant &value) const;

private:
    QVariantMap m_record;
    bool m_isLinked;
    QVariantMap m_case;
};
