#include "ZrHeaderHost.h"

#include <QtWidgets/QHeaderView>

// Out of line, so that the class has one home for its virtual table in every shared object that uses it.
ZrHeaderHost::~ZrHeaderHost() = default;

ZrHeaderHost *ZrHeaderHost::of(const QHeaderView *head)
{
    const QObject *const grid = head ? head->parent() : nullptr;
    const QObject *const view = grid ? grid->parent() : nullptr;
    if (!view)
        return nullptr;
    const QObjectList &children = view->children();
    for (QObject *const child : children) {
        if (ZrHeaderHost *const host = qobject_cast<ZrHeaderHost *>(child))
            return host;
    }
    return nullptr;
}
