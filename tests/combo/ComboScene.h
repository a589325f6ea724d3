#pragma once

#include "CheckBoxInMultiBox.h"
#include "ZrMultiComboBox.h"
#include "ZrMultiComboList.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProxyStyle>

#include <memory>

/// A window with one multi-select box on it, as a user finds it.
class ComboScene
{
public:
    /// The rows are called "r0", "r1"...; their data are 1000, 1001...
    explicit ComboScene(int rows = 3);
    ~ComboScene();

    QWidget *window() const { return m_window.get(); }
    ZrMultiComboBox *combo() const { return m_combo; }
    ZrMultiComboList *list() const;
    QLineEdit *edit() const { return m_combo->lineEdit(); }
    CheckBoxInMultiBox *box(int row) const;
    QString shown() const { return edit()->text(); }

    /// By a click on the closed box; waits until the list is there.
    bool open();
    /// A click into the middle of the row, as the list stands there.
    void click(int row);
    void clickAt(int row, int x);
    /// Ends the box now, in the middle of whatever runs.
    void endCombo();

private:
    std::unique_ptr<QWidget> m_window;
    QPointer<ZrMultiComboBox> m_combo; // the window's
};

/// The host with the skins that are shipped.
class SkinnedHost
{
public:
    explicit SkinnedHost(const QString &skinId);
    bool isReady() const { return m_ready; }
    bool setSkin(const QString &skinId) { return m_host.setSkin(skinId); }

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    bool m_ready = false;
};

/// Notes the texts of the check boxes that it draws.
class NotingCheckBoxes : public QProxyStyle
{
    Q_OBJECT
public:
    using QProxyStyle::QProxyStyle;
    mutable QStringList texts;
    mutable QList<QRect> places;

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
};

/// What is told while a tool tip is asked for at the middle of a widget.
QString tipOver(QWidget *widget);
