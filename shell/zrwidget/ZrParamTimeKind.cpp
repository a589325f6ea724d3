#include "ZrParamTimeKind.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QTimeEdit>

namespace {
QString format()
{
    return QStringLiteral("hh:mm:ss");
}

// What is no time is left out by the edit.
void setText(QTimeEdit *edit, const QVariant &value)
{
    edit->setTime(QTime::fromString(value.toString(), format()));
}
} // namespace

QWidget *ZrParamTimeKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &) const
{
    auto *const edit = new QTimeEdit(parent);
    edit->setDisplayFormat(format());
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        setText(edit, record.value(Constants::STRATEGYPARAM_INIT));
    return edit;
}

QVariant ZrParamTimeKind::read(const QWidget *widget, int) const
{
    const auto *const edit = qobject_cast<const QTimeEdit *>(widget);
    return edit ? edit->time().toString(format()) : QVariant();
}

void ZrParamTimeKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const edit = qobject_cast<QTimeEdit *>(widget);
    if (!edit)
        return;
    setText(edit, value);
    if (!isEditable)
        lock(edit);
}
