#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QMainWindow;
class ZrPluginDock;

/// A picture of two linked plugins at work: a row of the first one's grid is clicked, the second one follows,
/// and a filter popup stands open.
///
/// Errors: one sentence or nothing. Fewer than two plugins with grids that hold rows give no picture.
class ZrLinkedShot
{
public:
    /// "linked.png" in the folder, which must be there. Rows are chosen then; a head whose first columns have
    /// no filter may be sorted too, as a press beside the button does.
    static QString write(QMainWindow *window, const QList<ZrPluginDock *> &docks, const QString &folder);
};
