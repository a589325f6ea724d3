#include "ZrSkinSheet.h"

#include "zrcore/ZrCore.h"

ZrSkinSheet::ZrSkinSheet(IZrSkin *view, const QString &path)
    : m_view(view)
    , m_path(path)
{
    ZrCore::instance()->addStyle2View(this, path);
}

void ZrSkinSheet::loadSkin(const QVariant &css)
{
    m_view->loadSkin(css);
}
