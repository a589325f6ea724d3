#pragma once

#include "ZrDepthQuote.h"

#include <QtCore/QHash>
#include <QtCore/QVariantMap>

#include <mutex>

/// The latest message about each security's book and trades, so that another one shows at once when it is
/// chosen.
///
/// Shape:   put() by whoever hears the messages, quote() by whoever shows them. A notice is due for the first
///          message about the watched security since quote() was last asked for it: a busy security costs one
///          notice for each time that it is shown.
/// Threads: any.
/// Errors:  messages without a symbol, and symbols beyond MostSymbols, are left out.
class ZrDepthMarkets
{
public:
    static constexpr int MostSymbols = 100000;

    /// Whether a notice is due now.
    bool put(const QString &type, const QVariantMap &record);
    /// An empty symbol watches the first security whose book comes.
    void watch(const QString &symbol);
    QString watched() const;
    /// Of the watched security.
    ZrDepthQuote quote();

private:
    struct Market
    {
        QVariantMap depth;
        QVariantMap trade;
    };

    mutable std::mutex m_mutex;
    QHash<QString, Market> m_markets; // by symbol
    QString m_watched;
    bool m_noticed = false;
};
