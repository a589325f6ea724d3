#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtWidgets/QDialog>

#include <memory>

class QFrame;

/// A modal box that tells or asks something; its size follows from its text.
///
/// Shape:     title with an optional help mark, text, up to two buttons. exec() and done() give 1 for confirm
///            and 0 for cancel, escape or closing.
/// Units:     logical px; `buttons` is a bit mask, 1 confirm, 2 cancel; position modes are those of
///            ZrWindowPlace: 0 leaves the box, 1 centres it on the parent, 2 on the topmost ancestor.
/// Ownership: normal QWidget parent rules; mostly on the stack. In mode 2 a box without a parent becomes the
///            main window's.
/// Threads:   GUI thread only.
/// Errors:    none. Texts are shown as they are, never read as markup or for shortcuts; what a box can't show
///            of a very long one is left out.
class ZRWIDGET_EXPORT ZrMessageBox : public QDialog, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    // The style sheet writes these.
    Q_PROPERTY(int margin READ margin WRITE setMarginPropety)
    Q_PROPERTY(int radius READ radius WRITE setRadiusPropety)
    Q_PROPERTY(int titleheight READ titleheight WRITE setTitleHeight)
public:
    ZrMessageBox(const QString &title, const QString &text, int buttons, QWidget *parent, int positionMode);
    ~ZrMessageBox() override;

    void loadSkin(const QVariant &css) override;

    void setMessageText(const QString &text);
    void setConfirmText(const QString &text);
    void setCancelText(const QString &text);
    /// 1 confirm, 2 cancel: has the focus when the box opens, and is what return means in the text.
    void setDefaultFocusButton(int button);
    /// Whether escape closes the box.
    void setEscBtnEnable(bool enable);
    void setHelpBtnShow(bool show);

    int margin() const;
    void setMarginPropety(int &marginPx);
    int radius() const;
    void setRadiusPropety(int &radius);
    int titleheight() const;
    void setTitleHeight(int &heightPx);

signals:
    void signalHelpBtnClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private slots:
    // Names that the interface has; connected by hand.
    void on_pushButton_clicked(); // clazy:exclude=connect-by-name
    void on_pushButton_cancel_clicked();

private:
    void createParts(const QString &title);
    void createWork(QFrame *work);
    void connectParts();
    void resizeMsgBox();
    void focusDefault();

    Q_DISABLE_COPY(ZrMessageBox)
    class Private;
    const std::unique_ptr<Private> d;
};
