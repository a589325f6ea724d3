#pragma once

#include <QtCore/QString>

class QMainWindow;
class ZrShowcaseDocks;

/// Pictures of a window: one of each dock, one of the whole, one of each page of the showcase.
///
/// Errors: one sentence or nothing; each file is written beside its place and renamed.
class ZrShots
{
public:
    /// Makes the folder when it is missing.
    static QString write(QMainWindow *window, const QString &folder);
    /// One of each page of the showcase at its whole height, "showcase-<id>.png". Opens each page's dock and
    /// leaves the last one in front.
    static QString writePages(ZrShowcaseDocks *docks, const QString &folder);
};
