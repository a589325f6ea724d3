#include "PluginKit.h"

#include "zrbase/IMessageInterface.h"
#include "zrdefine/PluginPropety.h"
#include "zrevent/CEventMessageCommon.h"

#include <QtCore/QMutex>

PluginProbe::PluginProbe(QWidget *parent)
    : ZrPluginBaseWidget(parent)
{
}

PluginProbe::~PluginProbe() = default;

void PluginProbe::initPlugin()
{
    keep(QStringLiteral("init"));
}

void PluginProbe::setBaseData(const QString &name, const QVariant &value)
{
    baseData.append({name, value});
    if (hook)
        hook(QStringLiteral("data ") + name);
}

void PluginProbe::pluginSelectStateChanged(bool selected)
{
    keep(selected ? QStringLiteral("selected") : QStringLiteral("deselected"));
}

void PluginProbe::setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value)
{
    keep(QStringLiteral("layout ") + name + QLatin1Char('=') + value.toString());
}

void PluginProbe::pluginResized()
{
    keep(QStringLiteral("resized"));
}

void PluginProbe::giveInstanceId(const QString &id)
{
    setProperty(PluginPropety::PLUGININSTANCE_ID.toLatin1().constData(), id);
}

QVariantList PluginProbe::valuesOf(const QString &name) const
{
    QVariantList values;
    for (const auto &data : baseData) {
        if (data.first == name)
            values.append(data.second);
    }
    return values;
}

void PluginProbe::keep(const QString &call)
{
    calls.append(call);
    if (hook)
        hook(call);
}

ViewProbe::ViewProbe(const QString &caption, QWidget *parent)
    : ZrViewBase(parent)
{
    SetViewCaption(caption);
}

void ViewProbe::setPluginViewColumnVisiableProperity(const QList<int> &hiddenColumns)
{
    hidden.append(hiddenColumns);
    if (hook)
        hook();
}

void ViewProbe::setPluginViewHeadLogicIndexProperity(const QList<int> &order)
{
    orders.append(order);
    if (hook)
        hook();
}

/// Stands in one group, and counts what it hears there.
class LinkWitness::Listener : public IMessageInterface
{
public:
    explicit Listener(int group)
        : IMessageInterface(nullptr)
        , pid(QStringLiteral("witness%1").arg(group))
    {
        Reg(pid, this, SharedThread);
    }
    ~Listener() override
    {
        UnReg(pid);
        ZrBus::instance().waitIdle(-1);
    }
    void ProcEventMsg(QString, QVariant, QVariant) override { ++heard; }

    const QString pid;
    std::atomic<int> heard{0};
};

LinkWitness::LinkWitness(const QString &menu)
    : m_menu(menu)
{
    for (int group = 0; group < 5; ++group)
        m_listeners.push_back(std::make_unique<Listener>(group));
}

LinkWitness::~LinkWitness() = default;

QList<int> LinkWitness::groupsOf(ZrPresenterClass *presenter, int type)
{
    ZrBus &bus = ZrBus::instance();
    for (int group = 0; group < int(m_listeners.size()); ++group) {
        m_listeners[size_t(group)]->heard = 0;
        bus.link(m_menu, m_listeners[size_t(group)]->pid, type, group);
    }
    auto *const event = new CEventMessageCommon;
    event->SetType(type);
    presenter->PutEvent(presenter->pluginPid(), event);
    bus.waitIdle(-1);
    QList<int> groups;
    for (int group = 0; group < int(m_listeners.size()); ++group) {
        if (m_listeners[size_t(group)]->heard > 0)
            groups.append(group);
    }
    return groups;
}
