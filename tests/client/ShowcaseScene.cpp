#include "ShowcaseScene.h"

#include "ZrShowcaseDocks.h"
#include "ZrShowcasePage.h"

#include <QtTest/QtTest>
#include <QtWidgets/QDockWidget>

ShowcaseScene::ShowcaseScene(const QString &skin)
{
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.dataFolder = QStringLiteral(ZR_DATA);
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = skin;
    m_ready = m_host.start(options);
    m_window = std::make_unique<ZrMainWindow>(m_host.skinIds(), skin);
    m_host.setMainWindow(m_window.get());
    m_window->show();
    m_ready = m_ready && QTest::qWaitForWindowExposed(m_window.get());
}

ShowcaseScene::~ShowcaseScene()
{
    m_window.reset();
    m_host.stop();
}

ZrShowcasePage *ShowcaseScene::open(const QString &id)
{
    QDockWidget *const dock = m_window->showcase()->open(id);
    QCoreApplication::processEvents();
    return dock ? qobject_cast<ZrShowcasePage *>(dock->widget()) : nullptr;
}

QString ShowcaseScene::difference(const QImage &left, const QImage &right)
{
    if (left.size() != right.size())
        return QStringLiteral("%1x%2 instead of %3x%4")
            .arg(left.width())
            .arg(left.height())
            .arg(right.width())
            .arg(right.height());
    QRect area;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y))
                area |= QRect(x, y, 1, 1);
        }
    }
    if (area.isNull())
        return QString();
    const QString folder = qEnvironmentVariable("ZR_TEST_PICTURES");
    if (!folder.isEmpty()) {
        left.save(folder + QStringLiteral("/left.png"));
        right.save(folder + QStringLiteral("/right.png"));
    }
    return QStringLiteral("differ at %1,%2 in an area of %3x%4")
        .arg(area.x())
        .arg(area.y())
        .arg(area.width())
        .arg(area.height());
}
