#pragma once

#include "zrwidget_global.h"

#include <QtCore/QSize>

/// How much of its window a label may claim that shows a text from outside: as much as a long name needs, so
/// that forms keep their names whole, and no more, so that no text widens its window.
///
/// Units:   logical px.
/// Threads: any.
class ZRWIDGET_PRIVATE_EXPORT ZrLabelRoom
{
public:
    static constexpr int mostPx = 320;

    /// The least size of a label whose text needs `wholeText`.
    static QSize least(const QSize &wholeText);

private:
    ZrLabelRoom() = delete;
};
