#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariantMap>

/// The texts that the tables of a parameter sheet show for stored values.
///
/// Shape:     a configured code shows its configured text, a security its code, an account its name, a choice
///            its own text, anything else itself in its type.
/// Threads:   GUI thread only.
/// Errors:    what the host doesn't know shows so: a code of one value as it stands, one of a cell, a
///            security or an account as nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrParamText
{
public:
    /// Of a parameter with one value.
    static QString ofBasic(const QString &id, const QString &stored);
    /// Of a cell in a table whose columns are parameters.
    static QString ofCell(const QVariantMap &record, const QString &stored);

private:
    ZrParamText() = delete;
};
