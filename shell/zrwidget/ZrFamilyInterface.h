#pragma once

#include <QtCore/QObject>

/// The interface of `owner` itself or of one of its direct children, where a class keeps its private object;
/// null when there is none.
template<typename Interface>
Interface *zrFamilyInterface(const QObject *owner)
{
    if (!owner)
        return nullptr;
    // The cast goes through the meta object of a non-const object only; nothing is changed.
    if (Interface *const own = qobject_cast<Interface *>(const_cast<QObject *>(owner)))
        return own;
    const QObjectList &children = owner->children();
    for (QObject *const child : children) {
        if (Interface *const found = qobject_cast<Interface *>(child))
            return found;
    }
    return nullptr;
}
