#include "ZrAutoBuildSubWidgetObject.h"

#include "ZrParamKind.h"
#include "ZrParamKinds.h"
#include "ZrParamLineRule.h"
#include "ZrParamLink.h"
#include "ZrParamValue.h"
#include "ZrSearchBox.h"

#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace {
const ZrParamKind *kindOf(const QVariantMap &record)
{
    return ZrParamKinds::find(record.value(Constants::STRATEGYPARAM_WIDGETTYPE).toString());
}

/// The property of an editor that holds its parameter's id.
QByteArray idProperty()
{
    return Constants::STRATEGYPARAM_PARAMID.toUtf8();
}

bool endsEntry(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Tab || key == Qt::Key_Return || key == Qt::Key_Enter;
}
} // namespace

ZrAutoBuildSubWidgetObject::ZrAutoBuildSubWidgetObject() = default;
ZrAutoBuildSubWidgetObject::~ZrAutoBuildSubWidgetObject() = default;

QWidget *ZrAutoBuildSubWidgetObject::createWidget(const QVariantMap &record, QWidget *parent,
                                                  QVariantMap linkValues)
{
    const ZrParamKind *const kind = kindOf(record);
    QWidget *const editor =
        kind ? kind->make(record, parent, ZrParamLink::among(record, linkValues)) : nullptr;
    // No label beside it says it to a screen reader, in a cell least of all.
    if (editor)
        editor->setAccessibleName(record.value(Constants::STRATEGYPARAM_PARAMNAME).toString());
    return editor;
}

// Empty is tested before the role: required. So what several ticks store, a list, is invalid here, for a list
// has no text.
QVariant ZrAutoBuildSubWidgetObject::getWidgetData(const QVariantMap &record, QWidget *widget, int role)
{
    const ZrParamKind *const kind = kindOf(record);
    const QVariant value = kind ? kind->read(widget, role) : QVariant();
    if (ZrParamValue::isEmpty(value))
        return QVariant();
    return role == Qt::DisplayRole ? value : ZrParamValue::converted(record, value);
}

void ZrAutoBuildSubWidgetObject::setSingleSubWidgetParamValue(const QVariantMap &record, QWidget *widget,
                                                              QVariant value, int mode)
{
    enum Mode { New = 1, Running = 2, ReadOnly = 3 };
    const ZrParamKind *const kind = kindOf(record);
    if (!kind || !widget || mode < New || mode > ReadOnly)
        return;
    const bool isEditable =
        mode == New ||
        (mode == Running && record.value(Constants::STRATEGYPARAM_EDITABLEAFTERRUNNING).toBool());
    kind->write(widget, ZrParamValue::convertedUnlessEmpty(record, value), isEditable);
}

void ZrAutoBuildSubWidgetObject::singleSubWidgetLinkParamValueChanged(const QVariantMap &record,
                                                                      QWidget *widget, QVariant value)
{
    const ZrParamLink link(record, value.toString());
    if (const ZrParamKind *const kind = kindOf(record))
        kind->relink(record, widget, link);
    else
        ZrParamLineRule::relink(widget, link);
}

QMap<QString, QWidget *>
ZrAutoBuildSubWidgetObject::setAutoBuildWidgetDetails(const QList<QVariantMap> &records, QWidget *parent)
{
    m_focusOrder.clear();
    m_editors.clear();
    m_records.clear();
    for (const QVariantMap &record : records) {
        QWidget *const editor = createWidget(record, parent, QVariantMap());
        if (!editor)
            continue;
        const QString id = record.value(Constants::STRATEGYPARAM_PARAMID).toString();
        editor->setProperty(idProperty(), id);
        m_focusOrder.append(editor);
        watch(editor);
        m_editors.insert(id, editor);
        m_records.insert(id, record);
    }
    return getSubWidgetMap();
}

void ZrAutoBuildSubWidgetObject::watch(QWidget *editor)
{
    // A search box uses Return and Tab for its own list and tells when the pick is made.
    if (auto *const box = qobject_cast<ZrSearchBox *>(editor))
        connect(box, &ZrSearchBox::selectStockCodeChange, this,
                &ZrAutoBuildSubWidgetObject::slotSelectStockCodeChange);
    else
        editor->installEventFilter(this);
}

void ZrAutoBuildSubWidgetObject::setInitialBasicParamData(const QVariantMap &values, int mode)
{
    for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
        const QVariant value = values.value(record.key());
        if (!ZrParamValue::isEmpty(value))
            setSingleSubWidgetParamValue(*record, editor(record.key()), value, mode);
    }
}

QMap<QString, QVariant> ZrAutoBuildSubWidgetObject::getAutoBuildData() const
{
    QMap<QString, QVariant> data;
    for (auto record = m_records.cbegin(); record != m_records.cend(); ++record) {
        if (QWidget *const widget = editor(record.key()))
            data.insert(record.key(), getWidgetData(*record, widget, Qt::UserRole));
    }
    return data;
}

QMap<QString, QWidget *> ZrAutoBuildSubWidgetObject::getSubWidgetMap() const
{
    QMap<QString, QWidget *> editors;
    for (auto entry = m_editors.cbegin(); entry != m_editors.cend(); ++entry) {
        if (*entry)
            editors.insert(entry.key(), *entry);
    }
    return editors;
}

bool ZrAutoBuildSubWidgetObject::eventFilter(QObject *watched, QEvent *event)
{
    QWidget *const left = endsEntry(event) ? editorWithFocus() : nullptr;
    if (!left)
        return QObject::eventFilter(watched, event);
    const QString id = left->property(idProperty()).toString();
    // Before the signal: who hears it may rebuild the form.
    focusNextOf(left);
    emit signalParamValueChanged(id);
    return true;
}

void ZrAutoBuildSubWidgetObject::slotSelectStockCodeChange(QString)
{
    const QPointer<ZrAutoBuildSubWidgetObject> self(this);
    const QPointer<QWidget> box(qobject_cast<QWidget *>(sender()));
    // By the name of the symbol, whatever the parameter's id: what depends on a security listens to that.
    emit signalParamValueChanged(Vexlor_Fields::Security::symbol);
    if (self && box)
        focusNextOf(box);
}

QWidget *ZrAutoBuildSubWidgetObject::editor(const QString &paramId) const
{
    return m_editors.value(paramId);
}

QWidget *ZrAutoBuildSubWidgetObject::editorWithFocus() const
{
    for (const QPointer<QWidget> &editor : m_focusOrder) {
        if (editor && editor->hasFocus())
            return editor;
    }
    return nullptr;
}

void ZrAutoBuildSubWidgetObject::focusNextOf(QWidget *editor)
{
    const int place = m_focusOrder.indexOf(editor);
    for (int step = 1; place >= 0 && step <= m_focusOrder.size(); ++step) {
        QWidget *const next = m_focusOrder.at((place + step) % m_focusOrder.size());
        if (next)
            return next->setFocus(Qt::OtherFocusReason);
    }
}
