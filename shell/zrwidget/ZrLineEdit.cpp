#include "ZrLineEdit.h"

#include <QtGui/QKeyEvent>

ZrLineEdit::ZrLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

ZrLineEdit::~ZrLineEdit() = default;

QVariant ZrLineEdit::getRoleData(int role) const
{
    return m_roles.value(role);
}

void ZrLineEdit::setRoleData(int role, QVariant value)
{
    m_roles.setValue(role, value);
}

void ZrLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit signalComplete(text());
    QLineEdit::keyPressEvent(event);
}
