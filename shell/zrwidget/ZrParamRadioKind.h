#pragma once

#include "ZrParamKind.h"

/// A parameter with few choices: a row of radio buttons, of which one can be checked.
///
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamRadioKind : public ZrParamKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    QVariant read(const QWidget *widget, int role) const override;
    void write(QWidget *widget, const QVariant &value, bool isEditable) const override;
    void relink(const QVariantMap &record, QWidget *widget, const ZrParamLink &link) const override;
};
