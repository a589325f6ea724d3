#include "ZrClientApplication.h"

ZrClientApplication::ZrClientApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
}

void ZrClientApplication::watchFrames(QWidget *widget)
{
    m_watched = widget;
}

bool ZrClientApplication::isWatched(QObject *receiver) const
{
    const auto *const widget = qobject_cast<QWidget *>(receiver);
    return widget && m_watched && (widget == m_watched || m_watched->isAncestorOf(widget));
}

bool ZrClientApplication::notify(QObject *receiver, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isUpdate = type == QEvent::UpdateRequest;
    if (type == QEvent::Paint && isWatched(receiver))
        m_painted = true;
    if (type != QEvent::Paint && !isUpdate)
        return QApplication::notify(receiver, event);
    // Paint events come nested in the update request; one that comes alone is a frame of its own.
    ++m_depth;
    const bool result = QApplication::notify(receiver, event);
    --m_depth;
    if (m_depth == 0 && m_painted) {
        m_painted = false;
        emit signalFrame();
    }
    return result;
}
