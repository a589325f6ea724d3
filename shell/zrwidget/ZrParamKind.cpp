#include "ZrParamKind.h"

#include "ZrParamLineRule.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QStyle>

ZrParamKind::~ZrParamKind() = default;

void ZrParamKind::relink(const QVariantMap &, QWidget *widget, const ZrParamLink &link) const
{
    ZrParamLineRule::relink(widget, link);
}

void ZrParamKind::lock(QAbstractSpinBox *box)
{
    box->setReadOnly(true);
    box->style()->polish(box); // a sheet knows this state of a spin box by its property only
}
