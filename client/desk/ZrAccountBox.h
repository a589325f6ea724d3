#pragma once

#include <QtCore/QVariantMap>
#include <QtWidgets/QComboBox>

/// Chooses the account whose data a plugin shows.
///
/// Shape:     "All accounts" and then the user's trading accounts with their names.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    an account that isn't the user's chooses nothing.
class ZrAccountBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ZrAccountBox(QWidget *parent = nullptr);

    /// Chooses it as a plugin asked to: signalAccountChosen is for the user's own choice.
    void showAccount(const QVariantMap &account);

signals:
    /// Empty for all accounts.
    void signalAccountChosen(const QVariantMap &account);

private:
    void fill();
};
