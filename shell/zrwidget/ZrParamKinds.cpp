#include "ZrParamKinds.h"

#include "ZrParamAccountKind.h"
#include "ZrParamCheckKind.h"
#include "ZrParamComboKind.h"
#include "ZrParamDateTimeKind.h"
#include "ZrParamLabelKind.h"
#include "ZrParamLineKind.h"
#include "ZrParamMultiComboKind.h"
#include "ZrParamRadioKind.h"
#include "ZrParamSearchKind.h"
#include "ZrParamSpinKind.h"
#include "ZrParamTimeKind.h"

#include "zrdefine/Constants.h"

#include <QtCore/QHash>

namespace {
template<typename Kind>
const ZrParamKind *the()
{
    static const Kind kind;
    return &kind;
}
} // namespace

const ZrParamKind *ZrParamKinds::find(const QString &widgetType)
{
    static const QHash<QString, const ZrParamKind *> kinds{
        {Constants::WIDGETTYPE_LABEL, the<ZrParamLabelKind>()},
        {Constants::WIDGETTYPE_LINEEDIT, the<ZrParamLineKind>()},
        {Constants::WIDGETTYPE_RADIOBUTTON, the<ZrParamRadioKind>()},
        {Constants::WIDGETTYPE_COMBOBOX, the<ZrParamComboKind>()},
        {Constants::WIDGETTYPE_MULTICOMBOBOX, the<ZrParamMultiComboKind>()},
        {Constants::WIDGETTYPE_SPINBOX, the<ZrParamSpinKind>()},
        {Constants::WIDGETTYPE_TIMEEDIT, the<ZrParamTimeKind>()},
        {Constants::WIDGETTYPE_DATETIME, the<ZrParamDateTimeKind>()},
        {Constants::WIDGETTYPE_ZRSEARCHBOX, the<ZrParamSearchKind>()},
        {Constants::WIDGETTYPE_CHECKBOX, the<ZrParamCheckKind>()},
        {Constants::WIDGETTYPE_ACCOUNTCOMBOBOX, the<ZrParamAccountKind>()},
    };
    return kinds.value(widgetType);
}
