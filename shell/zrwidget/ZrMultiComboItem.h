#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPointer>
#include <QtWidgets/QListWidgetItem>

class CheckBoxInMultiBox;

/// One row in the popup of a ZrMultiComboBox: its text, its data and the way to its check box.
///
/// Shape:     the data under Qt::UserRole, the text under TextRole. There is no text under Qt::DisplayRole:
///            the view would paint it under the check box.
/// Ownership: the list's, as with every item; the box is borrowed, and either may end first.
/// Threads:   GUI thread only.
/// Errors:    none.
class ZRWIDGET_PRIVATE_EXPORT ZrMultiComboItem : public QListWidgetItem
{
public:
    static constexpr int ItemType = QListWidgetItem::UserType + 0x5a4d;
    static constexpr int TextRole = Qt::UserRole + 1;

    ZrMultiComboItem(const QString &text, const QVariant &data);
    ~ZrMultiComboItem() override;

    /// The item as one of ours; null for none, and for a row that somebody put into the model as a plain one.
    static ZrMultiComboItem *of(QListWidgetItem *item);
    /// The item that a check box stands in; null when it isn't or no longer one of a row.
    static ZrMultiComboItem *ofBox(const QObject *box);

    void setBox(CheckBoxInMultiBox *box);
    CheckBoxInMultiBox *box() const;
    bool isTicked() const;
    QString text() const;

private:
    Q_DISABLE_COPY(ZrMultiComboItem)
    QPointer<CheckBoxInMultiBox> m_box;
};
