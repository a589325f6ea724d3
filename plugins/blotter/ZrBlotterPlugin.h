#pragma once

#include "ZrPluginBaseWidget.h"

#include <QtCore/QPointer>

#include <vector>

class ZrBlotterPanel;
class ZrBlotterPresenter;
class ZrBlotterToolBar;
class ZrMessageInbox;
struct ZrAppliedBatch;
struct ZrInboxMessage;

/// The order blotter as a plugin: tool bar and live grid, linked by security with its neighbours.
///
/// Shape:     made by the client, then initPlugin() once, which connects it to the bus. A click on a row
///            tells the linkage group its security; one that a neighbour tells is selected here.
/// Ownership: normal QWidget parent rules; its presenter goes with it.
/// Threads:   GUI thread only.
/// Errors:    values that can't be used are ignored.
class ZrBlotterPlugin : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    explicit ZrBlotterPlugin(QWidget *parent = nullptr);
    ~ZrBlotterPlugin() override;

    void initPlugin() override;
    /// The account box's choice; an account without a number shows all.
    void setBaseData(const QString &name, const QVariant &value) override;
    /// Rows, and whether messages wait for the grid.
    QVariant getPluginData() override;
    void setPluginLayoutPropertiesByWidgetName(QString name, const QVariant &value) override;

    /// Null before initPlugin().
    ZrBlotterPanel *panel() const { return m_panel; }

private:
    void createParts();
    void connectParts();
    void takeBatch(const std::vector<ZrInboxMessage> &messages);
    void report(const ZrAppliedBatch &batch);

    int m_maxRows = 100000;
    ZrMessageInbox *m_inbox = nullptr; // our child
    ZrBlotterPanel *m_panel = nullptr; // our child
    QPointer<ZrBlotterPresenter> m_presenter;
};
