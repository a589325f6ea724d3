#pragma once

#include "ZrSecurityAskBidData.h"

#include <QtCore/QVariantMap>

/// What is known of one security's market, ready to be shown.
///
/// Shape:   made of the latest message about its book and the latest about its trades; either may be empty.
///          Prices have two decimals, or three where a price of the book has a third one.
/// Units:   prices in the currency of the venue; quantities as the venue counts them.
/// Errors:  a price that is no number or not above zero counts as missing; quantities are cut to what an int
///          holds.
struct ZrDepthQuote
{
    static ZrDepthQuote of(const QVariantMap &depth, const QVariantMap &trade);

    QString symbol;
    ZrAskBidLevels levels;    // all twenty; a missing price is "0"
    double lastPrice = 0;     // 0: none yet
    double previousClose = 0; // 0: unknown
    QString lastQuantity;     // of the latest trade; empty: none yet
    int decimals = 2;

    QString priceText(double price) const;
    /// With its sign, against the previous close; empty while one of both is unknown.
    QString changeText() const;
    QString changePercentText() const;
    /// 1 risen, 2 fallen, 0 neither: modes of a quotation label.
    int mode() const;

private:
    bool isComparable() const { return lastPrice > 0 && previousClose > 0; }
    void addLevel(const QVariantMap &depth, bool isSeller, int level);
};
