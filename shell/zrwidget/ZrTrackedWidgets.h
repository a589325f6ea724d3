#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <vector>

/// Mouse tracking that is switched on for others and can be taken back.
///
/// Shape:     a widget that tracked the mouse by itself goes on doing so afterwards: heads show the cursor of
///            their column edges that way, lists the row under the mouse.
/// Ownership: widgets are borrowed and may go at any time.
/// Threads:   GUI thread only.
/// Errors:    null is ignored.
class ZRWIDGET_PRIVATE_EXPORT ZrTrackedWidgets
{
public:
    void track(QWidget *widget);
    /// The widget and all below it.
    void trackTree(QWidget *widget);
    void giveBack();

private:
    std::vector<QPointer<QWidget>> m_widgets; // that we switched on
};
