#include "ZrKnownIds.h"

#include <QtCore/QHash>
#include <QtCore/QMutex>

namespace {
struct Known
{
    QMutex mutex;
    QHash<QString, int> uses;
};

Known &known()
{
    static Known *const ids = new Known; // never destroyed: a setting may be read at any time
    return *ids;
}
} // namespace

void ZrKnownIds::insert(const QString &id)
{
    const QMutexLocker locker(&known().mutex);
    if (!id.isEmpty())
        ++known().uses[id];
}

void ZrKnownIds::remove(const QString &id)
{
    const QMutexLocker locker(&known().mutex);
    const auto found = known().uses.find(id);
    if (found != known().uses.end() && --*found == 0)
        known().uses.erase(found);
}

bool ZrKnownIds::contains(const QString &id)
{
    const QMutexLocker locker(&known().mutex);
    return known().uses.contains(id);
}
