#pragma once

#include "ZrPresenterClass.h"

#include <mutex>

class ZrMessageInbox;

/// The blotter's connection to the bus: orders and their reports come in, the chosen security goes out.
///
/// Shape:     orders and reports go to the inbox. A security chosen in a linked plugin comes as an event
/// whose
///            type is the linkage's, with a record that names the symbol.
/// Ownership: borrows the inbox, which must live until detach() has been called.
/// Threads:   receivers on the bus's thread; all else on the GUI thread.
/// Errors:    an event without a symbol is ignored.
class ZrBlotterPresenter : public ZrPresenterClass
{
    Q_OBJECT
public:
    ZrBlotterPresenter(const QString &pluginPid, QObject *plugin, ZrMessageInbox *inbox);

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcEventMsg(QString pid, QVariant msgType, QVariant msg) override;

    /// Subscribes orders and reports.
    void open();
    /// Nothing goes to the inbox any more once this returns.
    void detach();
    /// Tells the plugins of our linkage group.
    void tellSecurity(const QString &symbol);

signals:
    /// On the bus's thread.
    void signalSecurityChosen(const QString &symbol);

private:
    std::mutex m_mutex;
    ZrMessageInbox *m_inbox; // not owned; null once detached
};
