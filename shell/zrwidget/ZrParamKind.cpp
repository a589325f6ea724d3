#include "ZrParamKind.h"

#include "ZrParamLineRule.h"

ZrParamKind::~ZrParamKind() = default;

void ZrParamKind::relink(const QVariantMap &, QWidget *widget, const ZrParamLink &link) const
{
    ZrParamLineRule::relink(widget, link);
}
