#pragma once

#include <QtWidgets/QToolBar>

class QComboBox;
class ZrBlotterPanel;

/// Tries what the grid can do: frozen columns, check boxes, serial numbers, filter, summary, delayed
/// display, row limit.
///
/// Ownership: normal QWidget parent rules; borrows the panel, which lives as long as the plugin.
/// Threads:   GUI thread only.
class ZrBlotterToolBar : public QToolBar
{
    Q_OBJECT
public:
    ZrBlotterToolBar(ZrBlotterPanel *panel, int maxRows, QWidget *parent = nullptr);

    /// The toggle of that name, null when there is none: "freezeLeft", "freezeRight", "checkBoxes", "follow",
    /// "openOnly", "summary", "delayed".
    QAction *toggle(const QString &name) const;

private:
    QAction *addToggle(const char *name, const QString &text, const QString &tip);
    void addToggles();
    void addSerial();
    void addRowLimit(int maxRows);
    QComboBox *addChoice(const QString &label, const QString &tip);
    void freeze(int side, bool on);
    void freezeAgain();
    void delayDisplay(QAction *toggle);

    ZrBlotterPanel *const m_panel; // not owned
};
