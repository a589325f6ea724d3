#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QVariant>

/// What a small field or menu carries for the form that made it: one value for each role.
///
/// Shape:     role number to value. Role 0 is what the user sees, Qt::UserRole what is stored; forms add
///            roles of their own. A value that was set stays, an invalid one too.
/// Ownership: a value; copies share until one of them changes.
/// Threads:   that of its holder.
/// Errors:    a role that was never set reads as an invalid variant.
class ZRWIDGET_PRIVATE_EXPORT ZrFieldRoles
{
public:
    QVariant value(int role) const;
    void setValue(int role, const QVariant &value);

private:
    QMap<int, QVariant> m_values;
};
