#include "ZrParamComboKind.h"

#include "ZrParamLink.h"
#include "ZrParamRoom.h"
#include "ZrPlainText.h"

#include "zrdefine/Constants.h"

#include <QtGui/QIcon>
#include <QtWidgets/QComboBox>

namespace {
void choose(QComboBox *combo, const QVariant &value)
{
    combo->setCurrentIndex(combo->findData(value, Qt::UserRole, Qt::MatchCaseSensitive));
}

void addOptions(QComboBox *combo, const QVariantMap &record, const ZrParamLink &link)
{
    const QVector<ZrParamOption> options = link.options();
    for (const ZrParamOption &option : options) {
        // The toolkit lays all texts out to find its width, and the shown one at each paint.
        combo->addItem(QIcon(), ZrPlainText::beginning(option.text, ZrPlainText::captionBound), option.value);
        ZrParamRoom::bound(combo, option.text);
    }
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        choose(combo, record.value(Constants::STRATEGYPARAM_INIT));
}
} // namespace

QWidget *ZrParamComboKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const
{
    auto *const combo = new QComboBox(parent);
    addOptions(combo, record, link);
    return combo;
}

QVariant ZrParamComboKind::read(const QWidget *widget, int role) const
{
    const auto *const combo = qobject_cast<const QComboBox *>(widget);
    if (!combo)
        return QVariant();
    if (role == Qt::DisplayRole)
        return combo->currentText();
    return role == Qt::UserRole ? combo->currentData(Qt::UserRole) : QVariant();
}

void ZrParamComboKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const combo = qobject_cast<QComboBox *>(widget);
    if (!combo)
        return;
    choose(combo, value);
    if (!isEditable)
        combo->setDisabled(true);
}

void ZrParamComboKind::relink(const QVariantMap &record, QWidget *widget, const ZrParamLink &link) const
{
    auto *const combo = qobject_cast<QComboBox *>(widget);
    if (!combo)
        return;
    combo->clear();
    addOptions(combo, record, link);
}
