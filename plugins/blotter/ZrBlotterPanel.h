#pragma once

#include "ZrGridSetting.h"
#include "ZrMessageInbox.h"

#include <QtCore/QVector>
#include <QtWidgets/QWidget>
#include <zrutils/ZrRecordTypes.h>

class ZrOrderBatch;
class ZrTableView;

/// What a batch of messages did to the grid.
///
/// Units: nanoseconds of the process's steady clock.
struct ZrAppliedBatch
{
    qint64 number = -1; // the highest one of the messages
    qint64 appliedNs = 0;
    QVector<qint64> sentNs;    // of each message
    QVector<qint64> inSightNs; // of those whose rows the next frame shows
};

/// The order blotter: orders and their reports in a grid, live.
///
/// Shape:     columns by a column file; a row for each order, keyed by order number and symbol.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a broken column file gives an empty grid and its parser's warning.
class ZrBlotterPanel : public QWidget
{
    Q_OBJECT
public:
    explicit ZrBlotterPanel(const QString &columnFile, QWidget *parent = nullptr);

    ZrTableView *view() const { return m_view; }
    /// Heads, widths and bands anew, as after a change of the serial column.
    void applyColumns();
    /// Shows open orders only, through the grid's filter; filters of other columns stay.
    void setOpenOnly(bool openOnly);
    /// Shows the orders of one trading account only; empty for all.
    void setAccount(const QString &tradingAccount);
    void setSummaryShown(bool shown);
    /// New rows come into sight.
    void setFollowing(bool following);

    void applyMessages(const std::vector<ZrInboxMessage> &messages);
    /// Selects the newest order of the security and brings it into sight; nothing without one.
    void selectSecurity(const QString &symbol);

signals:
    void signalApplied(const ZrAppliedBatch &batch);
    /// The user has clicked on an order of the security, or pressed return on it.
    void signalSecurityChosen(const QString &symbol);

private:
    ZrGridSetting translated(const ZrGridSetting &grid) const;
    void colourRow(const QVariantMap &message, RecordData *row) const;
    void recolour();
    void tellSecurity(const QModelIndex &index);
    void setColumnFilter(int column, const QStringList &values);
    std::vector<bool> rowsInSight(const RecordDataList &rows) const;
    void tellApplied(const std::vector<ZrInboxMessage> &messages, const ZrOrderBatch &batch,
                     const RecordDataList &rows);
    QList<int> columnsWithoutSum() const;
    int columnOf(const QString &field) const;
    QStringList keyFields() const;

    ZrGridSetting m_grid;
    ZrTableView *m_view;
    int m_sideColumn = -1;
    int m_statusColumn = -1;
    int m_symbolColumn = -1;
    int m_accountColumn = -1;
    QStringList m_keyFields; // fields of a message that name its order
};
