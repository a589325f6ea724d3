#pragma once

#include "ZrFilterOpener.h"

#include <QtCore/QRect>
#include <QtCore/QVariant>

class QWidget;
class ZrDialog;
class ZrHeaderViewPrivate;
class ZrViewFilterWidget;

/// Joins the heads of a table to the popup of their filter buttons.
///
/// Shape:     one popup for a head and the heads of side tables that share its state, made at the first use.
/// It is
///            the child of the head that opened it first and answers to the one that opened it last.
/// Units:     as ZrFilterOpener; places on the screen are global logical px.
/// Ownership: owned by the grid. A popup goes with its head; one that is just telling a choice when the head
/// goes
///            (a slot has ended the grid) is hidden and deleted when its own click is over.
/// Threads:   GUI thread only.
/// Errors:    as ZrFilterOpener.
class ZRWIDGET_PRIVATE_EXPORT ZrHeaderFilter : public ZrFilterOpener
{
public:
    explicit ZrHeaderFilter(ZrTableViewPrivate *grid);

    void open(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect) override;
    void takeChoice(ZrHeaderView *head) override;

private:
    using Groups = QList<QList<QVariantMap>>;

    static bool isUsable(const ZrHeaderViewPrivate &shared);
    static void makePopup(ZrHeaderView *head);
    static void outlive(ZrDialog *dialog, const ZrViewFilterWidget *panel);
    /// Where windows may lie on the screen that the head begins on.
    static QRect screenOf(const QWidget *head);
    void fill(ZrViewFilterWidget *panel, int logicalColumn) const;
    Groups store(const ZrViewFilterWidget *panel) const;

    ZrTableViewPrivate *const m_grid; // not owned: it owns us
};
