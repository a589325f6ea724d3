#include "ZrItemModelDeletage_p.h"

#include "ZrItemModelDeletage.h"

ZrItemModelDeletagePrivate::ZrItemModelDeletagePrivate(ZrItemModelDeletage *facade)
    : QObject(facade)
    , delegate(facade)
    , m_gridPen(gridColor)
{
}

const QPen &ZrItemModelDeletagePrivate::gridPen()
{
    if (m_gridPen.color() != gridColor)
        m_gridPen = QPen(gridColor);
    return m_gridPen;
}
