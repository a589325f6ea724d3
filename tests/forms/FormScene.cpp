#include "FormScene.h"

#include "zrdatabase/ZrDataFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtGui/QValidator>
#include <QtWidgets/QLineEdit>

namespace UserAccount = Vexlor_Fields::UserAccount;
namespace Security = Vexlor_Fields::Security;

namespace {
QtMessageHandler testHandler = nullptr;

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support ")))
        testHandler(type, context, text);
}

QVariantMap security(const QString &symbol, const QString &name, const QString &type, const QString &subType)
{
    return {{Security::symbol, symbol},
            {Security::chineseName, name},
            {ZrDataFields::securityID, symbol.section('.', 0, 0)},
            {ZrDataFields::post, symbol.section('.', 1)},
            {ZrDataFields::securityType, type},
            {ZrDataFields::subType, subType},
            {ZrDataFields::searchKey, name.toUpper()}};
}

QVariantMap account(const QString &number, const QString &name, const QString &authorities)
{
    return {{UserAccount::tradingAccount, number},
            {UserAccount::tradingAccountName, name},
            {ZrDataFields::authorities, authorities}};
}
} // namespace

QVariantMap form::record(const QString &id, const QString &widgetType, const QString &valueType,
                         const QVariantMap &more)
{
    return joined({{Constants::STRATEGYPARAM_PARAMID, id},
                   {Constants::STRATEGYPARAM_PARAMNAME, id + " name"},
                   {Constants::STRATEGYPARAM_WIDGETTYPE, widgetType},
                   {Constants::STRATEGYPARAM_VALUETYPE, valueType}},
                  more);
}

QVariantList form::options(const Options &options)
{
    QVariantList list;
    for (const auto &option : options)
        list.append(QVariantMap{{Constants::STRATEGYPARAM_DISPLAYROLE, option.first},
                                {Constants::STRATEGYPARAM_USERROLE, option.second}});
    return list;
}

QVariantMap form::linkCase(const QVariant &value, const QVariantMap &more)
{
    return joined({{Constants::STRATEGYPARAM_PARAMVALUE, value}}, more);
}

QVariantMap form::link(const QString &otherId, const QVariantList &cases)
{
    return {{Constants::STRATEGYPARAM_LINKPARAMID, otherId}, {Constants::STRATEGYPARAM_LINKTYPE, cases}};
}

QVariantMap form::joined(QVariantMap first, const QVariantMap &second)
{
    for (auto entry = second.cbegin(); entry != second.cend(); ++entry)
        first.insert(entry.key(), entry.value());
    return first;
}

QValidator::State form::judge(const QLineEdit *edit, const QString &text)
{
    QString copy = text;
    int place = copy.size();
    return edit->validator() ? edit->validator()->validate(copy, place) : QValidator::Acceptable;
}

FormHost::FormHost()
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    m_ready = host.start(options);
    host.setSecurities({security("600001.SH", "north bank", "Stock", "Main"),
                        security("000002.SZ", "south bank", "Stock", "Small"),
                        security("510003.SH", "wide fund", "Fund", "Etf"),
                        security("159004.SZ", "narrow fund", "Fund", "Lof")});
    host.setAccounts({account("T1", "first", Vexlor_Values::AuthorityType::AccountTrade),
                      account("T2", "second", "AccountQuery"),
                      account("T3", "third", Vexlor_Values::AuthorityType::AccountTrade)});
    host.setDictionary(UserAccount::SymbolPost, {{"SH", "Shanghai"}, {"SZ", "Shenzhen"}});
}

QuietPlatform::QuietPlatform()
{
    testHandler = qInstallMessageHandler(passOn);
}

QuietPlatform::~QuietPlatform()
{
    qInstallMessageHandler(testHandler);
    testHandler = nullptr;
}
