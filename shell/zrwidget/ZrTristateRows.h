#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

/// Marks a model whose rows have three check states: unchecked 0, partly checked 1, checked 2 under the raw
/// role of column 0.
///
/// The delegate paints the check column of tables and of trees, and the two differ in picture and place. A
/// table model is known by its class; a tree model inherits this mark and names it in Q_INTERFACES, so that
/// the delegate needs no header of the tree.
/// Threads: GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrTristateRows
{
public:
    virtual ~ZrTristateRows();

protected:
    ZrTristateRows() = default;

private:
    Q_DISABLE_COPY(ZrTristateRows)
};

Q_DECLARE_INTERFACE(ZrTristateRows, "zrwidget.ZrTristateRows/1.0")
