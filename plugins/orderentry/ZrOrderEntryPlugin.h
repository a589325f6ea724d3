#pragma once

#include "ZrPluginBaseWidget.h"

#include <QtCore/QPointer>

class ZrOrderEntryPanel;
class ZrOrderEntryPresenter;
class ZrOrderTicket;

/// Order entry as a plugin: the form of an order, sent over the bus, and the reports on what was sent.
///
/// Shape:     made by the client, then initPlugin() once. Linked by security and by order: a neighbour's
///            security, or a level of its book, fills the form.
/// Ownership: normal QWidget parent rules; its presenter goes with it.
/// Threads:   GUI thread only.
/// Errors:    an order that can't leave or is refused is said under the form.
class ZrOrderEntryPlugin : public ZrPluginBaseWidget
{
    Q_OBJECT
public:
    explicit ZrOrderEntryPlugin(QWidget *parent = nullptr);
    ~ZrOrderEntryPlugin() override;

    void initPlugin() override;
    /// The account box's choice.
    void setBaseData(const QString &name, const QVariant &value) override;

    /// Null before initPlugin().
    ZrOrderEntryPanel *panel() const { return m_panel; }

private:
    void connectParts();
    void send(const ZrOrderTicket &ticket);
    void accepted(const QVariantMap &order);
    void refused(int code, const QString &text);
    void takeSecurity(const QVariantMap &security);
    void takeLevel(const QVariantMap &level);
    void tellSecurity(const QString &symbol);

    ZrOrderEntryPanel *m_panel = nullptr; // our child
    QPointer<ZrOrderEntryPresenter> m_presenter;
};
