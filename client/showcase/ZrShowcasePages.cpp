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
        entry("filter-popup", "ZrViewFilterWidget", "grid", zrMakeFilterPopupPage),

        // --- dialogs ---
        entry("dialog", "ZrDialog", "dialogs", zrMakeDialogPage),
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

        // --- market depth ---
        entry("security-ask-bid", "ZrSecurityAskBidPanel", "market depth", zrMakeSecurityAskBidPage),

        // --- combos ---
        entry("multi-combo", "ZrMultiComboBox", "combos", zrMakeMultiComboPage),
        entry("linkage-combo", "ZrLinkageCombox", "combos", zrMakeLinkageComboPage),

        // --- search ---
        entry("search-box", "ZrSearchBox", "search", zrMakeSearchBoxPage),

        // --- forms ---
        entry("auto-build", "ZrAutoBuildWidget", "forms", zrMakeAutoBuildWidgetPage),
    };
}
