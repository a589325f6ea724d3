#pragma once

#include "ZrFieldRoles.h"
#include "ZrFloatingTip.h"
#include "zrwidget_global.h"

#include <QtWidgets/QLineEdit>

/// An editor of amounts and quantities that reads the number to the user, in Chinese groups, while it is
/// typed.
///
/// Shape:     plain digits in the field, at most 13 before the full stop and three behind it (16 where there
///            is no full stop); the reading floats over the field's lower edge and is its tool tip. See
///            ZrMoneyText for the reading, ZrFieldRoles for the role map.
/// Units:     whatever the caller counts in; nothing is converted or rounded.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    keys that would spoil the number are refused. setText() takes any text, as in QLineEdit; what
/// is
///            no number is read plainly, never as markup.
/// Not supported: negative amounts; deleting the edit from signalComplete, use deleteLater().
class ZRWIDGET_EXPORT ZrMoneyQtyLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit ZrMoneyQtyLineEdit(QWidget *parent = nullptr);
    ~ZrMoneyQtyLineEdit() override;

    QVariant getRoleData(int role) const;
    void setRoleData(int role, QVariant value);

signals:
    /// Return or Enter was pressed; the text is the plain digits of the field, an unfinished number too.
    void signalComplete(QString text);

protected slots:
    /// Shows the reading of `s`. Runs at each change of the text, whether by a key or by a call.
    void slotTextChanged(QString s);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    ZrFieldRoles m_roles;
    ZrFloatingTip m_tip; // the reading
};
