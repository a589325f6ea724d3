#pragma once

#include "ZrPresenterClass.h"

#include <QtCore/QVariantMap>

/// Order entry's connection to the bus: orders go out as requests, the reports on them come in.
///
/// Shape:     only reports on orders that left here are told: their numbers begin with this plugin's ID. A
///            security chosen in a linked plugin comes as an event of the linkage's type.
/// Threads:   signals come on the bus's or the presenter's thread; all else on the GUI thread.
/// Errors:    an order that isn't sent, answered or accepted ends in signalRefused, a time-out included.
class ZrOrderEntryPresenter : public ZrPresenterClass
{
    Q_OBJECT
public:
    ZrOrderEntryPresenter(const QString &pluginPid, QObject *plugin);

    void ProcMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcEventMsg(QString pid, QVariant msgType, QVariant msg) override;
    void ProcAsyncCallBack(int code, QString pid, QVariant msgType, QVariant msg) override;

    void open();
    void detach();
    /// A number for the next order, of no other order in the client.
    QString nextOrderNumber();
    void send(const QVariantMap &order);
    /// Tells the plugins of our linkage group.
    void tellSecurity(const QString &symbol);

signals:
    void signalAccepted(const QVariantMap &order);
    /// `code` is a ZrRequestResult; `text` is the back end's, or empty.
    void signalRefused(int code, const QString &text);
    void signalReport(const QVariantMap &report);
    /// In a linked plugin.
    void signalSecurityChosen(const QVariantMap &security);
    void signalLevelChosen(const QVariantMap &level);

private:
    int m_orders = 0; // sent so far
};
