#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtGui/QColor>
#include <QtWidgets/QPushButton>

/// A push button that shows as checked while the pointer is over it or it has the focus.
///
/// Shape:     a checkable QPushButton. Its checked state is a state of display, not a user's choice: it
/// drives
///            the :checked rules of the sheet. A click toggles it until pointer or focus come or go again.
/// Units:     margin and radius in logical px.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    none.
/// Not supported: use as a real two-state button; button groups.
class ZRWIDGET_EXPORT ZrPushButton : public QPushButton, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    // For sheets and subclasses that paint a frame of their own; this class leaves the painting to the sheet.
    Q_PROPERTY(int margin READ margin WRITE setMargin)
    Q_PROPERTY(int raduis READ raduis WRITE setRaduis)
    Q_PROPERTY(QColor bgColor READ bgColor WRITE setBgColor)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
public:
    explicit ZrPushButton(QWidget *parent = nullptr);
    explicit ZrPushButton(const QString &text, QWidget *parent = nullptr);
    ~ZrPushButton() override;

    int margin() const;
    void setMargin(int marginPx);
    int raduis() const;
    void setRaduis(int radiusPx);
    QColor bgColor() const;
    void setBgColor(const QColor &color);
    QColor borderColor() const;
    void setBorderColor(const QColor &color);

    void loadSkin(const QVariant &css) override;
    /// Follows focus and pointer of the button and of what stands in it. Installed on the button alone; who
    /// puts widgets into a button installs it on them as well.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setHighlighted(bool highlighted);
    template<typename Value>
    void change(Value &stored, const Value &value);

    int m_marginPx;
    int m_radiusPx;
    QColor m_bgColor; // invalid: the sheet's
    QColor m_borderColor;
    QColor m_shadowColor; // of the soft edge that goes with the border; the same for every skin
    bool m_isHighlighted; // by the last change of pointer or focus
};
