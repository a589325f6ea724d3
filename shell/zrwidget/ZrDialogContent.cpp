#include "ZrDialogContent.h"

#include "zrdefine/PluginPropety.h"
#include "ZrDialog.h"
#include "ZrPluginBaseWidget.h"

namespace {

// A plugin's own width and height come from files, too.
int sane(const QVariant &px)
{
    return qBound(0, px.toInt(), QWIDGETSIZE_MAX);
}

} // namespace

void ZrDialogContent::replace(QWidget *widget, QObject *filter)
{
    watch(m_widget, filter, false);
    m_widget = widget;
    watch(m_widget, filter, true);
}

ZrPluginBaseWidget *ZrDialogContent::plugin() const
{
    return qobject_cast<ZrPluginBaseWidget *>(m_widget.data());
}

void ZrDialogContent::connectTo(ZrDialog *dialog) const
{
    const ZrPluginBaseWidget *const hosted = plugin();
    if (!hosted)
        return;
    // Once, also when the same plugin is put in again.
    const auto once = Qt::ConnectionType(Qt::AutoConnection | Qt::UniqueConnection);
    QObject::connect(hosted, &ZrPluginBaseWidget::signalClosePluginWidget, dialog,
                     &ZrDialog::slotClosePluginWidget, once);
    QObject::connect(hosted, &ZrPluginBaseWidget::signalPluginDialogExecReturn, dialog,
                     &ZrDialog::slotPluginDialogExecReturn, once);
    QObject::connect(hosted, &ZrPluginBaseWidget::signalPluginWidgetSizeChanged, dialog,
                     &ZrDialog::slotPluginWidgetSizeChanged, once);
    QObject::connect(hosted, &ZrPluginBaseWidget::signalAddPluginDialogTitleWidget, dialog,
                     &ZrDialog::slotAddPluginDialogTitleWidget, once);
}

QSize ZrDialogContent::wantedSize() const
{
    if (!m_widget)
        return QSize();
    const ZrPluginBaseWidget *const hosted = plugin();
    const QVariant widthPx =
        hosted ? hosted->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALWIDTH) : QVariant();
    if (!widthPx.isValid())
        return m_widget->size();
    return QSize(sane(widthPx),
                 sane(hosted->getPluginWidgetPropety(PluginPropety::PLUGINWIDGET_NORMALHEIGHT)));
}

bool ZrDialogContent::mayClose() const
{
    ZrPluginBaseWidget *const hosted = plugin();
    QString reason; // the plugin has told the user itself, if it wants to
    return !hosted || hosted->isCloseable(reason) <= 0;
}

void ZrDialogContent::refresh() const
{
    if (ZrPluginBaseWidget *const hosted = plugin())
        hosted->refresh();
}

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
