#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QColor>

class QWidget;
class ZrLinkageCombox;
class ZrPluginPresenter;

/// A plugin's part in the linkage: which types of linkage data it shares, and in which group.
///
/// Shape:     one group for all types. A group is one of five colours, and the bus relays data among the
///            plugins of one menu, group and type. The user chooses the group in a combo box, which is made
///            for the first type and keeps its label.
/// Units:     groups by index of their colour; -1 means unlinked.
/// Ownership: the combo box is the plugin widget's child until its title takes it, and may die with that.
/// Threads:   GUI thread only.
/// Errors:    without a presenter nothing is done. A group beyond the colours is logged and counts as none.
class ZRWIDGET_PRIVATE_EXPORT ZrPluginLinkage : public QObject
{
    Q_OBJECT
public:
    /// Both are borrowed and outlive this.
    ZrPluginLinkage(QWidget *plugin, const ZrPluginPresenter *presenter, QObject *parent = nullptr);

    static QList<QColor> groupColors();

    void subscribe(int type, bool enable, int group);
    /// Type 0 means all.
    void unsubscribe(int type);
    void setState(bool visible, int group);
    /// The user's choice in `combo`.
    void choose(ZrLinkageCombox *combo, int index);

    QList<int> types() const { return m_types; }
    int group() const { return m_group; }
    /// Null before the first type.
    ZrLinkageCombox *combo() const;
    bool isVisible() const;

signals:
    /// The title shall take it.
    void comboMade(ZrLinkageCombox *combo);

private:
    void createCombo(int type);
    void paintCombo();
    void hideCombo();
    void relate(int type, int group, int action) const;
    void unrelate(int type) const;

    QWidget *const m_plugin;
    const ZrPluginPresenter *const m_presenter;
    QList<int> m_types;
    int m_group = -1;
    QPointer<ZrLinkageCombox> m_combo;
};
