#include "ZrParamLineKind.h"

#include "ZrParamLineRule.h"
#include "ZrParamPattern.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QLineEdit>

QWidget *ZrParamLineKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const
{
    auto *const edit = new QLineEdit(parent);
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        edit->setText(record.value(Constants::STRATEGYPARAM_INIT).toString());
    ZrParamLineRule::install(edit, ZrParamPattern::ofNew(record, link));
    if (record.contains(Constants::STRATEGYPARAM_VALUELENGTH))
        edit->setMaxLength(record.value(Constants::STRATEGYPARAM_VALUELENGTH).toInt());
    return edit;
}

QVariant ZrParamLineKind::read(const QWidget *widget, int) const
{
    const auto *const edit = qobject_cast<const QLineEdit *>(widget);
    return edit ? edit->text() : QVariant();
}

void ZrParamLineKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const edit = qobject_cast<QLineEdit *>(widget);
    if (!edit)
        return;
    edit->setText(value.toString());
    if (!isEditable)
        edit->setReadOnly(true);
}
