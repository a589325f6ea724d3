#pragma once

#include <QtWidgets/QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class ZrPluginCatalogue;
class ZrTableView;
struct ZrPluginEntry;

/// The plugin files of the workstation: which are loaded, why others are not, and the way to change that.
///
///     +------------------------------------------+
///     | notice (only when there is one)          |
///     | file | ID | version | state | ...        |
///     | reason of the current file  [x] at start |
///     |                               [Load now] |
///     +------------------------------------------+
///
/// Ownership: normal QWidget parent rules; the catalogue is borrowed and lives longer.
/// Threads:   GUI thread only.
/// Errors:    a choice that can't be kept on disk is told in the notice.
class ZrPluginsPanel : public QWidget
{
    Q_OBJECT
public:
    enum Column { File, Id, Version, State, ReadTime, LoadTime, Reason, ColumnCount };

    explicit ZrPluginsPanel(ZrPluginCatalogue *catalogue, QWidget *parent = nullptr);

    ZrTableView *view() const { return m_view; }
    /// Makes the plugin's row the current one.
    void select(const QString &pluginId);

signals:
    /// The user loaded a plugin that the start had left out.
    void signalLoaded(const QString &pluginId);

private:
    void createLayout();
    void createColumns();
    void showEntries();
    void showCurrent();
    void showNotice(const QString &text);
    void loadCurrent();
    void switchCurrent(bool isWanted);
    const ZrPluginEntry *current() const;

    ZrPluginCatalogue *const m_catalogue; // not owned
    QLabel *m_notice;
    ZrTableView *m_view;
    QLabel *m_reason;
    QCheckBox *m_atStart;
    QPushButton *m_load;
};
