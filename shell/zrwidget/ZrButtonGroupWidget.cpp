#include "ZrButtonGroupWidget.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>

namespace {
constexpr int SpacingPx = 5;
}

ZrButtonGroupWidget::ZrButtonGroupWidget(QWidget *parent)
    : QWidget(parent)
{
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(SpacingPx);
}

ZrButtonGroupWidget::~ZrButtonGroupWidget() = default;

void ZrButtonGroupWidget::addButton(QAbstractButton *button)
{
    if (!button)
        return;
    if (auto *const row = qobject_cast<QHBoxLayout *>(layout()))
        row->addWidget(button);
    m_group.addButton(button, -1);
}

QList<QAbstractButton *> ZrButtonGroupWidget::buttons() const
{
    return m_group.buttons();
}

QAbstractButton *ZrButtonGroupWidget::checkedButton() const
{
    return m_group.checkedButton();
}

void ZrButtonGroupWidget::clear()
{
    const QList<QAbstractButton *> all = m_group.buttons();
    for (QAbstractButton *const button : all)
        m_group.removeButton(button);
}
