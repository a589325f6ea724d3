#pragma once

#include "ZrShowcasePage.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QGraphicsScene>

/// Brings a widget into a state and takes its picture, without a window on the screen.
///
/// Shape:     the widget stands in a scene of its own that holds activation and focus like a window: it
/// really
///            has the focus, while the user's own focus stays where it is.
/// Units:     widths in logical px; `ratio` device px for each of them.
/// Ownership: owns the widget until the stage goes.
/// Threads:   GUI thread only.
class ZrShowcaseStage
{
public:
    /// `sheets` are those of the windows that the widget would stand in, outermost first.
    ZrShowcaseStage(QWidget *widget, const QStringList &sheets);

    void enter(ZrShowcasePage::State state);
    QPixmap picture(qreal ratio) const;

private:
    void hover();
    void focus();
    void press();

    QGraphicsScene m_scene;
    QWidget *const m_widget; // the scene's, through its floor
};
