#include "ZrMenu.h"

ZrMenu::ZrMenu(QWidget *parent)
    : QMenu(parent)
    , m_data(std::make_unique<QMap<int, QVariant>>())
{
}

ZrMenu::ZrMenu(const QString &title, QWidget *parent)
    : QMenu(title, parent)
    , m_data(std::make_unique<QMap<int, QVariant>>())
{
}

ZrMenu::~ZrMenu() = default;

void ZrMenu::setData(int role, const QVariant &value)
{
    m_data->insert(role, value);
}

QVariant ZrMenu::getData(int role) const
{
    return m_data->value(role);
}
