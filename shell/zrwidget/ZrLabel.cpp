#include "ZrLabel.h"

#include "ZrLabelRoom.h"
#include "ZrPlainText.h"

#include <QtWidgets/QStyle>

ZrLabel::ZrLabel(QWidget *parent)
    : ZrLabel(QString(), parent)
{
}

ZrLabel::ZrLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
}

ZrLabel::~ZrLabel() = default;

void ZrLabel::setText(const QString &text)
{
    QLabel::setText(ZrPlainText::beginning(text, ZrPlainText::labelBound));
}

QSize ZrLabel::minimumSizeHint() const
{
    return ZrLabelRoom::least(QLabel::minimumSizeHint());
}

bool ZrLabel::isChecked() const
{
    return m_checked;
}

// Polished even when nothing changed: required. A tab that moves to another sheet's scope sets the state that
// it already has in order to take on the new look.
void ZrLabel::setChecked(bool checked)
{
    m_checked = checked;
    applySheet();
}

QString ZrLabel::textColorFlag() const
{
    return m_textColorFlag;
}

void ZrLabel::setTextColorFlag(const QString &flag)
{
    if (m_textColorFlag == flag)
        return;
    m_textColorFlag = flag;
    applySheet();
}

QVariant ZrLabel::getRoleData(int role) const
{
    return m_roles.value(role);
}

void ZrLabel::setRoleData(int role, QVariant value)
{
    m_roles.setValue(role, value);
}

void ZrLabel::applySheet()
{
    style()->polish(this);
    update(); // a rule that changes the background only asks for no repaint
}
