#pragma once

#include "ZrReferenceHost.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtWidgets/QProxyStyle>

class QWidget;

/// Runs the host with the skins that come with the library.
class EditorHost
{
public:
    explicit EditorHost(const QString &skin = QStringLiteral("dark"));
    bool isReady() const { return m_ready; }
    /// The text of one of the library's sheets.
    static QString sheet(const QString &skin, const QString &name);
    ZrReferenceHost host;

private:
    QTemporaryDir m_dir;
    bool m_ready;
};

/// While it lives, the offscreen platform may say that it can't raise a window, hint its size or grab the
/// keyboard, as it does for each tool tip, popup and window with a layout. All else goes on to the test.
class QuietPlatform
{
public:
    QuietPlatform();
    ~QuietPlatform();

private:
    Q_DISABLE_COPY(QuietPlatform)
};

/// Counts how often the style is asked to polish a widget.
class PolishCounter : public QProxyStyle
{
    Q_OBJECT
public:
    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    int count = 0;
};

/// Counts the paints of a widget.
class PaintCounter : public QObject
{
    Q_OBJECT
public:
    explicit PaintCounter(QWidget *widget);
    bool eventFilter(QObject *watched, QEvent *event) override;
    int count = 0;
};

/// How often a colour occurs in a picture.
int pixelsOf(const QImage &image, const QColor &color);
