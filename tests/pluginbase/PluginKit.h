#pragma once

#include "PresenterProbe.h"
#include "ZrPluginBaseWidget.h"
#include "ZrViewBase.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <vector>

/// A plugin that keeps what is called, in order.
class PluginProbe : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    explicit PluginProbe(QWidget *parent = nullptr);
    ~PluginProbe() override;

    using ZrPluginBaseWidget::addSkinFile;
    using ZrPluginBaseWidget::closeEvent;

    void initPlugin() override;
    void setBaseData(const QString &name, const QVariant &value) override;
    void pluginSelectStateChanged(bool selected) override;
    void setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value) override;
    void pluginResized() override;

    void giveInstanceId(const QString &id = QStringLiteral("menu#plugin#_1"));
    /// The values that setBaseData got under a name.
    QVariantList valuesOf(const QString &name) const;

    QStringList calls; // without those of setBaseData
    QList<QPair<QString, QVariant>> baseData;
    std::function<void(const QString &)> hook; // runs within each call, last, with what was called

private:
    void keep(const QString &call);
};

/// A view that keeps what it is given.
class ViewProbe : public ZrViewBase
{
    Q_OBJECT
public:
    explicit ViewProbe(const QString &caption = QString(), QWidget *parent = nullptr);

    void setPluginViewColumnVisiableProperity(const QList<int> &hiddenColumns) override;
    QList<int> getHeadLogicIndexList() override { return shownOrder; }
    void setPluginViewHeadLogicIndexProperity(const QList<int> &order) override;
    HeadList getHeadList() override { return {}; }
    HeadList getVisibleHeadData() override { return {}; }
    RecordDataList getViewCurrentDisplayData() override { return {}; }

    QList<int> shownOrder;
    QList<QList<int>> hidden; // each list that was given
    QList<QList<int>> orders;
    std::function<void()> hook; // runs within each call, last
};

/// Tells in which linkage groups of a menu a participant is linked: one listener stands in each.
class LinkWitness
{
public:
    explicit LinkWitness(const QString &menu = QStringLiteral("menu"));
    ~LinkWitness();
    /// Groups that hear what the presenter shares under the type.
    QList<int> groupsOf(ZrPresenterClass *presenter, int type);

private:
    class Listener;
    const QString m_menu;
    std::vector<std::unique_ptr<Listener>> m_listeners;
};

using Columns = QList<int>;
using ColumnMap = QMap<QString, QList<int>>;
