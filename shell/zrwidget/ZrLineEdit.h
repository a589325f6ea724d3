#pragma once

#include "ZrFieldRoles.h"
#include "zrwidget_global.h"

#include <QtWidgets/QLineEdit>

/// A line edit that carries its form's data and tells when the user has finished the entry.
///
/// Shape:     a QLineEdit with a role map; see ZrFieldRoles.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a role that was never set reads as an invalid variant.
/// Not supported: deleting the edit from signalComplete; use deleteLater().
class ZRWIDGET_EXPORT ZrLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit ZrLineEdit(QWidget *parent = nullptr);
    ~ZrLineEdit() override;

    QVariant getRoleData(int role) const;
    void setRoleData(int role, QVariant value);

signals:
    /// Return or Enter was pressed. Unlike returnPressed() it comes for a text that a validator would not
    /// accept too, and before the base has seen the key.
    void signalComplete(QString text);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    ZrFieldRoles m_roles;
};
