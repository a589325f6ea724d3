#pragma once

#include "zrwidget_global.h"

#include <QtGui/QColor>
#include <QtWidgets/QFrame>

class QPainterPath;

/// The body of a frameless window with a soft edge around it.
///
/// Shape:     a rounded body inside a margin, and in the margin one ring for each pixel, fainter outwards.
///            The rings take the border colour while the frame is selected or has the focus.
///
///     +-------------------+
///     | margin: rings     |
///     |  +-------------+  |
///     |  | body        |  |
///     |  +-------------+  |
///     +-------------------+
///
/// Units:     margin in logical px; radius in percent of half the shorter side, 0 for square corners.
/// Ownership: normal QWidget parent rules. A layout on the frame needs margins of its own to stay on the
///            body.
/// Threads:   GUI thread only.
/// Errors:    none; what doesn't fit into the frame is not painted.
class ZRWIDGET_EXPORT ZrShadowFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int margin READ margin WRITE setMargin DESIGNABLE true)
    Q_PROPERTY(int radius READ radius WRITE setRadius DESIGNABLE true)
    Q_PROPERTY(QColor bgColor READ bgColor WRITE setBgColor DESIGNABLE true)
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor DESIGNABLE true)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor DESIGNABLE true)
public:
    explicit ZrShadowFrame(QWidget *parent = nullptr);

    int margin() const { return m_margin; }
    void setMargin(int marginPx);
    int radius() const { return m_radius; }
    void setRadius(int radius);
    QColor bgColor() const { return m_bgColor; }
    void setBgColor(QColor color);
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(QColor color);
    QColor shadowColor() const { return m_shadowColor; }
    void setShadowColor(QColor color);
    bool getSelected() const { return m_selected; }
    void setSelected(bool selected);

    /// Follows the focus of the frame. Only the frame itself is watched; who wants the focus of a part to
    /// show installs the frame as that part's event filter too.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    /// Body and rings, for subclasses that paint more.
    void paintBasis(QPainter &painter);

private:
    QPainterPath outline(int insetPx) const;
    void setFocusShown(bool shown);

    int m_margin = 10;
    int m_radius = 6;
    QColor m_bgColor; // invalid, which paints black, until a skin gives one
    QColor m_borderColor{QStringLiteral("#4fb7ff")};
    QColor m_shadowColor{0, 0, 0, 50};
    bool m_selected = false;
    bool m_focused = false;
};
