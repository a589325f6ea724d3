#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

#include <QtWidgets/QWidget>

class ZrViewBasePrivate;

/// What the plugin frame sees of every grid: caption, columns, displayed rows, export.
///
/// Shape:     base of the grids; the frame handles all of them through this class.
/// Units:     columns are logical numbers ("Head_ColumnIndex").
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none of its own.
class ZRWIDGET_EXPORT ZrViewBase : public QWidget
{
    Q_OBJECT
public:
    explicit ZrViewBase(QWidget *parent = nullptr);
    ~ZrViewBase() override;

    // The order of the virtual operations is part of the binary interface.
    /// Hides exactly these logical columns.
    virtual void setPluginViewColumnVisiableProperity(const QList<int> &hiddenColumns) = 0;
    /// Logical columns in the order shown.
    virtual QList<int> getHeadLogicIndexList() = 0;
    /// Shows the columns in this order of logical numbers.
    virtual void setPluginViewHeadLogicIndexProperity(const QList<int> &order) = 0;
    virtual HeadList getHeadList() = 0;
    /// Heads that the plugin's settings have not hidden.
    virtual HeadList getVisibleHeadData() = 0;
    /// The rows as shown, filter applied.
    virtual RecordDataList getViewCurrentDisplayData() = 0;
    /// Shows the grid's own settings; a grid without any does nothing.
    virtual void showCfgPanel();
    /// Exports by the grid's own means; false leaves the export to the frame.
    virtual bool exportViewData();

    QString GetViewCaption() const;
    void SetViewCaption(const QString &caption);
    /// Whether a click anywhere in a row, and not only on its check box, ticks it.
    bool GetRowCheckOnClickEnable() const;
    void SetRowCheckOnClickEnable(bool enable);
    /// Whether the plugin's settings menu offers this grid's own settings.
    bool canCfgFromPluginSetting() const;

protected:
    void setCanCfgFromPluginSetting(bool can);

private:
    Q_DISABLE_COPY(ZrViewBase)
    ZrViewBasePrivate *const d; // owned: our QObject child
};
