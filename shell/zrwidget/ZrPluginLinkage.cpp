#include "ZrPluginLinkage.h"

#include "ZrLinkageCombox.h"
#include "ZrPluginInstanceId.h"
#include "ZrPluginPresenter.h"
#include "ZrPresenterClass.h"

#include "zrdatabase/CDataBase.h"
#include "zrdefine/Constants.h"

#include <QtCore/QDebug>

namespace {
constexpr int none = -1;
constexpr int actionLink = 1;
constexpr int actionUnlink = 2;
constexpr int allTypes = 0;

bool isBeyondColors(int group)
{
    if (group < ZrPluginLinkage::groupColors().size())
        return false;
    qWarning() << "ZrPluginLinkage"
               << "no such group" << group;
    return true;
}

QString rgba(const QColor &color)
{
    return QStringLiteral("%1,%2,%3,%4")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}
} // namespace

ZrPluginLinkage::ZrPluginLinkage(QWidget *plugin, const ZrPluginPresenter *presenter, QObject *parent)
    : QObject(parent)
    , m_plugin(plugin)
    , m_presenter(presenter)
{
}

QList<QColor> ZrPluginLinkage::groupColors()
{
    return {
        {255, 127, 39, 150}, {255, 242, 0, 150}, {0, 162, 232, 150}, {63, 72, 204, 150}, {163, 73, 164, 150}};
}

ZrLinkageCombox *ZrPluginLinkage::combo() const
{
    return m_combo;
}

bool ZrPluginLinkage::isVisible() const
{
    return m_combo && m_combo->isVisible();
}

void ZrPluginLinkage::subscribe(int type, bool enable, int group)
{
    if (!m_presenter->get() || m_types.contains(type))
        return;
    const QPointer<ZrPluginLinkage> self(this);
    if (!m_combo)
        createCombo(type);
    if (!self)
        return;
    m_types.append(type);
    m_group = isBeyondColors(group) ? none : group;
    // A change of the index is a choice like the user's: it links all types, whatever `enable` says.
    if (m_combo)
        m_combo->setCurrentIndex(m_group);
    if (enable && m_group >= 0) {
        relate(type, m_group, actionLink);
    } else if (m_combo) {
        m_combo->hide();
        // Required: a plugin that joins without `enable` is linked all the same, and only its chooser is out
        // of sight. Layouts that show the chooser later count on it.
        emit m_combo->currentIndexChanged(m_combo->currentIndex());
    }
    paintCombo();
}

void ZrPluginLinkage::createCombo(int type)
{
    m_combo = new ZrLinkageCombox(m_plugin);
    m_combo->setAttribute(Qt::WA_DeleteOnClose);
    const QString label =
        CDataBase::GetInstance()->GetStaticCfgValue(Constants::LinkageType, QString::number(type));
    const QList<QColor> colors = groupColors();
    for (const QColor &color : colors) {
        m_combo->addItem(label, rgba(color));
        m_combo->setItemData(m_combo->count() - 1, color, Qt::BackgroundRole);
    }
    emit comboMade(m_combo);
}

void ZrPluginLinkage::paintCombo()
{
    if (m_combo && m_combo->currentIndex() >= 0)
        m_combo->setComboBackground(m_combo->currentData().toString());
}

void ZrPluginLinkage::hideCombo()
{
    if (m_combo)
        m_combo->hide();
}

void ZrPluginLinkage::unsubscribe(int type)
{
    if (!m_presenter->get() || m_types.isEmpty())
        return;
    if (type == allTypes) {
        for (const int each : qAsConst(m_types))
            unrelate(each);
        m_types.clear();
    } else if (m_types.removeAll(type) > 0) {
        unrelate(type);
    }
    if (m_types.isEmpty())
        hideCombo();
}

void ZrPluginLinkage::setState(bool visible, int group)
{
    if (!m_presenter->get() || !m_combo)
        return;
    m_combo->setVisible(visible);
    if (group == none) {
        hideCombo();
        // The bus isn't told. That is required: a plugin whose group is taken away like this shows as
        // unlinked and goes on following its group, until it's given one again or unsubscribes.
        m_group = none;
    } else if (group >= 0 && !isBeyondColors(group)) {
        m_combo->setCurrentIndex(group);
        m_group = group;
    }
}

void ZrPluginLinkage::choose(ZrLinkageCombox *combo, int index)
{
    if (!combo || index < 0 || isBeyondColors(index))
        return;
    for (const int type : qAsConst(m_types))
        relate(type, index, actionLink);
    combo->setComboBackground(combo->currentData().toString());
    m_group = index;
}

void ZrPluginLinkage::relate(int type, int group, int action) const
{
    m_presenter->use([=](ZrPresenterClass *presenter) {
        const QString instanceId = presenter->pluginPid();
        presenter->setRelation(ZrPluginInstanceId::menuId(instanceId), instanceId, type,
                               static_cast<RelationColor_t>(group), action);
    });
}

void ZrPluginLinkage::unrelate(int type) const
{
    if (m_group < 0)
        return;
    const int shown = m_combo ? m_combo->currentIndex() : none;
    relate(type, shown >= 0 ? shown : m_group, actionUnlink);
}
