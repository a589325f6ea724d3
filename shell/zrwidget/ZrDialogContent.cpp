#include "ZrDialogContent.h"

#include "ZrDialog.h"

void ZrDialogContent::replace(QWidget *widget, QObject *filter)
{
    watch(m_widget, filter, false);
    m_widget = widget;
    watch(m_widget, filter, true);
}

void ZrDialogContent::connectTo(ZrDialog *dialog) const
{
    Q_UNUSED(dialog)
}

QSize ZrDialogContent::wantedSize() const
{
    return m_widget ? m_widget->size() : QSize();
}

bool ZrDialogContent::mayClose() const
{
    return true;
}

void ZrDialogContent::refresh() const {}

void ZrDialogContent::watch(QWidget *widget, QObject *filter, bool on)
{
    if (!widget)
        return;
    QObjectList all{widget};
    all.append(widget->findChildren<QObject *>());
    for (QObject *const each : qAsConst(all)) {
        if (on)
            each->installEventFilter(filter);
        else
            each->removeEventFilter(filter);
    }
}
