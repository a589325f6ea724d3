#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// The application, which knows when a frame of a widget is done.
///
/// Shape:   a widget's paint event comes before the window's picture goes to the screen, and no event comes
///          after that; only who delivers the window's update request sees its end.
/// Threads: GUI thread only.
class ZrClientApplication : public QApplication
{
    Q_OBJECT
public:
    ZrClientApplication(int &argc, char **argv);

    /// From now on signalFrame tells of each frame that painted `widget` or a child of it.
    void watchFrames(QWidget *widget);
    bool notify(QObject *receiver, QEvent *event) override;

signals:
    void signalFrame();

private:
    bool isWatched(QObject *receiver) const;

    QPointer<QWidget> m_watched; // not owned
    int m_depth = 0;             // update requests under way
    bool m_painted = false;
};
