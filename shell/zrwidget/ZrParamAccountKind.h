#pragma once

#include "ZrParamComboKind.h"

/// A trading account of the logged-in user: a QComboBox of their names that stores their numbers.
///
/// Shape:     the host tells the accounts; choices and first value of the record have no say.
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamAccountKind : public ZrParamComboKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    /// Nothing: accounts depend on no parameter.
    void relink(const QVariantMap &record, QWidget *widget, const ZrParamLink &link) const override;
};
