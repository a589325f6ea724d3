#include "ZrRadioButton.h"

ZrRadioButton::ZrRadioButton(QWidget *parent)
    : QRadioButton(parent)
{
}

ZrRadioButton::ZrRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(text, parent)
{
}

ZrRadioButton::~ZrRadioButton() = default;

QVariant ZrRadioButton::getRoleData(int role) const
{
    return m_roles.value(role);
}

void ZrRadioButton::setRoleData(int role, QVariant value)
{
    m_roles.setValue(role, value);
}
