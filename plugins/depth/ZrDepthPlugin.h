#pragma once

#include "ZrDepthMarkets.h"
#include "ZrPluginBaseWidget.h"

#include <QtCore/QPointer>

class ZrDepthPanel;
class ZrDepthPresenter;

/// Market depth as a plugin: the order book of one security, linked with its neighbours.
///
/// Shape:     made by the client, then initPlugin() once, which connects it to the bus. It follows the
///            security that a neighbour tells or the user searches for; until then, the first one whose book
///            comes. A level that is picked is told to the linkage group, so that an order form can take it
///            over.
/// Ownership: normal QWidget parent rules; its presenter goes with it.
/// Threads:   GUI thread only.
class ZrDepthPlugin : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    explicit ZrDepthPlugin(QWidget *parent = nullptr);
    ~ZrDepthPlugin() override;

    void initPlugin() override;
    /// The symbol, so that a layout brings it back.
    QVariant getPluginData() override;
    void setPluginData(QVariant &data) override;

    /// Null before initPlugin().
    ZrDepthPanel *panel() const { return m_panel; }
    /// Empty until there is one.
    QString symbol() const { return m_symbol; }

private:
    void connectParts();
    void choose(const QString &symbol);
    void showMarket();

    ZrDepthMarkets m_markets;
    QString m_symbol;                // the one that is shown
    ZrDepthPanel *m_panel = nullptr; // our child
    QPointer<ZrDepthPresenter> m_presenter;
};
