#pragma once

#include "ZrPresenterClass.h"

#include <mutex>

class ZrDepthMarkets;
struct ZrSecurityAskBidData;

/// The market depth's connection to the bus: books and trades come in, the chosen security and level go out.
///
/// Ownership: borrows the markets, which must live until detach() has been called.
/// Threads:   receivers on the bus's thread; all else on the GUI thread.
/// Errors:    an event without a symbol is ignored.
class ZrDepthPresenter : public ZrPresenterClass
{
    Q_OBJECT
public:
    ZrDepthPresenter(const QString &pluginPid, QObject *plugin, ZrDepthMarkets *markets);

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcEventMsg(QString pid, QVariant msgType, QVariant msg) override;

    void open();
    /// Nothing goes to the markets any more once this returns.
    void detach();
    /// Tell the plugins of our linkage group.
    void tellSecurity(const QString &symbol);
    void tellLevel(const QString &symbol, const ZrSecurityAskBidData &level);

signals:
    /// On the bus's thread, as the next.
    void signalMarketChanged();
    void signalSecurityChosen(const QString &symbol);

private:
    void tell(int linkage, const QVariantMap &record);

    std::mutex m_mutex;
    ZrDepthMarkets *m_markets; // not owned; null once detached
};
