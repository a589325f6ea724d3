#include "ZrShowcasePages.h"

QList<ZrShowcaseEntry> ZrShowcasePages::all()
{
    const auto entry = [](const char *id, const char *title, const char *family,
                          ZrShowcasePage *(*make)(QWidget *)) {
        return ZrShowcaseEntry{QLatin1String(id), QLatin1String(title), QLatin1String(family), make};
    };
    return {
        // --- grid ---
        entry("table-view", "ZrTableView", "grid", zrMakeTableViewPage),
        entry("header-view", "ZrHeaderView", "grid", zrMakeHeaderViewPage),

        // --- dialogs ---
        entry("message-box", "ZrMessageBox", "dialogs", zrMakeMessageBoxPage),
        entry("comfirm-dialog", "ZrComfirmDialog", "dialogs", zrMakeComfirmDialogPage),
        entry("toast-dialog", "ZrToastDialog", "dialogs", zrMakeToastDialogPage),

        // --- frames ---
        entry("shadow-frame", "ZrShadowFrame", "frames", zrMakeShadowFramePage),
        entry("loading-frame", "ZrLoadingFrame", "frames", zrMakeLoadingFramePage),
        entry("menu", "ZrMenu", "frames", zrMakeMenuPage),
        entry("log-widget", "ZrLogWidget", "frames", zrMakeLogWidgetPage),

        // --- editors ---
        entry("line-edit", "ZrLineEdit", "editors", zrMakeLineEditPage),
        entry("money-edit", "ZrMoneyQtyLineEdit", "editors", zrMakeMoneyQtyLineEditPage),
        entry("radio-button", "ZrRadioButton", "editors", zrMakeRadioButtonPage),
        entry("label", "ZrLabel", "editors", zrMakeLabelPage),
        entry("quotation-label", "ZrQuotationLabel", "editors", zrMakeQuotationLabelPage),
        entry("push-button", "ZrPushButton", "editors", zrMakePushButtonPage),
        entry("button-group", "ZrButtonGroupWidget", "editors", zrMakeButtonGroupWidgetPage),
        entry("date-edit", "ZrDateEdit", "editors", zrMakeDateEditPage),
        entry("shortcut-key", "ZrShortCutKeyWidget", "editors", zrMakeShortCutKeyWidgetPage),

        // --- combos ---
        entry("multi-combo", "ZrMultiComboBox", "combos", zrMakeMultiComboPage),
        entry("linkage-combo", "ZrLinkageCombox", "combos", zrMakeLinkageComboPage),

        // --- forms ---
        entry("auto-build", "ZrAutoBuildWidget", "forms", zrMakeAutoBuildWidgetPage),
    };
}
