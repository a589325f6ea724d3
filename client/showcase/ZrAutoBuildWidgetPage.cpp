#include "ZrAutoBuildWidget.h"
#include "ZrShowcase.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"

#include "zrdefine/Constants.h"

namespace {
enum Mode { New = 1, Running = 2, ReadOnly = 3 };

QVariantMap record(const QString &id, const QString &name, int row, const QString &widgetType,
                   const QString &valueType, const QVariantMap &more = QVariantMap())
{
    QVariantMap record = more;
    record.insert(Constants::STRATEGYPARAM_PARAMID, id);
    record.insert(Constants::STRATEGYPARAM_PARAMNAME, name);
    record.insert(Constants::STRATEGYPARAM_ROW, row);
    record.insert(Constants::STRATEGYPARAM_WIDGETTYPE, widgetType);
    record.insert(Constants::STRATEGYPARAM_VALUETYPE, valueType);
    return record;
}

QVariantMap choices(const QStringList &texts)
{
    QVariantList options;
    for (const QString &text : texts)
        options.append(QVariantMap{{Constants::STRATEGYPARAM_DISPLAYROLE, text},
                                   {Constants::STRATEGYPARAM_USERROLE, options.size() + 1}});
    return {{Constants::STRATEGYPARAM_OPTIONS, options}, {Constants::STRATEGYPARAM_INIT, 1}};
}

QVariantMap editableLater()
{
    return {{Constants::STRATEGYPARAM_EDITABLEAFTERRUNNING, true}};
}

QVariantMap search()
{
    return {{Constants::STRATEGYPARAM_OPTIONS, QStringLiteral("Stock")},
            {Constants::STRATEGYPARAM_WIDGETWIDTH, 130}};
}

QVariantMap price()
{
    return {{Constants::STRATEGYPARAM_STEP, 0.01}, {Constants::STRATEGYPARAM_WIDGETWIDTH, 110}};
}

QVariantMap quantity()
{
    QVariantMap map = editableLater();
    map.insert(Constants::STRATEGYPARAM_STEP, 100);
    map.insert(Constants::STRATEGYPARAM_MAXVALUE, 1000000);
    map.insert(Constants::STRATEGYPARAM_WIDGETWIDTH, 110);
    return map;
}

/// One parameter of each type of editor, as a strategy asks for them.
QList<QVariantMap> sheet()
{
    const auto brokers = choices({QStringLiteral("CITIC"), QStringLiteral("GTJA"), QStringLiteral("CMS")});
    const auto sides = choices({ZrShowcase::tr("Buy"), ZrShowcase::tr("Sell")});
    const auto prices = choices({ZrShowcase::tr("Limit"), ZrShowcase::tr("Market")});
    return {
        record(QStringLiteral("account"), ZrShowcase::tr("Account"), 1, Constants::WIDGETTYPE_ACCOUNTCOMBOBOX,
               Constants::VALUETYPE_STRING),
        record(QStringLiteral("symbol"), ZrShowcase::tr("Security"), 1, Constants::WIDGETTYPE_ZRSEARCHBOX,
               Constants::VALUETYPE_STRING, search()),
        record(QStringLiteral("phase"), ZrShowcase::tr("Phase"), 1, Constants::WIDGETTYPE_LABEL,
               Constants::VALUETYPE_STRING),
        record(QStringLiteral("side"), ZrShowcase::tr("Side"), 2, Constants::WIDGETTYPE_RADIOBUTTON,
               Constants::VALUETYPE_INT, sides),
        record(QStringLiteral("priceType"), ZrShowcase::tr("Price type"), 2, Constants::WIDGETTYPE_COMBOBOX,
               Constants::VALUETYPE_INT, prices),
        record(QStringLiteral("price"), ZrShowcase::tr("Price"), 2, Constants::WIDGETTYPE_SPINBOX,
               Constants::VALUETYPE_DOUBLE, price()),
        record(QStringLiteral("quantity"), ZrShowcase::tr("Quantity"), 3, Constants::WIDGETTYPE_SPINBOX,
               Constants::VALUETYPE_INT, quantity()),
        record(QStringLiteral("begin"), ZrShowcase::tr("Begin"), 3, Constants::WIDGETTYPE_TIMEEDIT,
               Constants::VALUETYPE_TIME),
        record(QStringLiteral("end"), ZrShowcase::tr("Valid until"), 3, Constants::WIDGETTYPE_DATETIME,
               Constants::VALUETYPE_STRING, editableLater()),
        record(QStringLiteral("brokers"), ZrShowcase::tr("Brokers"), 4, Constants::WIDGETTYPE_MULTICOMBOBOX,
               Constants::VALUETYPE_STRING, brokers),
        record(QStringLiteral("note"), ZrShowcase::tr("Remark"), 4, Constants::WIDGETTYPE_LINEEDIT,
               Constants::VALUETYPE_STRING, editableLater()),
        record(QStringLiteral("passive"), ZrShowcase::tr("Passive orders only"), 4,
               Constants::WIDGETTYPE_CHECKBOX, Constants::VALUETYPE_BOOL),
    };
}

QVariantMap values()
{
    return {{QStringLiteral("account"), QStringLiteral("T10002")},
            {QStringLiteral("symbol"), QStringLiteral("600001.SH")},
            {QStringLiteral("phase"), ZrShowcase::tr("Continuous trading")},
            {QStringLiteral("side"), 2},
            {QStringLiteral("priceType"), 1},
            {QStringLiteral("price"), 43.92},
            {QStringLiteral("quantity"), 120000},
            {QStringLiteral("begin"), QStringLiteral("09:30:00")},
            {QStringLiteral("end"), QStringLiteral("2026-12-31 15:00:00")},
            {QStringLiteral("note"), QStringLiteral("A & B")},
            {QStringLiteral("passive"), true},
            {QStringLiteral("brokers"), QStringLiteral("1")}};
}

QWidget *filled(Mode mode)
{
    auto *const form = new ZrAutoBuildWidget;
    form->setAutoBuildWidgetDetails(sheet(), mode);
    form->setInitialBasicParamData(values());
    return form;
}

QWidget *fresh()
{
    auto *const form = new ZrAutoBuildWidget;
    form->setAutoBuildWidgetDetails(sheet(), New);
    return form;
}
} // namespace

ZrShowcasePage *zrMakeAutoBuildWidgetPage(QWidget *parent)
{
    auto *const page = new ZrShowcasePage(
        QStringLiteral("auto-build"), QStringLiteral("ZrAutoBuildWidget"),
        ZrShowcase::tr("A form that a strategy's description tells: names and editors in rows."), parent);
    page->beginRow(ZrShowcase::tr("New strategy"));
    page->addSample(ZrShowcase::tr("Empty"), fresh());
    page->addSample(ZrShowcase::tr("Filled"), filled(New));
    page->beginRow(ZrShowcase::tr("Running strategy: some parameters can still be changed"));
    page->addSample(ZrShowcase::tr("Filled"), filled(Running));
    page->beginRow(ZrShowcase::tr("Strategy that has ended"));
    page->addSample(ZrShowcase::tr("Read-only"), filled(ReadOnly));
    return page;
}
