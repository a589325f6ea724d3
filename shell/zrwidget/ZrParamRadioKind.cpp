#include "ZrParamRadioKind.h"

#include "ZrButtonGroupWidget.h"
#include "ZrParamLink.h"
#include "ZrParamRoom.h"
#include "ZrPlainText.h"
#include "ZrRadioButton.h"

#include "zrdefine/Constants.h"

namespace {
void addButtons(ZrButtonGroupWidget *group, const QVariantMap &record, const ZrParamLink &link)
{
    const QVariant first = record.value(Constants::STRATEGYPARAM_INIT);
    const QVector<ZrParamOption> options = link.options();
    for (const ZrParamOption &option : options) {
        auto *const button = new ZrRadioButton(group);
        button->setCheckable(true);
        button->setText(ZrPlainText::caption(option.text));
        ZrParamRoom::bound(button, option.text);
        button->setRoleData(Qt::UserRole, option.value.toString());
        group->addButton(button);
        button->setChecked(option.value == first);
    }
}
} // namespace

QWidget *ZrParamRadioKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const
{
    auto *const group = new ZrButtonGroupWidget(parent);
    addButtons(group, record, link);
    return group;
}

// The same for both roles, required: a choice is told by what it stores.
QVariant ZrParamRadioKind::read(const QWidget *widget, int) const
{
    const auto *const group = qobject_cast<const ZrButtonGroupWidget *>(widget);
    const auto *const button = group ? qobject_cast<ZrRadioButton *>(group->checkedButton()) : nullptr;
    return button ? button->getRoleData(Qt::UserRole) : QVariant();
}

void ZrParamRadioKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    const auto *const group = qobject_cast<ZrButtonGroupWidget *>(widget);
    const QList<QAbstractButton *> buttons = group ? group->buttons() : QList<QAbstractButton *>();
    for (QAbstractButton *const each : buttons) {
        auto *const button = qobject_cast<ZrRadioButton *>(each);
        if (!button || button->getRoleData(Qt::UserRole) != value)
            continue;
        button->setChecked(true);
        // Only this one, required; the others can still be looked at.
        if (!isEditable)
            button->setDisabled(true);
    }
}

// The buttons of before stay where they are, out of the group: required, their owner takes them away.
void ZrParamRadioKind::relink(const QVariantMap &record, QWidget *widget, const ZrParamLink &link) const
{
    auto *const group = qobject_cast<ZrButtonGroupWidget *>(widget);
    if (!group)
        return;
    group->clear();
    addButtons(group, record, link);
}
