#include "ZrParamDateTimeKind.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QDateTimeEdit>

namespace {
QString format()
{
    return QStringLiteral("yyyy-MM-dd hh:mm:ss");
}

// What is no date is left out by the edit.
void setText(QDateTimeEdit *edit, const QVariant &value)
{
    edit->setDateTime(QDateTime::fromString(value.toString(), format()));
}
} // namespace

QWidget *ZrParamDateTimeKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &) const
{
    auto *const edit = new QDateTimeEdit(parent);
    edit->setDisplayFormat(format());
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        setText(edit, record.value(Constants::STRATEGYPARAM_INIT));
    return edit;
}

QVariant ZrParamDateTimeKind::read(const QWidget *widget, int) const
{
    const auto *const edit = qobject_cast<const QDateTimeEdit *>(widget);
    return edit ? edit->dateTime().toString(format()) : QVariant();
}

void ZrParamDateTimeKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const edit = qobject_cast<QDateTimeEdit *>(widget);
    if (!edit)
        return;
    setText(edit, value);
    if (!isEditable)
        lock(edit);
}
