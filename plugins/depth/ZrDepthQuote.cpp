#include "ZrDepthQuote.h"

#include "ZrDepthFields.h"

#include "zrdefine/VexlorFields.h"

#include <cmath>
#include <limits>

namespace {
constexpr int Levels = 10; // a side
constexpr int FineDecimals = 3;
constexpr double MostPrice = 1e9; // beyond it no price of a security lies

double positive(const QVariantMap &record, const QString &field)
{
    const double value = record.value(field).toDouble();
    return std::isfinite(value) && value > 0 ? value : 0;
}

double price(const QVariantMap &record, const QString &field)
{
    const double value = positive(record, field);
    return value <= MostPrice ? value : 0;
}

int quantity(const QVariantMap &record, const QString &field)
{
    return int(qMin(positive(record, field), double(std::numeric_limits<int>::max())));
}

bool hasThirdDecimal(double price)
{
    return std::llround(price * 1000) % 10 != 0;
}

bool isNewer(const QVariantMap &one, const QVariantMap &other)
{
    return one.value(ZrDepthFields::updateTime).toLongLong() >=
           other.value(ZrDepthFields::updateTime).toLongLong();
}

QString signedText(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    return value > 0 ? QLatin1Char('+') + text : text;
}
} // namespace

ZrDepthQuote ZrDepthQuote::of(const QVariantMap &depth, const QVariantMap &trade)
{
    namespace Fields = ZrDepthFields;
    ZrDepthQuote quote;
    const QString symbol = Vexlor_Fields::Security::symbol;
    quote.symbol = depth.value(symbol, trade.value(symbol)).toString();
    quote.previousClose = price(depth, Fields::previousClose);
    quote.lastPrice = price(depth, Fields::lastPrice);
    const double traded = price(trade, Fields::lastPrice);
    if (traded > 0 && (isNewer(trade, depth) || quote.lastPrice == 0))
        quote.lastPrice = traded;
    if (traded > 0)
        quote.lastQuantity = QString::number(quantity(trade, Fields::lastQty));
    for (int level = 1; level <= Levels; ++level) {
        const QString number = QString::number(level);
        if (hasThirdDecimal(price(depth, Fields::askPrice + number)) ||
            hasThirdDecimal(price(depth, Fields::bidPrice + number)))
            quote.decimals = FineDecimals;
    }
    for (int level = 1; level <= Levels; ++level) {
        quote.addLevel(depth, true, level);
        quote.addLevel(depth, false, level);
    }
    return quote;
}

void ZrDepthQuote::addLevel(const QVariantMap &depth, bool isSeller, int level)
{
    namespace Fields = ZrDepthFields;
    const QString number = QString::number(level);
    const double value = price(depth, (isSeller ? Fields::askPrice : Fields::bidPrice) + number);
    ZrSecurityAskBidData data;
    data.side = isSeller ? 1 : 0;
    data.level = level;
    data.price = value > 0 ? priceText(value) : QStringLiteral("0");
    data.volume = value > 0 ? quantity(depth, (isSeller ? Fields::askQty : Fields::bidQty) + number) : 0;
    levels.insert(isSeller ? Levels - level : Levels - 1 + level, data);
}

QString ZrDepthQuote::priceText(double price) const
{
    return QString::number(price, 'f', decimals);
}

QString ZrDepthQuote::changeText() const
{
    return isComparable() ? signedText(lastPrice - previousClose, decimals) : QString();
}

QString ZrDepthQuote::changePercentText() const
{
    return isComparable()
               ? signedText(100 * (lastPrice - previousClose) / previousClose, 2) + QStringLiteral(" %")
               : QString();
}

int ZrDepthQuote::mode() const
{
    if (!isComparable() || lastPrice == previousClose)
        return 0;
    return lastPrice > previousClose ? 1 : 2;
}
