#pragma once

#include "ZrGridSetting.h"
#include "ZrLatencyMeter.h"
#include "ZrMessageInbox.h"

#include <QtWidgets/QWidget>
#include <zrutils/ZrRecordTypes.h>

class ZrOrderBatch;
class ZrTableView;

/// The order blotter: orders and their reports in a grid, live.
///
/// Shape:     columns by a column file; a row for each order, keyed by order number and symbol.
/// Units:     times of messages and frames in nanoseconds of ZrSteadyClock.
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
    /// Shows open orders only, through the grid's filter.
    void setOpenOnly(bool openOnly);
    void setSummaryShown(bool shown);
    /// New rows come into sight.
    void setFollowing(bool following);

    void applyMessages(const std::vector<ZrInboxMessage> &messages);
    /// A frame that showed the grid is on the screen.
    void frameShown();

    qint64 updatesApplied() const { return m_updates; }
    qint64 frames() const { return m_frames; }
    const ZrLatencyMeter &toModel() const { return m_toModel; }
    const ZrLatencyMeter &toPixel() const { return m_toPixel; }
    /// As toPixel(), since the last call of this.
    ZrLatencyMeter takeRecentToPixel();

private:
    ZrGridSetting translated(const ZrGridSetting &grid) const;
    void colourRow(const QVariantMap &message, RecordData *row) const;
    void recolour();
    void noteTimes(const std::vector<ZrInboxMessage> &messages, const ZrOrderBatch &batch,
                   const RecordDataList &rows);
    QList<int> columnsWithoutSum() const;
    int columnOf(const QString &field) const;
    QStringList keyFields() const;

    ZrGridSetting m_grid;
    ZrTableView *m_view;
    int m_sideColumn = -1;
    int m_statusColumn = -1;
    QStringList m_keyFields; // fields of a message that name its order
    qint64 m_updates = 0;
    qint64 m_frames = 0;
    ZrLatencyMeter m_toModel;
    ZrLatencyMeter m_toPixel;
    ZrLatencyMeter m_recent;
    std::vector<qint64> m_unshownNs; // when the messages were sent whose rows the next frame shows
};
