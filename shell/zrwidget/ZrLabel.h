#pragma once

#include "ZrFieldRoles.h"
#include "zrwidget_global.h"

#include <QtWidgets/QLabel>

/// A label that carries its form's data and has two switches for style sheets.
///
/// Shape:     a QLabel with a role map (see ZrFieldRoles) and the properties below, which select rules:
///            ZrLabel[checked="true"], ZrLabel[textColorFlag="warn"]. What a flag means is the sheet's
///            affair.
///            Plain text; one beyond the bound of ZrPlainText is shown as its beginning, and text() is that.
///            The label never claims much of its window's width: a text too wide for it is cut off.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a role that was never set reads as an invalid variant.
/// Not supported: rich text, unless the caller sets the text format and hands it to the base.
class ZRWIDGET_EXPORT ZrLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)
    Q_PROPERTY(QString textColorFlag READ textColorFlag WRITE setTextColorFlag)
public:
    explicit ZrLabel(QWidget *parent = nullptr);
    explicit ZrLabel(const QString &text, QWidget *parent = nullptr);
    ~ZrLabel() override;

    /// Hides the base's: names come from outside.
    void setText(const QString &text);
    QSize minimumSizeHint() const override;

    bool isChecked() const;
    void setChecked(bool checked);
    QString textColorFlag() const;
    void setTextColorFlag(const QString &flag);

    QVariant getRoleData(int role) const;
    void setRoleData(int role, QVariant value);

private:
    void applySheet();

    ZrFieldRoles m_roles;
    bool m_checked = false;
    QString m_textColorFlag;
};
