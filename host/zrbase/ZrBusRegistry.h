#pragma once

#include "ZrBusEntry.h"

#include <QtCore/QHash>
#include <QtCore/QMap>

#include <vector>

using ZrBusEntryPtr = std::shared_ptr<ZrBusEntry>;
using ZrBusEntries = std::vector<ZrBusEntryPtr>;

/// Who is on the bus, who asked for which types, and who is linked with whom.
///
/// Shape:     an ID has one entry; a subscription belongs to an ID and ends with its registration.
///            A participant is in one linkage group for each menu and type.
/// Threads:   any, under its owner's lock: it has none of its own.
class ZrBusRegistry
{
public:
    /// Adds the entry and gives back the one whose place it took, if any.
    ZrBusEntryPtr add(const ZrBusEntryPtr &entry);
    ZrBusEntryPtr take(const QString &pid);
    ZrBusEntries takeAll(const ZrBusGate *gate);
    ZrBusEntries takeEverything();
    ZrBusEntryPtr find(const QString &pid) const;

    /// Messages and quotations share their subscriptions; events have their own.
    void subscribe(const QString &pid, const QString &typeKey, bool isEvent);
    void unsubscribe(const QString &pid, const QString &typeKey, bool isEvent);
    /// Appends the subscribers; those that `targets` already holds don't come twice.
    void appendSubscribers(const QString &typeKey, bool isEvent, ZrBusEntries *targets) const;

    /// Ignored for an ID that isn't registered; a second group of one menu and type takes the first one's
    /// place.
    void link(const QString &menuId, const QString &pid, int linkageType, int group);
    void unlink(const QString &menuId, const QString &pid, int linkageType, int group);
    /// Appends the participants linked with `pid` by this type, without `pid` itself.
    void appendLinked(const QString &pid, int linkageType, ZrBusEntries *targets) const;

private:
    void forget(const QString &pid);
    QHash<QString, QStringList> &subscriptions(bool isEvent) { return isEvent ? m_eventSubs : m_msgSubs; }

    struct Link
    {
        QString menuId;
        int linkageType;
        int group;
        bool operator==(const Link &o) const
        {
            return menuId == o.menuId && linkageType == o.linkageType && group == o.group;
        }
    };

    QHash<QString, ZrBusEntryPtr> m_entries;
    QHash<QString, QStringList> m_msgSubs;   // type to IDs, in the order of their subscriptions
    QHash<QString, QStringList> m_eventSubs; // the same
    QMap<QString, QList<Link>> m_links;      // ID to its groups
};
