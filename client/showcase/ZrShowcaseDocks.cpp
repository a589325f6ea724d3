#include "ZrShowcaseDocks.h"

#include "ZrShowcasePage.h"

#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>

#include <algorithm>

ZrShowcaseDocks::ZrShowcaseDocks(QMainWindow *window, QDockWidget *front)
    : QObject(window)
    , m_window(window)
    , m_front(front)
    , m_entries(ZrShowcasePages::all())
{
}

QStringList ZrShowcaseDocks::ids() const
{
    QStringList ids;
    for (const ZrShowcaseEntry &entry : m_entries)
        ids.append(entry.id);
    return ids;
}

QDockWidget *ZrShowcaseDocks::open(const QString &id)
{
    const auto entry = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&id](const ZrShowcaseEntry &one) { return one.id == id; });
    if (entry == m_entries.cend())
        return nullptr;
    auto *dock =
        m_window->findChild<QDockWidget *>(QStringLiteral("showcase-") + id, Qt::FindDirectChildrenOnly);
    if (!dock)
        dock = make(*entry);
    dock->show();
    dock->raise();
    return dock;
}

QDockWidget *ZrShowcaseDocks::make(const ZrShowcaseEntry &entry)
{
    QDockWidget *const before = front();
    auto *const dock = new QDockWidget(entry.title, m_window);
    dock->setObjectName(QStringLiteral("showcase-") + entry.id);
    m_window->addDockWidget(Qt::TopDockWidgetArea, dock);
    if (before)
        m_window->tabifyDockWidget(before, dock);
    dock->setWidget(entry.make(dock));
    return dock;
}

QDockWidget *ZrShowcaseDocks::front() const
{
    if (m_front)
        return m_front;
    const QList<QDockWidget *> docks =
        m_window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    const auto page = std::find_if(docks.cbegin(), docks.cend(), [](const QDockWidget *dock) {
        return dock->objectName().startsWith(QLatin1String("showcase-"));
    });
    return page == docks.cend() ? nullptr : *page;
}

QMenu *ZrShowcaseDocks::makeMenu(QWidget *parent)
{
    auto *const menu = new QMenu(parent);
    QString family;
    for (const ZrShowcaseEntry &entry : m_entries) {
        if (!family.isEmpty() && family != entry.family)
            menu->addSeparator();
        family = entry.family;
        const QString id = entry.id;
        connect(menu->addAction(entry.title), &QAction::triggered, this, [this, id] { open(id); });
    }
    return menu;
}
