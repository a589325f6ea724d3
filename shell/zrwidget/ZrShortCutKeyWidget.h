#pragma once

#include "zrwidget_global.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <memory>

/// One row of a page of shortcuts: what the shortcut does, the field in which the user presses it, a hint.
///
///     | description | Ctrl+Shift+A         | hint |
///
/// Shape:     a combination is collected while keys go down and reported when the first of them comes up. It
///            is a list of decimal Qt key codes: Ctrl, Alt and Shift first, in this order, however they were
///            pressed; then the other keys in the order of their presses. See ZrKeyNames for the texts.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    keys without a name are dropped without a word, given ones and pressed ones.
/// Not supported: leaving the field by Tab, which is a key that can be part of a shortcut; the pointer, and a
///            page's own keys from any other field, lead out.
class ZRWIDGET_EXPORT ZrShortCutKeyWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ZrShortCutKeyWidget(QWidget *parent = nullptr);
    ~ZrShortCutKeyWidget() override;

    /// Shows a list of decimal key codes. They count as pressed: the next press adds to them, and the next
    /// release reports them.
    void setShortcutKey(const QVariant &keys);
    void setShortcutKeyDesc(const QString &description);
    QString getShortcutKeyDesc() const;
    /// A number for the caller; -1 at first.
    void setShortcutKeyId(int id);
    int getShortcutKeyId() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A combination is complete.
    void signalKeys(QStringList key);

private:
    class Form;

    void press(const QKeyEvent &event);
    void release(const QKeyEvent &event);
    void addKey(int key);

    const std::unique_ptr<Form> m_form;
    QStringList m_keys; // empty while no combination is being collected
    QString m_description;
    int m_shortcutKeyId = -1;
};
