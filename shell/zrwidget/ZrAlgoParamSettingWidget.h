#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QVariantMap>
#include <QtWidgets/QWidget>

class ZrAlgoParamSettingWidgetPrivate;
class ZrTableView;

/// The parameter sheet of one trading strategy, built from a description file that the host reads.
///
/// Shape:     basic parameters, with one value each, as a form or as a table of names and values; below or
///            beside them the initial parameters, many rows each, as a table, or tables in tabs ordered by
///            id. Rows are added by filling in the blank row of a table.
///
///     +-------------------------------+
///     | basic: form, or name | value  |
///     +---------+---------+-----------+
///     | table a | table b |           |
///     +---------+---------+-----------+
///     | column  | column  | x         |
///     +-------------------------------+
///
/// Units:     modes: 1 new, all can be edited; 2 running, only what its description says; 3 read only.
///            Editors of basic parameters take the mode on with their values.
/// Ownership: normal QWidget parent rules; all that is built goes with the widget or with the next build.
/// Threads:   GUI thread only. Validation runs a modal message.
/// Errors:    a description that can't be read gives an empty sheet, and so does an unknown layout. What the
///            user typed wrong is told in a message, the first fault only.
/// Not supported: a build from within a signal of one of the sheet's own editors.
class ZRWIDGET_EXPORT ZrAlgoParamSettingWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ZrAlgoParamSettingWidget(QWidget *parent = nullptr);
    ~ZrAlgoParamSettingWidget() override;

    ZrAlgoParamSettingWidgetPrivate *getPrivate() const;

    /// Reads the description and builds the sheet.
    void setAutoBuildWidgetDetails(const QString &file, int mode);

    void setInitialBasicParamData(const QVariantMap &values);
    /// Rows by table id; tables that are not named stay as they are.
    void setInitialParamData(const QMap<QString, QList<QVariantMap>> &values);
    /// 0 when all values are good; -1 after a message to the user, -2 when no basic parameters are shown:
    /// then `values` stays as it was.
    int getInitialBasicParamData(QVariantMap &values) const;
    /// Rows by table id, without blank ones. 0, or -1 after a message to the user, which comes only when
    /// `validate` is true; tables before the faulty one are in `values` then.
    int getInitialParamData(QMap<QString, QList<QVariantMap>> &values, bool validate) const;
    QMap<QString, ZrTableView *> getInitialParamViewWidget() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(ZrAlgoParamSettingWidget)
    ZrAlgoParamSettingWidgetPrivate *const d; // our child
};
