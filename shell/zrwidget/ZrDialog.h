#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtWidgets/QDialog>

class ZrDialogPrivate;

/// The client's frameless dialog: hosts a plugin or any other widget under a title bar of its own.
///
///     ZrDialog
///      +-- frame_main                  shadow frame, or a plain one
///           +-- frame_title            label_title, what a plugin adds, pushButton_fresh, pushButton_close
///           +-- frame_work             the content
///           +-- bottom                 pushButton_ok, pushButton_cancel
///
/// Shape:     the title moves the dialog. A resizable one is resized at its edges and corners. exec() and
///            done() give 1 for OK and 0 for cancel, escape or closing. It's modal in exec() only.
/// Units:     logical px; `buttons` is a bit mask, 1 OK, 2 cancel; position modes are those of
///            ZrWindowPlace: 0 leaves the dialog, 1 centres it on the parent, 2 on the topmost ancestor, and
///            from 3 on it's centred on the screen.
/// Ownership: normal QWidget parent rules; the content and what is added to the title become the dialog's.
///            A content that is destroyed first leaves an empty dialog. Closing doesn't delete the dialog.
/// Threads:   GUI thread only.
/// Errors:    null widgets are ignored. Texts are shown as they are, never read as markup.
class ZRWIDGET_EXPORT ZrDialog : public QDialog, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    // The style sheet writes these; they read as 0.
    Q_PROPERTY(int margin READ margin WRITE setMarginPropety)
    Q_PROPERTY(int radius READ radius WRITE setRadiusPropety)
    Q_PROPERTY(int titleheight READ titleheight WRITE setTitleHeight)
public:
    /// `closeOnCloseButton` false: the button in the title hides the dialog instead of closing it.
    ZrDialog(const QString &title, bool closeOnCloseButton, QWidget *parent, int buttons, bool showTitle,
             bool hasShadow, int positionMode);
    ~ZrDialog() override;

    void loadSkin(const QVariant &css) override;

    /// What OK and cancel do. OK asks a plugin whether it may be closed, and leaves the dialog open when it
    /// may not.
    virtual void doAccepted();
    virtual void doRejected();

    /// Puts the content into the work frame and takes its size. What was there before stays there, and goes
    /// only by its owner's hand, but the dialog's keys and edges follow the new one from now on.
    void addWidget(QWidget *widget);
    void setTitle(const QString &title);
    void setTitleHeight(int heightPx);
    /// Whether the user may resize the dialog.
    void setResizeFlag(bool resizable);
    /// Whether the dialog follows the size of its content.
    void setAutoResizeByCenterWidget(bool follow);
    /// What the close button asks first; empty for no question.
    void setCloseConfirmTip(const QString &tip);
    /// 1 OK, 2 cancel: has the focus when the dialog opens.
    void setDefaultFocusButton(int button);
    /// Whether escape closes the dialog.
    void setEscBtnEnable(bool enable);

    int margin() const { return 0; }
    /// Of the shadow frame; nothing without one.
    void setMarginPropety(int marginPx);
    int radius() const { return 0; }
    void setRadiusPropety(int radius);
    int titleheight() const { return 0; }

public slots:
    // A plugin's signals come here.
    void slotClosePluginWidget();
    /// Ends the dialog with 0 or 1; other codes are ignored.
    void slotPluginDialogExecReturn(int iCode);
    void slotPluginWidgetSizeChanged();
    /// Into the title, before the two buttons.
    void slotAddPluginDialogTitleWidget(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    // Names that the interface has; connected by hand.
    void on_pushButton_close_clicked(); // clazy:exclude=connect-by-name
    void on_pushButton_fresh_clicked();
    void on_pushButton_ok_clicked();
    void on_pushButton_cancel_clicked();

private:
    void connectParts();
    bool mayCloseByButton();

    Q_DISABLE_COPY(ZrDialog)
    ZrDialogPrivate *const d; // our child
    QString m_closeConfirmTip;
};
