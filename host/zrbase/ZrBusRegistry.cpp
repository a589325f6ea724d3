#include "ZrBusRegistry.h"

#include <algorithm>

ZrBusEntryPtr ZrBusRegistry::add(const ZrBusEntryPtr &entry)
{
    const ZrBusEntryPtr before = take(entry->pid);
    m_entries.insert(entry->pid, entry);
    return before;
}

ZrBusEntryPtr ZrBusRegistry::take(const QString &pid)
{
    const ZrBusEntryPtr entry = m_entries.take(pid);
    if (entry)
        forget(pid);
    return entry;
}

ZrBusEntries ZrBusRegistry::takeAll(const ZrBusGate *gate)
{
    ZrBusEntries taken;
    for (const ZrBusEntryPtr &entry : qAsConst(m_entries)) {
        if (entry->gate.get() == gate)
            taken.push_back(entry);
    }
    for (const ZrBusEntryPtr &entry : taken)
        take(entry->pid);
    return taken;
}

ZrBusEntries ZrBusRegistry::takeEverything()
{
    const ZrBusEntries taken(m_entries.cbegin(), m_entries.cend());
    m_entries.clear();
    m_msgSubs.clear();
    m_eventSubs.clear();
    m_links.clear();
    return taken;
}

ZrBusEntryPtr ZrBusRegistry::find(const QString &pid) const
{
    return m_entries.value(pid);
}

void ZrBusRegistry::subscribe(const QString &pid, const QString &typeKey, bool isEvent)
{
    if (!m_entries.contains(pid))
        return;
    QStringList &pids = subscriptions(isEvent)[typeKey];
    if (!pids.contains(pid))
        pids.append(pid);
}

void ZrBusRegistry::unsubscribe(const QString &pid, const QString &typeKey, bool isEvent)
{
    QHash<QString, QStringList> &subs = subscriptions(isEvent);
    const auto found = subs.find(typeKey);
    if (found == subs.end())
        return;
    found->removeAll(pid);
    if (found->isEmpty())
        subs.erase(found);
}

void ZrBusRegistry::appendSubscribers(const QString &typeKey, bool isEvent, ZrBusEntries *targets) const
{
    // One type's subscribers are distinct: only those that were there before can come twice.
    const std::ptrdiff_t before = static_cast<std::ptrdiff_t>(targets->size());
    const QStringList pids = (isEvent ? m_eventSubs : m_msgSubs).value(typeKey);
    for (const QString &pid : pids) {
        const ZrBusEntryPtr entry = m_entries.value(pid);
        if (std::find(targets->cbegin(), targets->cbegin() + before, entry) == targets->cbegin() + before)
            targets->push_back(entry);
    }
}

void ZrBusRegistry::link(const QString &menuId, const QString &pid, int linkageType, int group)
{
    if (!m_entries.contains(pid))
        return;
    QList<Link> &links = m_links[pid];
    const auto sameType = [&](const Link &l) { return l.menuId == menuId && l.linkageType == linkageType; };
    links.erase(std::remove_if(links.begin(), links.end(), sameType), links.end());
    links.append(Link{menuId, linkageType, group});
}

void ZrBusRegistry::unlink(const QString &menuId, const QString &pid, int linkageType, int group)
{
    const auto found = m_links.find(pid);
    if (found == m_links.end())
        return;
    found->removeAll(Link{menuId, linkageType, group});
    if (found->isEmpty())
        m_links.erase(found);
}

void ZrBusRegistry::appendLinked(const QString &pid, int linkageType, ZrBusEntries *targets) const
{
    for (const Link &link : m_links.value(pid)) {
        if (link.linkageType != linkageType)
            continue;
        for (auto it = m_links.cbegin(); it != m_links.cend(); ++it) {
            const ZrBusEntryPtr entry = m_entries.value(it.key());
            const bool isKnown = std::find(targets->cbegin(), targets->cend(), entry) != targets->cend();
            if (it.key() != pid && it->contains(link) && !isKnown)
                targets->push_back(entry);
        }
    }
}

void ZrBusRegistry::forget(const QString &pid)
{
    for (const bool isEvent : {false, true}) {
        QHash<QString, QStringList> &subs = subscriptions(isEvent);
        for (auto it = subs.begin(); it != subs.end();) {
            it->removeAll(pid);
            if (it->isEmpty())
                it = subs.erase(it);
            else
                ++it;
        }
    }
    m_links.remove(pid);
}
