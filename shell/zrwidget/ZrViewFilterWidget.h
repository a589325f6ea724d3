#pragma once

#include "ZrFilterChoices.h"
#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtCore/QModelIndex>
#include <QtWidgets/QFrame>

class QLineEdit;
class ZrDialog;
class ZrTableView;

/// The panel below a filter button: a search line above a check list of the column's choices, with "Select
/// all" in front.
///
///     +--------------------+
///     | search             |
///     | [x] Select all     |
///     | [x] 600000.SH      |
///     | [ ] 600001.SH      |
///     +--------------------+
///
/// Shape:     filled anew for each opening; the ticks come from the filter in force and each change of them
///            is told at once. The search hides choices, it doesn't untick them. A press outside hides the
///            dialog that the panel stands in, and so does escape.
/// Units:     columns are logical numbers; sizes in logical px.
/// Ownership: normal QWidget parent rules. What signalFilterStatusChanged reaches may end the grid: who owns
///            the panel must not delete it while isTelling().
/// Threads:   GUI thread only.
/// Errors:    a column without choices shows "Select all" alone. Texts are shown as they are, never read as
///            markup; one that is wider than the panel may become is cut with an ellipsis.
class ZRWIDGET_PRIVATE_EXPORT ZrViewFilterWidget : public QFrame, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    explicit ZrViewFilterWidget(QWidget *parent);
    ~ZrViewFilterWidget() override;

    void loadSkin(const QVariant &css) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Refills the panel and gives it its size. `choices` are the caller's own for the column; without any
    /// they are worked out from `cells`.
    void updateFilterData(int column, int valueType, const QList<ItemRoleMap> &cells,
                          const QList<QList<QVariantMap>> &currentFilter, const RecordDataList &choices);
    /// The width that updateFilterData() keeps within, however long the texts.
    void setMostWidth(int widthPx);

    int column() const { return m_column; }
    /// For a column with a match function.
    QList<ItemRoleMap> getCheckedRecordList() const;
    /// For all other columns.
    QList<QList<QVariantMap>> getFilterConditionList() const;
    /// Whether a change of ticks is being told.
    bool isTelling() const { return m_telling > 0; }

signals:
    /// A tick changed.
    void signalFilterStatusChanged();

public slots:
    /// The check box of a row of the list changed; the first argument is the row, whatever its name says
    /// where the signal comes from.
    void slotSignalRowCheckStateChanged(int row, int state);
    void slotViewClicked(QModelIndex index);
    void slotSearchTextChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void createSearchLine();
    void createList();
    void connectParts();
    void connectKeys();
    void leavePlugin();
    void fitTo(const QVector<QString> &texts);
    void showList(RecordDataList choices, const RecordData &headRow);
    RecordData headRow() const;
    RecordData headRow(bool isTicked) const;
    bool isHeadRow(int row, const RecordData &record) const;
    bool isOutside(const QObject *object) const;
    ZrDialog *dialog() const;
    void closeDialog();
    void goToList();
    void toggleCurrent();
    void tell();

    int m_column = -1;
    int m_valueType = 0;
    QLineEdit *m_searchEdit = nullptr;
    ZrTableView *m_tableView = nullptr;
    ZrFilterChoices m_choices;
    QString m_allText; // of the head row, as it stands in the list
    int m_mostWidth;   // px
    int m_telling = 0; // depth of signalFilterStatusChanged
};
