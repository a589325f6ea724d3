#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>
#include <QtCore/QVector>

/// Tells a view which rows a reset is about.
///
/// A batch of updates is told by one reset, at which the toolkit's views paint all they show anew. Most of
/// such batches touch no row in sight. The private object of a grid's model implements this and names it in
/// Q_INTERFACES, so that a view can leave alone what shows the same as before.
///
/// Ownership: the model owns its private object; a caller asks again at each use.
/// Threads:   GUI thread only.
/// Errors:    of() gives null for a model that tells nothing.
class ZRWIDGET_PRIVATE_EXPORT ZrTouchedRows
{
public:
    virtual ~ZrTouchedRows();

    static const ZrTouchedRows *of(const QObject *model);

    /// View rows whose cells the reset under way changed, in no order; all others, their number and the
    /// columns are as before. Null when there is no reset or it may have changed anything.
    virtual const QVector<int> *touchedRows() const = 0;

protected:
    ZrTouchedRows() = default;

private:
    Q_DISABLE_COPY(ZrTouchedRows)
};

Q_DECLARE_INTERFACE(ZrTouchedRows, "zrwidget.ZrTouchedRows/1.0")
