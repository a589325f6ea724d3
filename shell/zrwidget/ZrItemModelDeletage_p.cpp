#include "ZrItemModelDeletage_p.h"

#include "ZrCellText.h"
#include "ZrItemModelDeletage.h"
#include "ZrItemStyle.h"

ZrItemModelDeletagePrivate::ZrItemModelDeletagePrivate(ZrItemModelDeletage *facade)
    : QObject(facade)
    , delegate(facade)
    , cellText(ZrCellText::shared())
    , itemStyle(new ZrItemStyle(this))
{
}

ZrItemModelDeletagePrivate::~ZrItemModelDeletagePrivate() = default;
