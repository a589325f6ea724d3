#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariantMap>

#include <memory>

class ZrReferenceHost;

/// Stands in for the back end that takes orders: accepts them, reports on them, and fills them at once at
/// their own price, as a market does that nobody else trades in.
///
/// Shape:     a service of the bus for the message type "NewOrder", whose records have the fields of
///            ZrClientFields. The answer is the accepted order; an order that makes no sense is rejected with
///            a text. Order and reports are published as those of a feed are, but without its numbers: a run
///            counts as lost only what a feed has sent.
/// Units:     price in the venue's currency, quantity in shares.
/// Ownership: borrows the host, whose service ends with the venue.
/// Threads:   made and ended on the GUI thread; the service runs on the bus's threads.
/// Errors:    a faulty order is rejected with one sentence in English, as a venue's texts come.
class ZrOrderVenue
{
public:
    /// `accounts` as ZrFeedFactory::accounts() gives them.
    ZrOrderVenue(ZrReferenceHost *host, const QList<QVariantMap> &accounts);
    ~ZrOrderVenue();

    static QString messageType();

private:
    class Desk;

    Q_DISABLE_COPY(ZrOrderVenue)
    ZrReferenceHost *const m_host;      // not owned
    const std::shared_ptr<Desk> m_desk; // also a running service's
};
