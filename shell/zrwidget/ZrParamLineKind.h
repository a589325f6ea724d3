#pragma once

#include "ZrParamKind.h"

/// A parameter that is typed: a QLineEdit with the rule of its record.
///
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamLineKind : public ZrParamKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    QVariant read(const QWidget *widget, int role) const override;
    void write(QWidget *widget, const QVariant &value, bool isEditable) const override;
};
