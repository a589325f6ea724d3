#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QWidget;
class ZrShowcasePage;

/// A page that can be made when somebody wants to see it.
struct ZrShowcaseEntry
{
    QString id;     // as the page's own
    QString title;  // as the page's own
    QString family; // pages of one family stand together
    ZrShowcasePage *(*make)(QWidget *parent);
};

/// All pages, in the order in which they are offered.
class ZrShowcasePages
{
public:
    static QList<ZrShowcaseEntry> all();
};

// --- grid ---
ZrShowcasePage *zrMakeTableViewPage(QWidget *parent);
ZrShowcasePage *zrMakeHeaderViewPage(QWidget *parent);
ZrShowcasePage *zrMakeFilterPopupPage(QWidget *parent);

// --- dialogs ---
ZrShowcasePage *zrMakeDialogPage(QWidget *parent);
ZrShowcasePage *zrMakeMessageBoxPage(QWidget *parent);
ZrShowcasePage *zrMakeComfirmDialogPage(QWidget *parent);
ZrShowcasePage *zrMakeToastDialogPage(QWidget *parent);

// --- frames ---
ZrShowcasePage *zrMakeShadowFramePage(QWidget *parent);
ZrShowcasePage *zrMakeLoadingFramePage(QWidget *parent);
ZrShowcasePage *zrMakeMenuPage(QWidget *parent);
ZrShowcasePage *zrMakeLogWidgetPage(QWidget *parent);

// --- editors ---
ZrShowcasePage *zrMakeLineEditPage(QWidget *parent);
ZrShowcasePage *zrMakeMoneyQtyLineEditPage(QWidget *parent);
ZrShowcasePage *zrMakeRadioButtonPage(QWidget *parent);
ZrShowcasePage *zrMakeLabelPage(QWidget *parent);
ZrShowcasePage *zrMakeQuotationLabelPage(QWidget *parent);
ZrShowcasePage *zrMakePushButtonPage(QWidget *parent);
ZrShowcasePage *zrMakeButtonGroupWidgetPage(QWidget *parent);
ZrShowcasePage *zrMakeDateEditPage(QWidget *parent);
ZrShowcasePage *zrMakeShortCutKeyWidgetPage(QWidget *parent);

// --- market depth ---
ZrShowcasePage *zrMakeSecurityAskBidPage(QWidget *parent);

// --- combos ---
ZrShowcasePage *zrMakeMultiComboPage(QWidget *parent);
ZrShowcasePage *zrMakeLinkageComboPage(QWidget *parent);

// --- search ---
ZrShowcasePage *zrMakeSearchBoxPage(QWidget *parent);

// --- forms ---
ZrShowcasePage *zrMakeAutoBuildWidgetPage(QWidget *parent);
