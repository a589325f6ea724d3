#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QComboBox>

class CheckBoxInMultiBox;
class ZrMultiComboEdit;
class ZrMultiComboList;

/// A combo box whose popup is a list of check boxes: any number of items can be ticked, and the closed box
/// shows their texts joined by ";".
///
/// Shape:     rows are appended; row, data and text of an item are read by its index. Items with the same
///            text or data are kept apart. Whether an item is selected is the state of its check box and is
///            kept nowhere else. The base's current index has no meaning here. Not supported: another model,
///            view or line edit than the box's own.
/// Units:     indexes from 0; widths in logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    an index out of range is ignored or gives an empty result; nothing is reported.
class ZRWIDGET_EXPORT ZrMultiComboBox : public QComboBox, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    explicit ZrMultiComboBox(QWidget *parent = nullptr);
    ~ZrMultiComboBox() override;

    // Instead of the base's members of these names: an item is more than an entry of the model.
    void addItem(const QString &text, const QVariant &data = QVariant());
    /// Each text is its item's data too.
    void addItems(const QStringList &texts);
    void clear();
    void removeItem(int index);
    QVariant itemData(int index, int role = Qt::UserRole) const;
    QString itemText(int index) const;

    /// Ticks or unticks a row without a signal.
    void selectIndex(int index, bool selected);
    /// The same for many rows: the shown text is joined once, not once for each.
    void selectIndexes(const QList<int> &indexes, bool selected);
    bool isIndexSelected(int index) const;
    /// The ticked rows in ascending order, their data, their texts.
    QList<int> getCurrentSelectedIndex() const;
    QList<QVariant> getCurrentSelectedIndexData() const;
    QList<QString> getCurrentSelectedIndexText() const;

    /// What the closed box shows when nothing is ticked; empty by default.
    void setNoSelectedText(const QString &text);
    /// Fixes the width of the popup's list.
    void resizeListWidth(int widthPx);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void showPopup() override;
    void hidePopup() override;
    void loadSkin(const QVariant &css) override;

public slots:
    /// A row was ticked or unticked by the user: its check box is the sender.
    void stateChanged(int state);

signals:
    /// The joined texts, after the user ticked or unticked a row.
    void signalCurrentSelectedChanged(QString text);
    /// The row that the user ticked or unticked; comes first, while the box still shows the old texts.
    void signalIndexClicked(int index);

private slots:
    void packShowText();

private:
    Q_DISABLE_COPY(ZrMultiComboBox)
    void listenTo(const CheckBoxInMultiBox *box);
    /// True when the row's state was another one.
    bool setTicked(int index, bool ticked);

    ZrMultiComboList *m_list;          // our child through the base: model and view
    QPointer<ZrMultiComboEdit> m_edit; // our child: the editor; the base may end it
    QString m_selectedText;            // the joined texts
    QString m_noSelectedText;
};
