// A program with one race, between two of the client's threads, beside the things a correct program does: it
// shows that the check sees races at all. It must be reported; no test may wait for it to pass.

#include "zrutils/ZrThread.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <cstdio>

namespace {
int unguarded = 0; // two threads write it, and nothing orders them

void countUp()
{
    for (int i = 0; i < 1000; ++i)
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
