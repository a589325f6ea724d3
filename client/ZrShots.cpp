#include "ZrShots.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtGui/QPixmap>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>

namespace {
QString save(QWidget *widget, const QString &path)
{
    QSaveFile file(path);
    const bool good = file.open(QIODevice::WriteOnly) && widget->grab().save(&file, "PNG") && file.commit();
    return good ? QString() : QStringLiteral("the picture %1 cannot be written.").arg(path);
}
} // namespace

QString ZrShots::write(QMainWindow *window, const QString &folder)
{
    const QDir dir(folder);
    if (!dir.mkpath(QStringLiteral(".")))
        return QStringLiteral("the folder %1 cannot be made.").arg(folder);
    QString error = save(window, dir.filePath(QStringLiteral("window.png")));
    const QList<QDockWidget *> docks =
        window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget *const dock : docks) {
        if (error.isEmpty())
            error = save(dock, dir.filePath(QStringLiteral("dock-%1.png").arg(dock->objectName())));
    }
    return error;
}
