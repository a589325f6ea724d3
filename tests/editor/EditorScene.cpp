#include "EditorScene.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtWidgets/QWidget>

namespace {

QtMessageHandler testHandler = nullptr;

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool isExpected =
        type == QtWarningMsg && text.startsWith(QLatin1String("This plugin does not support "));
    if (!isExpected && testHandler)
        testHandler(type, context, text);
}

} // namespace

EditorHost::EditorHost(const QString &skin)
{
    ZrReferenceHost::Options options;
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.configFolder = m_dir.path();
    options.skinId = skin;
    m_ready = host.start(options);
}

QString EditorHost::sheet(const QString &skin, const QString &name)
{
    QFile file(QStringLiteral(ZR_SKINS "/%1/system/zrwidget/%2").arg(skin, name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QuietPlatform::QuietPlatform()
{
    testHandler = qInstallMessageHandler(passOn);
}

QuietPlatform::~QuietPlatform()
{
    qInstallMessageHandler(testHandler);
    testHandler = nullptr;
}

void PolishCounter::polish(QWidget *widget)
{
    ++count;
    QProxyStyle::polish(widget);
}

PaintCounter::PaintCounter(QWidget *widget)
    : QObject(widget)
{
    widget->installEventFilter(this);
}

bool PaintCounter::eventFilter(QObject *, QEvent *event)
{
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
}

int pixelsOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}
