#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QMainWindow;
class ZrPluginDock;

/// A picture of two linked plugins at work: a row of the first one's grid is clicked, the second one follows, and
/// a filter popup stands open.
///
/// Errors: one sentence or nothing. Fewer than two plugins with grids that hold rows give no picture.
class ZrLinkedShot
{
public:
    /// "linked.png" in the folder, which must be there. Puts the window back as it was, but for the rows that
    /// are chosen then.
    static QString write(QMainWindow *window, const QList<ZrPluginDock *> &docks, const QString &folder);
};
