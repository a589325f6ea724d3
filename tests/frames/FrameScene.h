#pragma once

#include "ZrReferenceHost.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

/// Runs the host with skins that a test writes itself, or with those that are shipped.
class FrameScene
{
public:
    FrameScene();

    /// The shipped skins and data; the first skin when none is named.
    bool startShipped(const QString &skin = QString());
    /// Skins and data below folder(); write them first.
    bool startOwn(const QString &skin);
    QString folder(const QString &path) const;
    /// A picture in one colour at `path` below folder().
    bool writePicture(const QString &path, const QColor &color, const QSize &size = {8, 8}) const;
    bool writeFile(const QString &path, const QByteArray &bytes) const;
    ZrReferenceHost host;
    /// A shown window of 1000 by 800 px without a layout: the offscreen platform warns of each window that a
    /// layout bounds.
    QWidget *stage();

    /// `widget` on a transparent ground.
    static QImage shot(QWidget *widget);

private:
    bool start(const QString &skins, const QString &data, const QString &skin);

    QTemporaryDir m_dir;
    QWidget m_stage;
};
