#include "ZrMultiComboItem.h"

#include "CheckBoxInMultiBox.h"

ZrMultiComboItem::ZrMultiComboItem(const QString &text, const QVariant &data)
    : QListWidgetItem(nullptr, ItemType)
{
    setData(Qt::UserRole, data);
    setData(TextRole, text);
    // What a screen reader says of the row.
    setData(Qt::AccessibleTextRole, text);
}

ZrMultiComboItem::~ZrMultiComboItem()
{
    // The view ends the box later, when control returns to the event loop.
    if (m_box)
        m_box->m_item = nullptr;
}

ZrMultiComboItem *ZrMultiComboItem::of(QListWidgetItem *item)
{
    return item && item->type() == ItemType ? static_cast<ZrMultiComboItem *>(item) : nullptr;
}

ZrMultiComboItem *ZrMultiComboItem::ofBox(const QObject *box)
{
    const auto *const known = qobject_cast<const CheckBoxInMultiBox *>(box);
    return known ? known->m_item : nullptr;
}

void ZrMultiComboItem::setBox(CheckBoxInMultiBox *box)
{
    if (m_box)
        m_box->m_item = nullptr;
    m_box = box;
    if (box)
        box->m_item = this;
}

CheckBoxInMultiBox *ZrMultiComboItem::box() const
{
    return m_box;
}

bool ZrMultiComboItem::isTicked() const
{
    return m_box && m_box->isChecked();
}

QString ZrMultiComboItem::text() const
{
    return data(TextRole).toString();
}
