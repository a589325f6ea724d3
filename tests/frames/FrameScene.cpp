#include "FrameScene.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

FrameScene::FrameScene() = default;

bool FrameScene::startShipped(const QString &skin)
{
    return start(QStringLiteral(ZR_SKINS), QStringLiteral(ZR_DATA), skin);
}

bool FrameScene::startOwn(const QString &skin)
{
    QDir().mkpath(folder("skins"));
    QDir().mkpath(folder("data"));
    return start(folder("skins"), folder("data"), skin);
}

bool FrameScene::start(const QString &skins, const QString &data, const QString &skin)
{
    ZrReferenceHost::Options options;
    options.skinRoot = skins;
    options.dataFolder = data;
    options.configFolder = folder("config");
    options.skinId = skin;
    return host.start(options);
}

QString FrameScene::folder(const QString &path) const
{
    return m_dir.filePath(path);
}

bool FrameScene::writePicture(const QString &path, const QColor &color, const QSize &size) const
{
    QDir().mkpath(QFileInfo(folder(path)).path());
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(color);
    return picture.save(folder(path));
}

bool FrameScene::writeFile(const QString &path, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(folder(path)).path());
    QFile file(folder(path));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QWidget *FrameScene::stage()
{
    if (!m_stage.isVisible()) {
        m_stage.resize(1000, 800);
        m_stage.show();
    }
    return &m_stage;
}

QImage FrameScene::shot(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}
