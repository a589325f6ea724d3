#pragma once

#include "ZrFieldRoles.h"
#include "zrwidget_global.h"

#include <QtWidgets/QRadioButton>

/// A radio button that carries its form's data.
///
/// Shape:     a QRadioButton with a role map; see ZrFieldRoles.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a role that was never set reads as an invalid variant.
class ZRWIDGET_EXPORT ZrRadioButton : public QRadioButton
{
    Q_OBJECT
public:
    explicit ZrRadioButton(QWidget *parent = nullptr);
    explicit ZrRadioButton(const QString &text, QWidget *parent = nullptr);
    ~ZrRadioButton() override;

    QVariant getRoleData(int role) const;
    void setRoleData(int role, QVariant value);

private:
    ZrFieldRoles m_roles;
};
