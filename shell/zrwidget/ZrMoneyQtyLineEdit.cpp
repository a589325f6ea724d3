#include "ZrMoneyQtyLineEdit.h"

#include "ZrMoneyText.h"
#include "ZrPlainText.h"

#include <QtCore/QRegExp>
#include <QtGui/QKeyEvent>
#include <QtGui/QRegExpValidator>
#include <QtGui/QTextDocument>

namespace {

// The reading overlaps the field's lower edge, so that it is seen as part of it.
constexpr int TipOverlapPx = 10;
// Longer than the reading of anything that the validator lets in.
constexpr int LongestPlainTip = 32;

// What is typed goes straight through; what a caller sets may be anything, and a tool tip would read markup
// in it and grow with its length: a long one takes longer than all the rest of a key press.
QString tipOf(const QString &reading)
{
    const bool isPlain = reading.size() <= LongestPlainTip && !Qt::mightBeRichText(reading);
    return isPlain ? reading
                   : ZrPlainText::toolTip(ZrPlainText::beginning(reading, ZrPlainText::captionBound));
}

} // namespace

ZrMoneyQtyLineEdit::ZrMoneyQtyLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_tip(this)
{
    connect(this, &QLineEdit::textChanged, this, &ZrMoneyQtyLineEdit::slotTextChanged);
    // Lets in three digits more than thirteen when there is no full stop: required, orders of that size
    // exist.
    const QRegExp amount(QStringLiteral("([0-9]{1,13}[.]{0,1}[0-9]{0,3})"), Qt::CaseSensitive,
                         QRegExp::RegExp);
    setValidator(new QRegExpValidator(amount, this));
}

ZrMoneyQtyLineEdit::~ZrMoneyQtyLineEdit() = default;

QVariant ZrMoneyQtyLineEdit::getRoleData(int role) const
{
    return m_roles.value(role);
}

void ZrMoneyQtyLineEdit::setRoleData(int role, QVariant value)
{
    m_roles.setValue(role, value);
}

void ZrMoneyQtyLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit signalComplete(text());
    QLineEdit::keyPressEvent(event);
}

void ZrMoneyQtyLineEdit::slotTextChanged(QString s)
{
    const QString tip = tipOf(ZrMoneyText::reading(s));
    setToolTip(tip);
    m_tip.show(mapToGlobal(QPoint(0, height())) - QPoint(0, TipOverlapPx), tip);
}
