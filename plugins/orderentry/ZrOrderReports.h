#pragma once

#include <QtCore/QVariantMap>
#include <QtWidgets/QWidget>

class ZrTableView;

/// The orders that left the form, a row each: what became of them, the newest state only.
///
/// Shape:     keyed by the order's own number. Columns: order, security, side, price, quantity, filled,
///            status.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a record without a number is ignored.
class ZrOrderReports : public QWidget
{
    Q_OBJECT
public:
    explicit ZrOrderReports(QWidget *parent = nullptr);

    /// An accepted order or a report on one.
    void take(const QVariantMap &order);
    ZrTableView *view() const { return m_view; }

private:
    ZrTableView *const m_view; // our child
};
