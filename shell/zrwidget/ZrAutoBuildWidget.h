#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QVariantMap>
#include <QtWidgets/QWidget>

#include <memory>

class QBoxLayout;
class QVBoxLayout;
class ZrAutoBuildSubWidgetObject;

/// A form made from parameter records: names and editors in rows, as the records tell.
///
/// Shape:     the widget holds one content widget, which each build replaces:
///
///     | name：[editor]  name：[editor]  ............. |  row 1
///     | [x] name  name：[editor]  ................... |  row 2: a check box stands before its name
///     | ............................................. |  what is left, when there is any row
///
///            A record's row counts from 1; a row that no record has stays empty. An editor whose record has
///            no row is made and stands nowhere.
/// Units:     spacings and widths in logical px.
/// Ownership: normal QWidget parent rules; editors are children of the content widget and go with it.
/// Threads:   GUI thread only.
/// Errors:    an editor that can't be made leaves its name alone in the row. A row beyond mostRows counts as
///            none, with one line in the log: a form so high can't be shown.
/// Not supported: a build from within a signal of one of the form's own editors.
class ZRWIDGET_EXPORT ZrAutoBuildWidget : public QWidget
{
    Q_OBJECT
public:
    static constexpr int mostRows = 10000;

    explicit ZrAutoBuildWidget(QWidget *parent = nullptr);
    ~ZrAutoBuildWidget() override;

    /// Builds the form anew. The mode is kept for the values that come later.
    void setAutoBuildWidgetDetails(const QList<QVariantMap> &records, int mode);
    void setInitialBasicParamData(const QVariantMap &values);
    QMap<QString, QVariant> getAutoBuildData() const;
    /// The same object for the widget's whole life; not the caller's.
    ZrAutoBuildSubWidgetObject *getAutoBuildSubWidgetObject() const;

    /// Spacing inside a row and between rows, from the next build on.
    void setHBoxSpacing(int spacingPx);
    void setVBoxSpacing(int spacingPx);

private:
    Q_DISABLE_COPY(ZrAutoBuildWidget)
    void replaceContent();
    using Editors = QMap<QString, QWidget *>; // by parameter id
    void addRow(QVBoxLayout *rows, const QList<QVariantMap> &records, const Editors &editors);
    QBoxLayout *makePair(const QVariantMap &record, QWidget *editor);

    QWidget *m_content = nullptr; // our child, replaced at each build
    QList<QVariantMap> m_records; // as last given
    const std::unique_ptr<ZrAutoBuildSubWidgetObject> m_editors;
    int m_mode = 1;
    int m_rowSpacingPx = 15; // inside a row
    int m_lineSpacingPx = 6; // between rows
};
