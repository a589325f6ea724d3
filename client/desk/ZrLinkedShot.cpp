#include "ZrLinkedShot.h"

#include "FreezeTableView.h"
#include "ZrHeaderView.h"
#include "ZrPluginDock.h"
#include "ZrTableView.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QSaveFile>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMainWindow>

namespace {
constexpr int MostWaitMs = 3000;
constexpr int ButtonMiddlePx = 8; // a filter button, from the right end of its section

void send(QWidget *widget, QEvent::Type type, const QPoint &at)
{
    const Qt::MouseButtons down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, down, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void click(QWidget *widget, const QPoint &at)
{
    send(widget, QEvent::MouseButtonPress, at);
    send(widget, QEvent::MouseButtonRelease, at);
}

QList<ZrTableView *> gridsOf(const QList<ZrPluginDock *> &docks)
{
    QList<ZrTableView *> grids;
    for (const ZrPluginDock *const dock : docks) {
        auto *const grid = dock->plugin() ? dock->plugin()->findChild<ZrTableView *>() : nullptr;
        if (grid && grid->getRowCount() > 0)
            grids.append(grid);
    }
    return grids;
}

// A row in the middle of what is in sight, so that its neighbours show too.
void clickRow(const ZrTableView *grid)
{
    const FreezeTableView *const table = grid->getTableView();
    const int row = table->rowAt(table->viewport()->height() / 2);
    const QRect cell = table->visualRect(grid->index(qMax(0, row), 0));
    click(table->viewport(), cell.center());
}

// Clicks in the first grid and waits for the second one to follow: its own signal tells, the focus sets a row
// too.
void linkRows(const ZrTableView *first, const ZrTableView *second)
{
    bool followed = false;
    const auto link =
        QObject::connect(second, &ZrTableView::currentIndexChanged, second, [&] { followed = true; });
    QElapsedTimer waited;
    waited.start();
    clickRow(first);
    while (!followed && waited.elapsed() < MostWaitMs)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, MostWaitMs);
    QObject::disconnect(link);
}

// Below a band the button stands in the lower half of the head.
QDialog *openPopup(const ZrTableView *grid)
{
    ZrHeaderView *const head = grid->getZrTableHorizontalHeader();
    head->viewport()->grab(); // a button can be pressed once it was painted
    for (int section = 1; section < head->count(); ++section) {
        const int right = head->sectionViewportPosition(section) + head->sectionSize(section);
        for (const int y : {head->height() / 2, head->height() * 3 / 4}) {
            click(head->viewport(), QPoint(right - ButtonMiddlePx, y));
            auto *const dialog = head->findChild<QDialog *>();
            if (dialog && dialog->isVisible())
                return dialog;
        }
    }
    return nullptr;
}

QPixmap withPopup(QMainWindow *window, QDialog *popup)
{
    QPixmap picture = window->grab();
    if (popup) {
        QPainter painter(&picture);
        painter.drawPixmap(window->mapFromGlobal(popup->mapToGlobal(QPoint(0, 0))), popup->grab());
    }
    return picture;
}
} // namespace

QString ZrLinkedShot::write(QMainWindow *window, const QList<ZrPluginDock *> &docks, const QString &folder)
{
    const QList<ZrTableView *> grids = gridsOf(docks);
    if (grids.size() < 2)
        return QString();
    linkRows(grids.at(0), grids.at(1));
    QDialog *const popup = openPopup(grids.at(0));
    const QPixmap picture = withPopup(window, popup);
    if (popup)
        popup->hide();
    const QString path = QDir(folder).filePath(QStringLiteral("linked.png"));
    QSaveFile file(path);
    const bool good = file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
    return good ? QString() : QStringLiteral("the picture %1 cannot be written.").arg(path);
}
