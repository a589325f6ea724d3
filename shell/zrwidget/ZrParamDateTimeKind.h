#pragma once

#include "ZrParamKind.h"

/// A date with a time: a QDateTimeEdit. Its value is the text it shows, as yyyy-MM-dd hh:mm:ss.
///
/// See ZrParamKind for threads, ownership and errors.
class ZRWIDGET_PRIVATE_EXPORT ZrParamDateTimeKind : public ZrParamKind
{
public:
    QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const override;
    QVariant read(const QWidget *widget, int role) const override;
    void write(QWidget *widget, const QVariant &value, bool isEditable) const override;
};
