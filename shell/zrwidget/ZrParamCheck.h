#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariantMap>

/// Whether a value may be given to a strategy parameter.
///
/// Shape:     five tests in order: required, greatest value, exclusive greatest, least, exclusive least.
/// Units:     the record's own.
/// Threads:   any.
/// Errors:    the sentence for the user that the first failed test gives; empty when all pass.
class ZRWIDGET_PRIVATE_EXPORT ZrParamCheck
{
public:
    static QString fault(const QVariantMap &record, const QVariant &value);
    /// The same sentence for something required that is empty.
    static QString emptyFault(const QString &name);

private:
    ZrParamCheck() = delete;
};
