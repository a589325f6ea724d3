#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMargins>
#include <QtCore/QString>

class QBoxLayout;
class QFrame;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;
class ZrShadowFrame;
class ZrTitleLabel;

/// Builds what the library's frameless dialogs are made of, under the object names that style sheets and
/// plugins know.
///
///     window
///      +-- frame_main            shadow frame
///           +-- frame_title      label_title and marks
///           +-- frame_work       content
///           +-- row of buttons   in or below the work frame
///
/// Units:     logical px.
/// Ownership: what is built belongs to the widget that it is built into; results are borrowed.
/// Threads:   GUI thread only.
/// Errors:    a window that lacks the part that a setter is about is left as it is.
class ZRWIDGET_PRIVATE_EXPORT ZrDialogParts
{
public:
    static constexpr int TitleHeightPx = 31;

    /// Space in a row.
    struct Row
    {
        int spacingPx;
        QMargins margins;
    };
    struct Title
    {
        QFrame *frame;
        QHBoxLayout *row;
        ZrTitleLabel *label;
    };
    struct Buttons
    {
        QHBoxLayout *row;
        QPushButton *confirm;
        QPushButton *cancel;
    };

    /// A column without margins and space, named; on a widget, or to be added to another layout.
    static QVBoxLayout *column(const QString &name, QWidget *on = nullptr);
    /// The window's layout of that name with "frame_main" in it; the frame's own column stands clear of its
    /// edge.
    static ZrShadowFrame *addMainFrame(QWidget *window, const QString &layoutName);
    /// The same with a frame that has no shadow, for a window that is part of another picture.
    static QFrame *addPlainFrame(QWidget *window, const QString &layoutName);
    /// "frame_title" with "label_title".
    static Title addTitle(QBoxLayout *below, const QString &text, const Row &space);
    /// Space after the title's text, and what is added behind it stands at the right. The text keeps its
    /// width as long as there is room for it.
    static void addTitleSpace(const Title &title);
    /// A button of the title: known by its picture, which the style sheet gives, and its name. It takes
    /// neither the focus nor the return key.
    static QPushButton *addTitleButton(const Title &title, const QString &objectName, const QString &name);
    /// "frame_work", which takes the height that is left.
    static QFrame *addWork(QBoxLayout *below);
    /// The two buttons at the right of a row "horizontalLayout_2".
    static Buttons addButtons(QBoxLayout *below, const QString &confirmName, const QString &cancelName,
                              const Row &space);
    /// The same as the whole of a widget without a layout.
    static Buttons addButtons(QWidget *on, const QString &confirmName, const QString &cancelName,
                              const Row &space);
    /// A caller's text for a button: no shortcut, and no wider than a button may be; the whole of a longer
    /// one is its tool tip.
    static void setButtonText(QPushButton *button, const QString &text);
    /// Shows the buttons whose bit is set: 1 confirm, 2 cancel.
    static void showButtons(const Buttons &buttons, int bits);

    /// The margin of "frame_main", and one pixel more around what stands in it.
    static void setMargin(QWidget *window, int marginPx);
    static void setRadius(QWidget *window, int radius);
    static void setTitleHeight(QWidget *window, int heightPx);

private:
    ZrDialogParts() = delete;
};
