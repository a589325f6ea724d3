#pragma once

#include "ZrParamKind.h"

/// A parameter that is true or false: a QCheckBox without a text of its own.
///
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamCheckKind : public ZrParamKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    QVariant read(const QWidget *widget, int role) const override;
    void write(QWidget *widget, const QVariant &value, bool isEditable) const override;
};
