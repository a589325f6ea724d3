#include "DialogScene.h"

#include "ZrQuietPlatform.h"

#include <cmath>

DialogScene::DialogScene(const QString &skin)
{
    ZrQuietPlatform::install();
    mainWindow.setGeometry(60, 40, 800, 600);
    ZrReferenceHost::Options options;
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = skin;
    options.configFolder = m_config.path();
    options.mainWindow = &mainWindow;
    m_ready = m_config.isValid() && host.start(options);
}

QString DialogScene::markup()
{
    return QStringLiteral("<b>Fish & chips</b> <img src='file:///etc/passwd'> <a href='x'>&link</a>");
}

QString DialogScene::withoutBlank()
{
    return QString(100 * 1000, QLatin1Char('W'));
}

namespace {
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}
} // namespace

double DialogScene::contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}
