#pragma once

#include "ZrTableView.h"
#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>

class ZrTableViewPrivate;

/// The summary line under a grid: its table and the row that it shows.
///
/// A live grid changes many thousand times a second, and each change makes the row stale. So a change only
/// marks it; the row is made when somebody reads it, and the table is told once per frame.
///
/// Shape:     one per view; the parts are shared fields of the view's private object and exist while enabled.
/// Units:     logical columns.
/// Ownership: a child of the view's private object; the parts go by deleteLater, since a call can come from
///            one of their own signals.
/// Threads:   GUI thread only.
/// Errors:    without the line every change does nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrTableSummary : public QObject
{
    Q_OBJECT
public:
    explicit ZrTableSummary(ZrTableViewPrivate *viewPrivate);
    ~ZrTableSummary() override;

    void setEnabled(bool enable, const QList<int> &noSumColumns);
    /// The rows have changed.
    void markStale();
    void setOverride(const RecordData &record);
    void setGenerator(int column, ZrSumGenerateFunction function);
    void removeGenerator(int column);
    void setLineHeight();
    /// The row as it has to be now: sums, then the caller's cells, then the generated ones.
    RecordData record() const;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void createParts();
    void connectBars();
    void copySettings();
    void removeParts();
    void refreshRow();

    ZrTableViewPrivate *const d;
    QBasicTimer m_frame; // runs while the table has not been told of a change
    bool m_isStale = false;
};
