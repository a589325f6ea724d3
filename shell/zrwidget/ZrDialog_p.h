#pragma once

#include "ZrDialogContent.h"
#include "ZrDialogParts.h"
#include "ZrTrackedWidgets.h"
#include "zrwidget_global.h"
#include "ZrWindowDrag.h"
#include "ZrWindowResize.h"

#include <QtCore/QObject>
#include <QtCore/QRect>
#include <QtCore/QString>

class QEvent;
class QMouseEvent;
class ZrDialog;

/// What a dialog is made of, and how it answers to the mouse.
///
/// Units:     global logical px.
/// Ownership: a child of its dialog; the parts are the dialog's children.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrDialogPrivate : public QObject
{
    Q_OBJECT
public:
    explicit ZrDialogPrivate(ZrDialog *facade);

    // Shared: the family may read, only this pair writes.
    QString title;
    int buttons = 0;                // 1 OK, 2 cancel
    bool closeOnCloseButton = true; // or else it hides
    bool showTitle = true;
    bool hasShadow = true;
    bool resizable = false;
    ZrShadowFrame *frameShadow = nullptr; // "frame_main" in the form with a shadow, or else null
    QFrame *frameMain = nullptr;          // "frame_main" in the form without a shadow, or else null
    QFrame *frameWork = nullptr;
    ZrDialogParts::Title head{};
    QPushButton *buttonFresh = nullptr;
    QPushButton *buttonClose = nullptr;
    QWidget *bottom = nullptr; // hidden without buttons
    ZrDialogParts::Buttons foot{};
    ZrDialogContent content;
    int positionMode = 0;        // as ZrWindowPlace counts
    QRect geometryBeforeMove;    // the last one seen while the user moved or resized the dialog
    int defaultFocusButton = 0;  // 1 OK, 2 cancel
    bool inCenterResize = false; // the dialog is taking its content's size
    bool autoResizeByCenterWidget = false;
    bool escEnabled = true;

    void createParts();
    void setContent(QWidget *widget);
    void setResizable(bool on);
    void addToTitle(QWidget *widget);
    void resizeByCenterWidget();
    void adjustGeometryByScreen();
    void focusDefault();
    /// What the dialog does at an event of one of its watched parts; true swallows the event.
    bool watch(const QObject *watched, QEvent *event);

private:
    void createTitle(QBoxLayout *column);
    void createBottom(QBoxLayout *column);
    void orderTabs();
    QFrame *mainFrame() const;
    void boundLeastHeight();
    int leastHeight() const;
    bool isEdgeGround(const QObject *watched) const;
    QRect grip() const;
    void press(const QObject *watched, QMouseEvent *event);
    void move(const QObject *watched, QMouseEvent *event);
    void release();

    ZrDialog *const q; // not owned: our QObject parent
    ZrWindowDrag m_drag;
    ZrWindowResize m_resize;
    ZrTrackedWidgets m_tracked;
    bool m_leastHeightBound = false; // by the screen, not by what is in the dialog
};
