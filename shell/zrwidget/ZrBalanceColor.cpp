#include "ZrBalanceColor.h"

#include "zrcore/ZrCore.h"
#include "zrdatabase/CDataBase.h"

QColor ZrBalanceColor::current()
{
    static const QString group = QStringLiteral("DefaultMasterColorInfo");
    static const QString prefix = QStringLiteral("banlanceColor_");
    const QString skin = ZrCore::instance()->getCurrentSkinId().toLower();
    const QString text = CDataBase::GetInstance()->GetStaticCfgValue(group, prefix + skin);
    QColor color;
    // The toolkit would warn of anything else, a hundred times a paint.
    if (QColor::isValidColor(text))
        color.setNamedColor(text);
    else
        color = QColor(Qt::black);
    color.setAlpha(alpha);
    return color;
}
