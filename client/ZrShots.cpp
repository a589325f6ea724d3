#include "ZrShots.h"

#include "showcase/ZrShowcaseDocks.h"
#include "showcase/ZrShowcasePage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QSaveFile>
#include <QtGui/QPixmap>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>

namespace {
constexpr int LookMs = 60; // longer than what a grid puts off until it is shown
constexpr int MostLooks = 20;

QString save(const QPixmap &picture, const QString &path)
{
    QSaveFile file(path);
    const bool good = file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
    return good ? QString() : QStringLiteral("the picture %1 cannot be written.").arg(path);
}
// The page once it stands still. One that moves for good is taken after a while.
QPixmap settledPage(ZrShowcasePage *page)
{
    QPixmap before;
    QPixmap now;
    for (int look = 0; look < MostLooks; ++look) {
        QElapsedTimer shown;
        shown.start();
        while (shown.elapsed() < LookMs)
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, LookMs);
        before = now;
        now = page->grabWhole();
        if (now.toImage() == before.toImage())
            break;
    }
    return now;
}
} // namespace

QString ZrShots::write(QMainWindow *window, const QString &folder)
{
    const QDir dir(folder);
    if (!dir.mkpath(QStringLiteral(".")))
        return QStringLiteral("the folder %1 cannot be made.").arg(folder);
    QString error = save(window->grab(), dir.filePath(QStringLiteral("window.png")));
    const QList<QDockWidget *> docks =
        window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget *const dock : docks) {
        if (!dock->isVisible())
            dock->adjustSize(); // one that was never shown has no size yet
        if (error.isEmpty())
            error = save(dock->grab(), dir.filePath(QStringLiteral("dock-%1.png").arg(dock->objectName())));
    }
    return error;
}

QString ZrShots::writePages(ZrShowcaseDocks *docks, const QString &folder)
{
    const QDir dir(folder);
    if (!dir.mkpath(QStringLiteral(".")))
        return QStringLiteral("the folder %1 cannot be made.").arg(folder);
    QString error;
    const QStringList ids = docks->ids();
    for (const QString &id : ids) {
        auto *const page = static_cast<ZrShowcasePage *>(docks->open(id)->widget());
        if (error.isEmpty())
            error = save(settledPage(page), dir.filePath(QStringLiteral("showcase-%1.png").arg(id)));
    }
    return error;
}
