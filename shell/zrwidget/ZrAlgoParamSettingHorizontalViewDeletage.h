#pragma once

#include "ZrItemModelDeletage.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QVariantMap>
#include <QtGui/QPixmap>

class ZrParamSheet;

/// Edits the cells of a parameter table in which each column is a parameter and each row a set of values, and
/// keeps a row in accord with itself after an edit.
///
/// Shape:     a column's parameter is the head's Qt::UserRole data; a column without a record of an editor is
///            not editable. Choosing a security fills name and market of its row; changing a value clears
///            the cells whose choice it made impossible.
/// Units:     actionColumn is a logical column.
/// Ownership: normal QObject parent rules; the sheet is borrowed and outlives the delegate's use.
/// Threads:   GUI thread only.
/// Errors:    a cell that can't be edited makes no editor; nothing is reported.
class ZRWIDGET_PRIVATE_EXPORT ZrAlgoParamSettingHorizontalViewDeletage : public ZrItemModelDeletage
{
    Q_OBJECT
public:
    explicit ZrAlgoParamSettingHorizontalViewDeletage(QObject *parent = nullptr);
    ~ZrAlgoParamSettingHorizontalViewDeletage() override;

    /// The records of the columns. Their order tells nothing: columns find theirs by id.
    void setParamRecords(const QList<QVariantMap> &records);

    // Set by the sheet that builds the table.
    QMap<QString, QVariantMap> paramRecords; // by parameter id
    ZrParamSheet *settingPrivate = nullptr;  // the sheet's private part; null where there is none
    QString viewId;                          // of the table in the sheet
    int actionColumn = -1;                   // the column of the delete picture; -1 for none

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// Nothing: an editor is made with its value.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Writes the cell and what follows from it in the row, then closes the table's open editor.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

private:
    void closeOpenEditor() const;
    QPixmap deletePicture() const;

    mutable QPixmap m_picture;     // kept between paints
    mutable QString m_pictureSkin; // the skin that it is of
};
