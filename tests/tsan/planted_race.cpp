// A program with one race, between two of the client's threads, beside the things a correct program does: it
// shows that the check sees races at all. It must be reported; no test may wait for it to pass.

#include "zrutils/ZrThread.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <atomic>
#include <cstdio>

namespace {
int unguarded = 0; // two threads write it, and nothing orders them
std::atomic<int> arrived{0};

// They wait for each other without ordering anything: whatever the toolkit orders at a thread's begin and end
// shall not hide the race.
void countUp()
{
    arrived.fetch_add(1, std::memory_order_relaxed);
    while (arrived.load(std::memory_order_relaxed) < 2)
        QThread::yieldCurrentThread();
    ++unguarded;
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    ZrThread first(nullptr);
    ZrThread second(nullptr);
    QObject::connect(&first, &QThread::started, &first, countUp, Qt::DirectConnection);
    QObject::connect(&second, &QThread::started, &second, countUp, Qt::DirectConnection);
    first.start();
    second.start();
    for (ZrThread *thread : {&first, &second}) {
        thread->quit();
        thread->wait();
    }
    std::printf("counted to %d\n", unguarded);
    return 0;
}
