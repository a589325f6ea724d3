#pragma once

#include "ZrCompleter.h"
#include "ZrReferenceHost.h"
#include "ZrSearchBox.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QAbstractItemView>

#include <memory>

/// A window with a search box, another field and the host's securities, as a user finds it.
///
/// The securities: 600519.SH, 600520.SH and 688001.SH are stocks with the search keys GZMT, WFGF and KCGF;
/// 000001.SZ is a stock (PAYH), 000001.SH an index (SZZS), 510300.SH a fund without a key.
class SearchScene
{
public:
    explicit SearchScene(const QString &skin = QStringLiteral("dark"));
    ~SearchScene();

    bool isReady() const { return m_ready; }
    ZrSearchBox *box() const { return m_box; }
    QWidget *window() const { return m_window.get(); }
    QWidget *other() const { return m_other; }
    ZrReferenceHost *host() { return &m_host; }
    ZrCompleter *completer() const { return m_box->findChild<ZrCompleter *>(); }
    QAbstractItemView *popup() const { return completer()->popup(); }
    /// What the list has, whether it's open or not.
    QStringList rows() const;
    int currentRow() const { return popup()->currentIndex().row(); }

    /// Keys as the platform delivers them: to the open list, else to the window's focus.
    void type(const QString &text);
    void press(Qt::Key key);
    void clickRow(int row);

    /// The running clocks between a pick and its signals.
    QVector<int> pickTimers() const;
    /// The clock runs out now.
    void ringPickTimer();
    /// Ends the box now, in the middle of whatever runs.
    void endBox();

    static QString row(const QString &symbol, const QString &name);

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
    std::unique_ptr<QWidget> m_window;
    QPointer<ZrSearchBox> m_box; // the window's
    QWidget *m_other;            // the window's
    bool m_ready = false;
};
