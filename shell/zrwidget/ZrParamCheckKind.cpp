#include "ZrParamCheckKind.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QCheckBox>

QWidget *ZrParamCheckKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &) const
{
    auto *const box = new QCheckBox(parent);
    box->setCheckable(true);
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        box->setChecked(record.value(Constants::STRATEGYPARAM_INIT).toBool());
    return box;
}

QVariant ZrParamCheckKind::read(const QWidget *widget, int) const
{
    const auto *const box = qobject_cast<const QCheckBox *>(widget);
    return box ? box->isChecked() : QVariant();
}

void ZrParamCheckKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const box = qobject_cast<QCheckBox *>(widget);
    if (!box)
        return;
    box->setChecked(value.toBool());
    if (!isEditable)
        box->setDisabled(true);
}
