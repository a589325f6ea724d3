#pragma once

#include "ZrShowcasePage.h"

#include <QtWidgets/QLabel>

/// Picture of a widget in a state that needs the mouse or the keyboard.
///
/// Shape:     take() makes the widget, brings it into the state, grabs it and ends it.
/// Units:     the picture has the pixel ratio of the screen that this stands on.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a maker that makes nothing leaves an empty picture and a warning.
class ZrShowcasePicture : public QLabel
{
    Q_OBJECT
public:
    ZrShowcasePicture(const ZrShowcasePage::Maker &make, ZrShowcasePage::State state,
                      QWidget *parent = nullptr);

    void take();

private:
    const ZrShowcasePage::Maker m_make;
    const ZrShowcasePage::State m_state;
};
