#include "ZrPluginViews.h"

#include "ZrViewBase.h"

#include <QtCore/QPointer>

ZrPluginViews::ZrPluginViews(QObject *parent)
    : QObject(parent)
{
}

void ZrPluginViews::add(ZrViewBase *view)
{
    if (!view || m_views.contains(view))
        return;
    m_views.append(view);
    connect(view, &QObject::destroyed, this, [this, view] { m_views.removeAll(view); });
    const QList<int> hidden = m_hiddenColumns.value(view->GetViewCaption());
    if (!hidden.isEmpty())
        view->setPluginViewColumnVisiableProperity(hidden);
}

void ZrPluginViews::remove(ZrViewBase *view)
{
    if (m_views.removeAll(view) > 0)
        disconnect(view, &QObject::destroyed, this, nullptr);
}

bool ZrPluginViews::contains(ZrViewBase *view) const
{
    return m_views.contains(view);
}

void ZrPluginViews::setHiddenColumns(const ColumnMap &columns)
{
    const ColumnMap given = columns;
    m_hiddenColumns = given;
    forEach([&given](ZrViewBase *view) {
        const auto hidden = given.constFind(view->GetViewCaption());
        if (hidden != given.cend())
            view->setPluginViewColumnVisiableProperity(*hidden);
    });
}

void ZrPluginViews::setOrders(const ColumnMap &orders)
{
    const ColumnMap given = orders;
    m_orders = given;
    forEach([&given](ZrViewBase *view) {
        const auto order = given.constFind(view->GetViewCaption());
        if (order != given.cend())
            view->setPluginViewHeadLogicIndexProperity(*order);
    });
}

ZrPluginViews::ColumnMap ZrPluginViews::shownOrders() const
{
    ColumnMap shown = m_orders;
    for (ZrViewBase *const view : m_views)
        shown.insert(view->GetViewCaption(), view->getHeadLogicIndexList());
    return shown;
}

void ZrPluginViews::forEach(const std::function<void(ZrViewBase *)> &work)
{
    const QPointer<ZrPluginViews> self(this);
    const QList<ZrViewBase *> views = m_views;
    for (ZrViewBase *const view : views) {
        if (!self)
            return;
        if (m_views.contains(view))
            work(view);
    }
}
