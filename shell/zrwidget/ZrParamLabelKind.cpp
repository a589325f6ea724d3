#include "ZrParamLabelKind.h"

#include "ZrParamRoom.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QLabel>

namespace {
void setText(QLabel *label, const QString &text)
{
    ZrParamRoom::bound(label, text);
    label->setText(text);
}
} // namespace

QWidget *ZrParamLabelKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &) const
{
    auto *const label = new QLabel(parent);
    // Values come from outside; they are never markup.
    label->setTextFormat(Qt::PlainText);
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        setText(label, record.value(Constants::STRATEGYPARAM_INIT).toString());
    return label;
}

QVariant ZrParamLabelKind::read(const QWidget *widget, int) const
{
    const auto *const label = qobject_cast<const QLabel *>(widget);
    return label ? label->text() : QVariant();
}

void ZrParamLabelKind::write(QWidget *widget, const QVariant &value, bool) const
{
    if (auto *const label = qobject_cast<QLabel *>(widget))
        setText(label, value.toString());
}
