#pragma once

#include "ZrHeaderHost.h"
#include "ZrHeaderView.h"
#include "ZrReferenceHost.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QTableView>

#include <memory>

/// Columns of a head as a test names them.
struct HeadColumn
{
    int number = 0; // "Head_ColumnIndex"; see HeadModel::withoutNumber
    QString text;
    QString group = QString();
    QString groupName = QString();
};

/// Answers a head the roles that the grids' models answer.
class HeadModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    static const int withoutNumber;

    explicit HeadModel(QObject *parent = nullptr);
    void setColumns(const QList<HeadColumn> &columns);
    void setHead(int section, int role, const QVariant &value);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<HeadColumn> m_columns;
    QMap<int, QMap<int, QVariant>> m_extra;
};

/// Stands for the private object of a table or tree view.
class FakeHost : public QObject, public ZrHeaderHost
{
    Q_OBJECT
    Q_INTERFACES(ZrHeaderHost)
public:
    struct Opened
    {
        ZrHeaderView *head;
        int column;
        QRect button;
    };

    using QObject::QObject;
    Kind kind = Kind::Table;
    QMap<int, int> frozen;
    QList<int> filtered;
    QList<Opened> opened;
    int choices = 0;
    int pseudoColumns = 0;

    Kind headKind() const override { return kind; }
    QUrl headPicture(Picture picture) const override;
    int frozenCount(Side side) const override { return frozen.value(int(side)); }
    int pseudoColumnCount() const override { return pseudoColumns; }
    bool isColumnFiltered(int logicalColumn) const override { return filtered.contains(logicalColumn); }
    void openFilter(ZrHeaderView *head, int logicalColumn, const QRect &buttonRect) override
    {
        opened.append({head, logicalColumn, buttonRect});
    }
    void filterChoiceChanged(ZrHeaderView *) override { ++choices; }
};

/// Notes what the style is asked to draw.
class NotingStyle : public QProxyStyle
{
    Q_OBJECT
public:
    struct Drawn
    {
        ControlElement element;
        QRect rect;
        QString text;
        int indicator;
        QStyle::State state;
        QPoint brushOrigin;
    };
    NotingStyle();
    mutable QList<Drawn> drawn;
    mutable QList<QPair<QRect, QString>> itemTexts;

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override;
    QList<Drawn> of(ControlElement element) const;
};

/// Runs the host with a skin of small one-coloured pictures.
class SkinFolder
{
public:
    SkinFolder();
    bool isReady() const;
    void write(const QString &skin, const QString &path, const QColor &color, const QSize &size = {16, 16});
    QString folder(const QString &skin) const;
    ZrReferenceHost host;

    static const QColor check, uncheck, tristate, filter, filtered, filterHover, help;

private:
    QTemporaryDir m_dir;
    bool m_ready = false;
};

/// A shown head in its place: view, table, head, with a host beside the table.
class HeadScene
{
public:
    explicit HeadScene(const QList<HeadColumn> &columns, bool withHost = true);
    ~HeadScene();

    /// Plain columns numbered from 0, `text` "c0", "c1"...
    static QList<HeadColumn> plain(int count);
    /// One column for each letter: '.' plain, others the group's id.
    static QList<HeadColumn> groups(const QString &letters);

    QImage shot() const;
    /// Centre of a section, in head coordinates.
    QPoint centre(int section) const;
    QPoint at(int section, int xInSection, int y = 10) const;
    QList<int> order() const;
    void press(const QPoint &point, Qt::MouseButton button = Qt::LeftButton);
    void release(const QPoint &point, Qt::MouseButton button = Qt::LeftButton);
    void click(const QPoint &point);
    void moveHeld(const QPoint &point);
    void drag(const QPoint &from, const QPoint &to);

    std::unique_ptr<QWidget> view;
    QTableView *table;
    HeadModel *model;
    ZrHeaderView *head;
    FakeHost *host;
    NotingStyle *style;

    static const int sectionPx;
    static const int heightPx;
};
