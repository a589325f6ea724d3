#pragma once

#include "ZrParamSheet.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QVariantMap>

#include <map>
#include <memory>

class QBoxLayout;
class QTabWidget;
class ZrAlgoParamSettingWidget;
class ZrAutoBuildWidget;
class ZrParamBasicTable;
class ZrParamInitialTable;

/// What a parameter sheet holds: its description, the basic form or table, the tables.
///
/// Shape:     the delegates of the tables see it as a ZrParamSheet.
/// Ownership: child of its sheet. The parts that are widgets are the sheet's children; a build replaces them.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrAlgoParamSettingWidgetPrivate : public QObject, public ZrParamSheet
{
    Q_OBJECT
public:
    explicit ZrAlgoParamSettingWidgetPrivate(ZrAlgoParamSettingWidget *facade);
    ~ZrAlgoParamSettingWidgetPrivate() override;

    // --- Shared fields ---
    ZrAutoBuildWidget *basicForm = nullptr;        // null unless the basic parameters are shown as a form
    QTabWidget *tabWidget = nullptr;               // null unless there are several tables
    QMap<QString, ZrTableView *> views;            // by table id
    std::unique_ptr<ZrParamBasicTable> basicTable; // null unless they are shown as a table
    int mode = 1;

    // --- The description, as the host read it ---
    QList<QVariantMap> basicParams;
    QList<QVariantMap> initialParams; // one entry for each table
    QList<QVariantMap> runningParams; // this and the next three are only held
    QList<QVariantMap> resultParams;
    QList<QVariantMap> links;
    QVariantMap strategy;
    QVariantMap interfaceSettings;

    void build(const QString &file, int newMode);
    /// As the members of the sheet of like names tell.
    int basicValues(QVariantMap *values) const;
    int tableValues(QMap<QString, QList<QVariantMap>> *values, bool validate) const;
    void fit();
    /// Null when there is none of this id.
    ZrParamInitialTable *table(const QString &viewId) const;

    ZrTableView *paramView(const QString &viewId) const override;
    QModelIndex editIndex(const QString &viewId) const override;
    void setEditIndex(const QString &viewId, const QModelIndex &index) override;
    void addEmptyRow(const QString &viewId) override;

public slots:
    /// Closes the editor of another cell; in the column of the delete pictures clears or removes the row.
    void slotClickedIndexModel(QModelIndex index);
    /// Opens the cell's editor when the mode allows it.
    void slotTableItemDoubleClicked(QModelIndex index);
    void slotBasicParamChanged(QString s);

private:
    void clear();
    void read(const QString &file);
    QBoxLayout *makeLayout() const;
    void addBasic(QBoxLayout *layout);
    void addTables(QBoxLayout *layout);
    ZrParamInitialTable *tableOf(QObject *view) const;
    void closeEditor(const ZrParamInitialTable &table);
    void openEditor(const ZrParamInitialTable &table, const QModelIndex &index);
    bool tell(const QString &fault) const;

    ZrAlgoParamSettingWidget *const q; // not owned: the sheet is our QObject parent
    std::map<QString, std::unique_ptr<ZrParamInitialTable>> m_tables; // by table id
    QMap<QString, QPersistentModelIndex> m_editIndexes;               // by table id
};
