#include "ZrQuotationLabel.h"

#include "ZrLabelRoom.h"
#include "ZrPlainText.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtWidgets/QStyle>

ZrQuotationLabel::ZrQuotationLabel(QWidget *parent)
    : ZrQuotationLabel(QString(), parent)
{
}

ZrQuotationLabel::ZrQuotationLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM +
                                                QStringLiteral("zrwidget/zrquotationlabel.css"));
}

ZrQuotationLabel::~ZrQuotationLabel() = default;

void ZrQuotationLabel::setText(const QString &text)
{
    QLabel::setText(ZrPlainText::beginning(text, ZrPlainText::labelBound));
}

QSize ZrQuotationLabel::minimumSizeHint() const
{
    return ZrLabelRoom::least(QLabel::minimumSizeHint());
}

int ZrQuotationLabel::getLabelMode() const
{
    return m_labelMode;
}

void ZrQuotationLabel::setLabelMode(int labelMode)
{
    if (m_labelMode == labelMode)
        return;
    m_labelMode = labelMode;
    style()->polish(this);
    update(); // a rule that changes the background only asks for no repaint
}

void ZrQuotationLabel::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}
