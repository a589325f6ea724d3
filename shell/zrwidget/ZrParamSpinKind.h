#pragma once

#include "ZrParamKind.h"

/// A number within bounds: a QDoubleSpinBox or a QSpinBox, by the type of value.
///
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamSpinKind : public ZrParamKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    QVariant read(const QWidget *widget, int role) const override;
    void write(QWidget *widget, const QVariant &value, bool isEditable) const override;
};
