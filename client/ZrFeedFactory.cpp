#include "ZrFeedFactory.h"

#include "feed/ZrFeedDescriptionReader.h"
#include "feed/ZrFeedSimulator.h"
#include "feed/ZrRecordingSource.h"
#include "ZrClientFields.h"
#include "ZrWorkstationOptions.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorValues.h"

#include <QtCore/QFileInfo>

namespace {
constexpr int SimulatedSecurities = 40;
constexpr int OrdersAtStart = 4000;

ZrDecimal decimalOf(const QVariant &value, ZrDecimal otherwise)
{
    ZrDecimal result;
    return ZrDecimal::parse(value.toString().toLatin1(), &result) && result > ZrDecimal() ? result
                                                                                          : otherwise;
}

// Some securities of each market, spread over the list so that they differ in price.
std::vector<ZrSimSecurity> securities()
{
    CBusinessDataBase *const data = CBusinessDataBase::GetInstance();
    const QStringList all = data->GetAllSymbolByType(QStringLiteral("Stock"), QString(), QString(), true, {});
    std::vector<ZrSimSecurity> result;
    const int step = qMax(1, all.size() / SimulatedSecurities);
    for (int i = 0; i < all.size() && int(result.size()) < SimulatedSecurities; i += step) {
        const QString symbol = all.at(i).section(Constants::SymbolSearch_Split, 0, 0);
        const QVariantMap details = data->GetSecurityDetailsBySymbol(symbol);
        ZrSimSecurity security;
        security.symbol = symbol.toUtf8();
        security.previousClose =
            decimalOf(details.value(ZrClientFields::previousClose), ZrDecimal::fromInt(10));
        security.tick = decimalOf(details.value(QStringLiteral("PriceTick")), security.tick);
        security.lot = decimalOf(details.value(QStringLiteral("LotSize")), security.lot);
        result.push_back(security);
    }
    return result;
}

QString findDescription(const QString &feed, const QStringList &folders)
{
    if (QFileInfo(feed).isFile())
        return feed;
    for (const QString &folder : folders) {
        const QString path = folder + QLatin1Char('/') + feed + QStringLiteral(".json");
        if (!feed.contains(QLatin1Char('/')) && QFileInfo(path).isFile())
            return path;
    }
    return QString();
}
} // namespace

std::unique_ptr<ZrFeedSource> ZrFeedFactory::make(const ZrWorkstationOptions &options,
                                                  const QStringList &recordings, QString *error)
{
    if (options.feed.isEmpty() || options.feed == QLatin1String("simulator")) {
        ZrFeedSimulator::Options simulator;
        simulator.seed = options.seed;
        simulator.rate = options.rate;
        simulator.ordersAtStart = OrdersAtStart;
        return std::make_unique<ZrFeedSimulator>(simulator, securities());
    }
    const QString path = findDescription(options.feed, recordings);
    ZrFeedDescription description;
    if (path.isEmpty())
        *error =
            QStringLiteral("--feed: there is no recording and no file \"%1\".").arg(options.feed.left(300));
    else if (ZrFeedDescriptionReader::read(path, &description, error)) {
        auto source = std::make_unique<ZrRecordingSource>(description);
        *error = source->open();
        if (error->isEmpty())
            return source;
    }
    return nullptr;
}

QList<QVariantMap> ZrFeedFactory::accounts()
{
    namespace User = Vexlor_Fields::UserAccount;
    CBusinessDataBase *const data = CBusinessDataBase::GetInstance();
    QList<QVariantMap> result;
    const QStringList numbers = data->GetTradeAccountList({Vexlor_Values::AuthorityType::AccountTrade});
    for (const QString &number : numbers) {
        const QVariantMap details = data->GetAccountDetailsByTradinngAccount(number);
        QVariantMap account = {{User::tradingAccount, number},
                               {Vexlor_Fields::Security::systemNodeId,
                                data->GetSysNodeIDByAccount({{User::tradingAccount, number}})}};
        for (const QString &field :
             {User::assetAccount, ZrClientFields::productAccount, ZrClientFields::investAccount})
            account.insert(field, details.value(field));
        result.append(account);
    }
    return result;
}
