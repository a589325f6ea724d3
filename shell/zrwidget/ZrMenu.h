#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QVariant>
#include <QtWidgets/QMenu>

#include <memory>

/// A menu that carries data, as an action does.
///
/// Shape:     values by role; Qt::UserRole is the usual one.
/// Ownership: normal QWidget parent rules; what a pointer in a value points to stays its owner's.
/// Threads:   GUI thread only.
/// Errors:    a role that was never set gives an invalid variant.
class ZRWIDGET_EXPORT ZrMenu : public QMenu
{
    Q_OBJECT
public:
    explicit ZrMenu(QWidget *parent = nullptr);
    /// An ampersand in the title marks a shortcut, as in every menu.
    explicit ZrMenu(const QString &title, QWidget *parent = nullptr);
    ~ZrMenu() override;

    void setData(int role, const QVariant &value);
    QVariant getData(int role) const;

private:
    const std::unique_ptr<QMap<int, QVariant>> m_data;
};
