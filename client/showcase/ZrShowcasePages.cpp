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

        // --- frames ---

        // --- editors ---

        // --- combos ---
    };
}
