#include "ZrSkinViews.h"

#include "ZrSkinShelf.h"

#include "zrskin/IZrSkin.h"

#include <QtCore/QVariant>

#include <algorithm>

ZrSkinViews::ZrSkinViews(const ZrSkinShelf *shelf)
    : m_shelf(shelf)
{
}

void ZrSkinViews::add(IZrSkin *view, const QString &cssPath)
{
    if (QObject *const object = dynamic_cast<QObject *>(view)) {
        View &known = m_views[object];
        if (!known.skin) {
            known.skin = view;
            known.order = m_nextOrder++;
            connect(object, &QObject::destroyed, this, &ZrSkinViews::forget);
        }
        if (!known.sheets.contains(cssPath))
            known.sheets.append(cssPath);
    }
    view->loadSkin(m_shelf->sheet(cssPath));
}

void ZrSkinViews::reload()
{
    QVector<QPair<quint64, QObject *>> order;
    order.reserve(m_views.size());
    for (auto it = m_views.cbegin(); it != m_views.cend(); ++it)
        order.append({it->order, it.key()});
    std::sort(order.begin(), order.end());
    for (const QPair<quint64, QObject *> &next : qAsConst(order)) {
        // Loading one view's sheet may end another, or name a further sheet.
        const QVector<QString> sheets = m_views.value(next.second).sheets;
        for (const QString &cssPath : sheets) {
            const auto found = m_views.constFind(next.second);
            if (found == m_views.cend())
                break;
            found->skin->loadSkin(m_shelf->sheet(cssPath));
        }
    }
}

void ZrSkinViews::forget(QObject *object)
{
    m_views.remove(object);
}
