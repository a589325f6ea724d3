#include "ZrParamMultiComboKind.h"

#include "ZrMultiComboBox.h"
#include "ZrParamLink.h"

#include "zrdefine/Constants.h"

namespace {
void addOptions(ZrMultiComboBox *combo, const QVariantMap &record, const ZrParamLink &link)
{
    const QVector<ZrParamOption> options = link.options();
    for (const ZrParamOption &option : options)
        combo->addItem(option.text, option.value);
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        combo->selectIndex(combo->findData(record.value(Constants::STRATEGYPARAM_INIT)), true);
}
} // namespace

QWidget *ZrParamMultiComboKind::make(const QVariantMap &record, QWidget *parent,
                                     const ZrParamLink &link) const
{
    auto *const combo = new ZrMultiComboBox(parent);
    addOptions(combo, record, link);
    return combo;
}

QVariant ZrParamMultiComboKind::read(const QWidget *widget, int role) const
{
    const auto *const combo = qobject_cast<const ZrMultiComboBox *>(widget);
    if (!combo)
        return QVariant();
    if (role == Qt::DisplayRole)
        return combo->currentText();
    return role == Qt::UserRole ? combo->getCurrentSelectedIndexData() : QVariant();
}

// What is ticked already stays ticked: required, a form is filled once.
void ZrParamMultiComboKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const combo = qobject_cast<ZrMultiComboBox *>(widget);
    if (!combo)
        return;
    QList<int> rows;
    const QVariantList values = value.toList();
    for (const QVariant &each : values)
        rows.append(combo->findData(each));
    combo->selectIndexes(rows, true);
    if (!isEditable)
        combo->setDisabled(true);
}

void ZrParamMultiComboKind::relink(const QVariantMap &record, QWidget *widget, const ZrParamLink &link) const
{
    auto *const combo = qobject_cast<ZrMultiComboBox *>(widget);
    if (!combo)
        return;
    combo->clear();
    addOptions(combo, record, link);
}
