#pragma once

#include "ZrTestMain.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QPoint>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <sys/types.h>

class QWindow;

/// A display of our own with a window manager on it, and a hand at its mouse and keyboard.
///
/// Shape:     made in main() before the application object, which then shows its windows there. Several may
///            run at once: the server chooses a free display.
/// Units:     px of the display, which has 1280 by 1024 of them.
/// Ownership: server and window manager end with the object, also when the process dies.
/// Errors:    problem() says what could not be started; the rest fails the test that calls it.
class RealDesktop
{
public:
    RealDesktop();
    ~RealDesktop();

    QString problem() const { return m_problem; }

    /// The pointer goes there, and the button goes down and up.
    static void click(const QPoint &at);
    /// The pointer goes from here to there with the left button held.
    static void drag(const QPoint &from, const QPoint &to);
    /// Keys by their names: "Escape", "alt+F4".
    static void key(const QString &name);
    static void type(const QString &text);

private:
    Q_DISABLE_COPY(RealDesktop)
    bool startServer();
    bool startManager();
    /// Starts a program with its output in the log; -1 when it can't be started.
    pid_t start(const QStringList &command) const;
    static void end(pid_t process);
    static void perform(const QStringList &actions);
    /// Once the window that the toolkit knows as the focused one has the keyboard.
    static void performOnFocus(const QStringList &actions);
    static bool hasKeyboard(const QWindow *window);
    static qulonglong windowOf(const QString &question);

    QTemporaryDir m_folder;
    QString m_problem;
    pid_t m_server = -1;
    pid_t m_manager = -1;
};

/// main() of a test whose windows stand on a display of their own. The toolkit asks there for windows that
/// are gone already, and tells the server's answer: that is no warning of ours.
#define ZR_REAL_DESKTOP_MAIN(TestClass)                                                                      \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        const ZrTestProcess process;                                                                         \
        const RealDesktop desktop;                                                                           \
        if (!desktop.problem().isEmpty()) {                                                                  \
            fprintf(stderr, "FAIL!  : %s\n", qPrintable(desktop.problem()));                                 \
            return 1;                                                                                        \
        }                                                                                                    \
        QLoggingCategory::setFilterRules("qt.qpa.xcb.warning=false");                                        \
        QApplication app(argc, argv);                                                                        \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
