#include "RealDesktop.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QVector>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtTest/QtTest>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
constexpr int patienceMs = 60 * 1000; // of a loaded machine

QByteArray readLine(int fd)
{
    QByteArray line;
    pollfd source{fd, POLLIN, 0};
    char unit = 0;
    while (poll(&source, 1, patienceMs) > 0 && read(fd, &unit, 1) == 1 && unit != '\n')
        line.append(unit);
    return unit == '\n' ? line : QByteArray();
}

[[noreturn]] void becomeProgram(const QByteArray &log, QVector<char *> arguments)
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const int output = open(log.constData(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    execvp(arguments.first(), arguments.data());
    _exit(127);
}
} // namespace

RealDesktop::RealDesktop()
{
    if (!m_folder.isValid())
        m_problem = QStringLiteral("no folder");
    else if (!startServer())
        m_problem = QStringLiteral("Xvfb could not be started");
    else if (!startManager())
        m_problem = QStringLiteral("openbox could not be started");
}

RealDesktop::~RealDesktop()
{
    end(m_manager);
    end(m_server);
}

pid_t RealDesktop::start(const QStringList &command) const
{
    const QByteArray log = m_folder.filePath(QStringLiteral("log")).toLocal8Bit();
    QList<QByteArray> words;
    for (const QString &word : command)
        words.append(word.toLocal8Bit());
    QVector<char *> arguments;
    for (QByteArray &word : words)
        arguments.append(word.data());
    arguments.append(nullptr);
    const pid_t process = fork();
    if (process == 0)
        becomeProgram(log, arguments);
    return process;
}

// The server writes the number of the display that it found free, once it takes clients.
bool RealDesktop::startServer()
{
    int ends[2];
    if (pipe(ends) != 0)
        return false;
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    m_server = start({QStringLiteral("Xvfb"), QStringLiteral("-displayfd"), QString::number(ends[1]),
                      QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("1280x1024x24"),
                      QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    close(ends[1]);
    const QByteArray number = readLine(ends[0]);
    close(ends[0]);
    if (m_server < 0 || number.isEmpty())
        return false;
    qputenv("DISPLAY", ':' + number);
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Nothing of the user's own desktop: no bus that would be started, no input method, no graphics driver.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_IM_MODULE", "none");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    return true;
}

// The manager runs the command that makes the file once it manages windows.
bool RealDesktop::startManager()
{
    const QString mark = m_folder.filePath(QStringLiteral("managed"));
    m_manager = start({QStringLiteral("openbox"), QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                       QStringLiteral("touch ") + mark});
    QElapsedTimer clock;
    clock.start();
    while (m_manager > 0 && !QFileInfo::exists(mark) && clock.elapsed() < patienceMs) {
        if (waitpid(m_manager, nullptr, WNOHANG) != 0)
            m_manager = -1; // it ended by itself
        else
            poll(nullptr, 0, 5);
    }
    return m_manager > 0 && QFileInfo::exists(mark);
}

void RealDesktop::end(pid_t process)
{
    if (process <= 0)
        return;
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}

void RealDesktop::perform(const QStringList &actions)
{
    QProcess hand;
    hand.start(QStringLiteral("xdotool"), actions);
    QTRY_COMPARE_WITH_TIMEOUT(hand.state(), QProcess::NotRunning, patienceMs);
    QCOMPARE(hand.exitStatus(), QProcess::NormalExit);
    QCOMPARE(hand.exitCode(), 0);
}

qulonglong RealDesktop::windowOf(const QString &question)
{
    QProcess hand;
    hand.start(QStringLiteral("xdotool"), {question});
    hand.waitForFinished(patienceMs);
    return hand.readAllStandardOutput().trimmed().toULongLong();
}

// As the server and as the manager know it. The toolkit hears of a window's turn before the manager has set
// everything for it, and a key that comes in between is nobody's.
bool RealDesktop::hasKeyboard(const QWindow *window)
{
    return window && windowOf(QStringLiteral("getwindowfocus")) == window->winId() &&
           windowOf(QStringLiteral("getactivewindow")) == window->winId();
}

// Of the pointer too: what is pressed before the manager is done with a new window may be nobody's.
void RealDesktop::performOnFocus(const QStringList &actions)
{
    QTRY_VERIFY_WITH_TIMEOUT(hasKeyboard(QGuiApplication::focusWindow()), patienceMs);
    perform(actions);
}

namespace {
QStringList moveTo(const QPoint &point)
{
    return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
}
} // namespace

void RealDesktop::click(const QPoint &at)
{
    performOnFocus(moveTo(at) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void RealDesktop::drag(const QPoint &from, const QPoint &to)
{
    performOnFocus(moveTo(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")} +
                   moveTo((from * 2 + to) / 3) + moveTo((from + to * 2) / 3) + moveTo(to) +
                   QStringList{QStringLiteral("mouseup"), QStringLiteral("1")});
}

void RealDesktop::key(const QString &name)
{
    performOnFocus({QStringLiteral("key"), name});
}

void RealDesktop::type(const QString &text)
{
    performOnFocus({QStringLiteral("type"), text});
}
