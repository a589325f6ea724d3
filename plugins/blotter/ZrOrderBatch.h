#pragma once

#include "ZrMessageInbox.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

/// The messages of one batch, those about one order joined into one record.
///
/// Shape:   an order and its reports come close together and each carries the whole order: a grid that shows
///          only where an order stands needs to take in their sum once, not each of them. What a later
///          message tells wins; what it leaves out, or tells without a value, stays as it was told before.
///          Orders keep the order of their first messages.
/// Threads: one at a time.
class ZrOrderBatch
{
public:
    /// `keyFields` name an order: messages in which all of them are equal are about the same one.
    ZrOrderBatch(const std::vector<ZrInboxMessage> &messages, const QStringList &keyFields);

    const std::vector<QVariantMap> &records() const { return m_records; }
    /// Which of the records holds what the batch's message told.
    size_t recordOf(size_t message) const { return m_recordOf[message]; }

private:
    static void join(const QVariantMap &later, QVariantMap *record);

    std::vector<QVariantMap> m_records;
    std::vector<size_t> m_recordOf;
};
