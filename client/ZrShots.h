#pragma once

#include <QtCore/QString>

class QMainWindow;

/// Pictures of a window: one of each dock and one of the whole.
///
/// Errors: one sentence or nothing; each file is written beside its place and renamed.
class ZrShots
{
public:
    /// Makes the folder when it is missing.
    static QString write(QMainWindow *window, const QString &folder);
};
