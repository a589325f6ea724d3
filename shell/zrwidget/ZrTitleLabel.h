#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QLabel>

/// The title of a frameless window: one line of plain text, cut with an ellipsis where the window is too
/// narrow for it. The whole of a cut title is its tool tip.
///
/// Units:     logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none; a title beyond the bound of a caption is stored up to there.
class ZRWIDGET_PRIVATE_EXPORT ZrTitleLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ZrTitleLabel(QWidget *parent = nullptr);

    void setTitle(const QString &title);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isCut() const;
};
