#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtWidgets/QDialog>

#include <memory>

/// A short notice that closes by itself. It takes neither the keyboard nor the mouse away from what the user
/// is doing.
///
/// Shape:     a mark and a text; one toast may be used again and again.
/// Units:     durations in ms; sizes in logical px.
/// Ownership: normal QWidget parent rules; closing only hides it.
/// Threads:   GUI thread only.
/// Errors:    a duration below 0 counts as 0. The text is shown as it is, never read as markup, and its
///            beginning stands for a very long one.
class ZRWIDGET_EXPORT ZrToastDialog : public QDialog, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    /// Levels of a message. Any number but LevelTip looks like an error.
    enum Level { LevelTip = 0, LevelError = 2 };

    explicit ZrToastDialog(QWidget *parent);
    ~ZrToastDialog() override;

    void loadSkin(const QVariant &css) override;

    /// Of the messages that follow.
    void SetDuration(int ms);
    /// -1 before the first message.
    int msgLevel() const;
    void setMsgLevel(int level);
    /// Shows the text over the middle of the parent, closes after the duration. A further message neither
    /// waits for the first nor prolongs it: the toast closes when the first one's time is over.
    void ShowToastMessage(const QString &text, int level);

private:
    void createParts();
    void fitText();
    QLayout *freshLayout();
    void centreOverParent();

    Q_DISABLE_COPY(ZrToastDialog)
    class Private;
    const std::unique_ptr<Private> d;
};
