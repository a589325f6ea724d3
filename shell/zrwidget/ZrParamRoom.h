#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class QWidget;

/// How much of a form an editor may claim that shows a text from outside: a long text is cut off and widens
/// neither its form nor the window.
///
/// Shape:     a text of usual length leaves the editor's least width to the toolkit, which shows it whole.
/// Units:     longestCharacters in characters (UTF-16 units), leastPx in logical px.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrParamRoom
{
public:
    static constexpr int longestCharacters = 32;
    static constexpr int leastPx = 120;

    /// Lets an editor that shows this text become narrower than the text is.
    static void bound(QWidget *editor, const QString &text);

private:
    ZrParamRoom() = delete;
};
