#include "ZrItemModelDeletage_p.h"

#include "ZrItemModelDeletage.h"

ZrItemModelDeletagePrivate::ZrItemModelDeletagePrivate(ZrItemModelDeletage *facade)
    : QObject(facade)
    , delegate(facade)
{
}
