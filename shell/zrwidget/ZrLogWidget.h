#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtWidgets/QWidget>

#include <memory>

struct ZrLogWidgetPrivate;

/// A moving picture for a time of waiting, with an optional log over it.
///
/// Shape:     the picture fills the widget and is stretched with it; the log, when shown, covers the picture.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    without the picture's file the widget shows its background and the log. Log texts come from
///            outside: they are shown as plain text, and of a line without end only the beginning.
class ZRWIDGET_EXPORT ZrLogWidget : public QWidget, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    explicit ZrLogWidget(QWidget *parent = nullptr);
    ~ZrLogWidget() override;

    /// Replaces the log.
    void setLog(const QString &text);
    /// Adds a line and scrolls to it.
    void appendLog(const QString &text);
    void showLog(bool shown);
    /// Lets the picture move, until stopLogger().
    void startLogger();
    void stopLogger();
    void loadSkin(const QVariant &css) override;
    /// The picture's own size.
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    const std::unique_ptr<ZrLogWidgetPrivate> d;
};
