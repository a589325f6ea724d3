#include "zrutils/ZrThread.h"

ZrThread::ZrThread(QObject *parent)
    : QThread(parent)
{
}

ZrThread::~ZrThread() = default;
