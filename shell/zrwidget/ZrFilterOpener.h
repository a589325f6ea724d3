#pragma once

#include "zrwidget_global.h"

#include <memory>

class QRect;
class ZrHeaderView;
class ZrTableViewPrivate;

/// Opens the choice list of a column's filter and takes over what is chosen there.
///
/// The list comes in a dialog, which is built above the grids. A grid knows this interface only; make() is
/// defined where the dialogs are, next to the class that implements it.
///
/// Units:     logical columns; rects in the head's coordinates, logical px.
/// Ownership: the grid owns its opener; heads are borrowed for the call.
/// Threads:   GUI thread only.
/// Errors:    a head that has opened no list has no choice to take over.
class ZRWIDGET_PRIVATE_EXPORT ZrFilterOpener
{
public:
    static std::unique_ptr<ZrFilterOpener> make(ZrTableViewPrivate *grid);

    virtual ~ZrFilterOpener();

    /// Opens the list of a column below `buttonRect`.
    virtual void open(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect) = 0;
    /// Puts the choice made in the head's list into effect. Grid, head and opener may be gone afterwards:
    /// what is told to others may end them.
    virtual void takeChoice(ZrHeaderView *head) = 0;

protected:
    ZrFilterOpener() = default;

private:
    Q_DISABLE_COPY(ZrFilterOpener)
};
