#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QPushButton>

/// The question mark in a title: opens help on what the window asks.
///
/// Shape:     a flat button with the skin's help picture in its middle; a click is clicked().
/// Units:     size in logical px; the picture is 16 by 16.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a skin without the picture shows an empty button, which still works.
class ZRWIDGET_PRIVATE_EXPORT ZrHelpMark : public QPushButton
{
    Q_OBJECT
public:
    explicit ZrHelpMark(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};
