#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QColor>
#include <QtWidgets/QFrame>

#include <memory>

namespace Ui {
class ZrLoadingFrame;
}

/// Covers a plugin with an animated picture while its data load.
///
/// Shape:     one picture in the middle. The skin gives the folder of the pictures, how many there are and
/// how
///            fast they follow each other: "<imagepath>/01.png", "02.png" and so on.
/// Units:     times in ms.
/// Ownership: normal QWidget parent rules. Whoever covers a widget with it keeps it at that widget's size.
/// Threads:   GUI thread only.
/// Errors:    a picture that is missing or can't be read leaves the last one in place.
class ZRWIDGET_EXPORT ZrLoadingFrame : public QFrame, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    // The style sheet writes these; the path is relative to the skin's folder.
    Q_PROPERTY(QColor backgroundcolor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(int loadingimagecount READ loadingImageCount WRITE setLoadingImageCount)
    Q_PROPERTY(int timerinterval READ timerInterval WRITE setTimerInterval)
    Q_PROPERTY(QUrl imagepath READ imagePath WRITE setImagePath)
public:
    explicit ZrLoadingFrame(QWidget *parent = nullptr);
    ~ZrLoadingFrame() override;

    /// 1 is loading: shows the frame and animates it, or lets it go on. Any other value is the end, be it
    /// that the data are there (2) or that they took too long (3): hides it.
    void setLoadingState(int state);
    void loadSkin(const QVariant &css) override;

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);
    int loadingImageCount() const { return m_loadingImageCount; }
    void setLoadingImageCount(int count);
    int timerInterval() const { return m_timerInterval; }
    /// How long each picture is shown; counts at once, also while the animation runs.
    void setTimerInterval(int intervalMs);
    QUrl imagePath() const { return m_imagePath; }
    void setImagePath(const QUrl &path);

public slots:
    /// Shows the next picture.
    void slotTimerOut();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refreshUI();

    const std::unique_ptr<Ui::ZrLoadingFrame> m_ui;
    QColor m_backgroundColor; // invalid, which paints black, until a skin gives one
    int m_loadingImageCount = 0;
    int m_frameIndex = 0; // the picture shown, from 1; 0 before the first
    QTimer m_timer;
    int m_timerInterval = 500; // ms
    QUrl m_imagePath;
};
