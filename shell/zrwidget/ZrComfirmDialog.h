#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QVariant>
#include <QtWidgets/QDialog>

#include <memory>

class QFrame;
class QModelIndex;

/// Asks the user to confirm values: a modal table of names and values. The spelling of the name is the
/// interface's.
///
/// Shape:     one row for each value, its name beside it; rows that don't fit onto the screen scroll. exec()
///            and done() give 1 for confirm and 0 for cancel, escape or closing.
/// Units:     logical px; `buttons` is a bit mask, 1 confirm, 2 cancel.
/// Ownership: normal QWidget parent rules; without a parent it becomes the main window's.
/// Threads:   GUI thread only.
/// Errors:    cells beyond the second column of a row are kept and not shown; missing ones are empty.
class ZRWIDGET_EXPORT ZrComfirmDialog : public QDialog, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    // The style sheet writes these.
    Q_PROPERTY(int margin READ margin WRITE setMarginPropety)
    Q_PROPERTY(int radius READ radius WRITE setRadiusPropety)
    Q_PROPERTY(int titleheight READ titleheight WRITE setTitleHeight)
public:
    /// The last argument has no meaning; callers pass a position mode, as for a message box.
    ZrComfirmDialog(const QString &title, int buttons, QWidget *parent, int);
    ~ZrComfirmDialog() override;

    void loadSkin(const QVariant &css) override;

    /// The rows to confirm, instead of those before; each a list of cells, the name first.
    void setComfirmData(const QList<QList<QVariant>> &rows);

    int margin() const;
    void setMarginPropety(int &marginPx);
    int radius() const;
    void setRadiusPropety(int &radius);
    int titleheight() const;
    void setTitleHeight(int &heightPx);

protected:
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private slots:
    void on_pushButton_OK_clicked();
    void on_pushButton_Cancel_clicked();

private:
    void createParts(const QString &title);
    void createWork(QFrame *work);
    void createTable(QWidget *parent);
    void connectParts();
    void fitRows();
    int settledHeight();
    void showRow(const QModelIndex &current);

    Q_DISABLE_COPY(ZrComfirmDialog)
    class Private;
    const std::unique_ptr<Private> d;
};
