#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariantMap>

class QWidget;

/// Turns parameter records into live editors, and keeps the editors of one form together.
///
/// Shape:     a parameter record is a map keyed by the Constants::STRATEGYPARAM_ names; it tells editor, type
///            of value, choices, bounds, and on which other parameter it depends. The static members serve
///            one editor at a time. An object holds the editors of a form: Tab, Return and Enter go from one
///            to the next in the order of the records, and around from the last to the first.
/// Units:     roles: 0 is what the user sees, Qt::UserRole what is stored. Modes: 1 leaves every editor
///            editable, 2 those whose record says so, 3 none; any other mode writes nothing.
/// Ownership: editors belong to their Qt parent, never to the object; one that is gone is left out. The
///            object has no parent: whoever makes it ends it.
/// Threads:   GUI thread only.
/// Errors:    an unknown editor type, and a spin box without a type of number, make no editor; a null
///            editor, or one of another kind than its record tells, reads as invalid and is not written.
///            Nothing is reported.
/// Not supported: two records of one id; the later one takes the id over.
class ZRWIDGET_EXPORT ZrAutoBuildSubWidgetObject : public QObject
{
    Q_OBJECT
public:
    ZrAutoBuildSubWidgetObject();
    ~ZrAutoBuildSubWidgetObject() override;

    /// Null when the record makes no editor. `linkValues` tells the present values of other parameters by id.
    static QWidget *createWidget(const QVariantMap &record, QWidget *parent, QVariantMap linkValues);
    /// Invalid when there is nothing to read; a stored value comes in the record's type.
    static QVariant getWidgetData(const QVariantMap &record, QWidget *widget, int role);
    static void setSingleSubWidgetParamValue(const QVariantMap &record, QWidget *widget, QVariant value,
                                             int mode);
    /// Rebuilds choices or validator in place, after the parameter that this one depends on became `value`.
    static void singleSubWidgetLinkParamValueChanged(const QVariantMap &record, QWidget *widget,
                                                     QVariant value);

    /// Makes all editors as children of `parent` and gives them by id. The editors of an earlier call are
    /// forgotten; who holds their parent deletes them.
    QMap<QString, QWidget *> setAutoBuildWidgetDetails(const QList<QVariantMap> &records, QWidget *parent);
    /// A parameter without a value, or with an empty one, is left as it stands, its mode included.
    void setInitialBasicParamData(const QVariantMap &values, int mode);
    /// The stored values by id; the id of an empty editor is there too, with an invalid value.
    QMap<QString, QVariant> getAutoBuildData() const;
    QMap<QString, QWidget *> getSubWidgetMap() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The user went on from the editor of this parameter, or picked a security: then it is
    /// Vexlor_Fields::Security::symbol, whatever the parameter's own id.
    void signalParamValueChanged(QString paramID);

private slots:
    void slotSelectStockCodeChange(QString code);

private:
    Q_DISABLE_COPY(ZrAutoBuildSubWidgetObject)
    void watch(QWidget *editor);
    QWidget *editor(const QString &paramId) const;
    QWidget *editorWithFocus() const;
    void focusNextOf(QWidget *editor);

    QList<QPointer<QWidget>> m_focusOrder;
    QMap<QString, QPointer<QWidget>> m_editors; // by parameter id
    QMap<QString, QVariantMap> m_records;       // by parameter id
};
