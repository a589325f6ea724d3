#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QVariantMap>

#include <memory>

class QWidget;
class ZrAutoBuildSubWidgetObject;
class ZrTableView;

/// The parameters with one value of a sheet as a table: a row for each, its editor in the second column.
///
/// Shape:     rows are keyed by the parameter's id, in the order of the records. The rows follow the editors,
///            never the other way round. A reset of the table's rows, as by a change of widths, drops cell
///            widgets; the editors survive it: the same objects with the same values and focus stand in their
///            cells again when it ends.
/// Units:     widths in logical px; modes are those of ZrAutoBuildSubWidgetObject.
/// Ownership: the view is a child of the given parent, the editors belong to the view, the rest is ours.
/// Threads:   GUI thread only.
/// Errors:    a parameter without an editor has its row, and no value.
class ZRWIDGET_PRIVATE_EXPORT ZrParamBasicTable : public QObject
{
    Q_OBJECT
public:
    ZrParamBasicTable(const QList<QVariantMap> &records, bool showsDescriptions, QWidget *parent);
    ~ZrParamBasicTable() override;

    ZrTableView *view() const { return m_view; }
    ZrAutoBuildSubWidgetObject *editors() const { return m_editors.get(); }

    /// Values that are missing come from what the host knows of the security among them.
    void fill(const QVariantMap &values, int mode);
    /// The parameter has a new value in its editor: its row follows, then what depends on it. A new security
    /// also brings the values that the host knows of it, and takes those away that it doesn't know.
    void paramChanged(const QString &paramId, int mode);
    /// Widens the columns for an owner of this width, and places the editors again.
    void fit(int ownerWidthPx);

private:
    void createView(bool showsDescriptions);
    void addRows(bool showsDescriptions);
    void placeEditors();
    void keepFocus();
    QWidget *editor(const QString &paramId) const;
    QVariantMap securityInEditor(QString *symbol) const;
    void showValue(const QString &paramId, const QVariant &stored, const QString &shown);
    void relink(const QString &paramId, const QVariant &value);

    const QList<QVariantMap> m_records;
    const std::unique_ptr<ZrAutoBuildSubWidgetObject> m_editors;
    ZrTableView *const m_view;    // the parent's child
    QPointer<QWidget> m_focus;    // had the focus when a reset began
    QSet<QString> m_securityIds;  // parameters that a security once gave a value
    bool m_isPlacingLate = false; // several resets follow each other; the last one places
};
