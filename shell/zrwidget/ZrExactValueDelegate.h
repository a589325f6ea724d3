#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QStyledItemDelegate>

/// Shows values that a user is about to answer for: each exactly, on one line.
///
/// Shape:     numbers with all their digits and without groups; line ends become blanks, since a row shows
///            one line only; a text wider than its cell ends in an ellipsis.
/// Ownership: normal QObject parent rules.
/// Threads:   GUI thread only.
/// Errors:    a value that has no text is shown as nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrExactValueDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};
