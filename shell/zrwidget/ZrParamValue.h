#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariantMap>

/// Values of strategy parameters in the type that their record tells.
///
/// Shape:     a text and a number of it are one value in two forms: editors and files give texts, users of a
///            sheet want the number.
/// Threads:   any.
/// Errors:    what is no number becomes 0, what is no truth false, and a number beyond its type wraps, as
///            QVariant converts. Bounds are the editor's and the sheet's concern.
class ZRWIDGET_PRIVATE_EXPORT ZrParamValue
{
public:
    /// Whether there is nothing to convert, show or store. A list counts as empty: its text is.
    static bool isEmpty(const QVariant &value);
    /// The value in the record's type; unchanged when it tells none that is known.
    static QVariant converted(const QVariantMap &record, const QVariant &value);
    /// The same; an empty value stays as it is.
    static QVariant convertedUnlessEmpty(const QVariantMap &record, const QVariant &value);

private:
    ZrParamValue() = delete;
};
