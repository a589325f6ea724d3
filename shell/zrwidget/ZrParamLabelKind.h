#pragma once

#include "ZrParamKind.h"

/// A parameter that is only shown: a QLabel. Its whole text is its value, so it is never shortened.
///
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamLabelKind : public ZrParamKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    QVariant read(const QWidget *widget, int role) const override;
    void write(QWidget *widget, const QVariant &value, bool isEditable) const override;
};
