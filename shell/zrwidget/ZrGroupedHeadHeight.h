#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

class FreezeTableView;

/// Gives a grouped head the height of its two bands.
///
/// Only a head that was laid out has a height to double, so a timer waits for it.
///
/// Shape:     one per view; start() acts once in the view's life.
/// Units:     heights in logical px.
/// Ownership: a child of the view's private object, whose shared fields it writes.
/// Threads:   GUI thread only.
/// Errors:    none.
class ZRWIDGET_PRIVATE_EXPORT ZrGroupedHeadHeight : public QObject
{
    Q_OBJECT
public:
    /// `timerId` and `isDoubled` are shared fields of the owner.
    ZrGroupedHeadHeight(FreezeTableView *table, int *timerId, bool *isDoubled, QObject *parent);

    void start();
    /// For a new style sheet: forgets the height, and takes it anew from the head as it then is.
    void release();
    void takeAgain();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void doubleHeight();

    FreezeTableView *const m_table; // borrowed
    int *const m_timerId;           // -1 when none runs
    bool *const m_isDoubled;
};
