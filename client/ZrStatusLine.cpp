#include "ZrStatusLine.h"

#include "ZrLatencyMeter.h"

#include <QtCore/QLocale>
#include <QtWidgets/QLabel>

ZrStatusLine::ZrStatusLine(QWidget *parent)
    : QStatusBar(parent)
    , m_feed(addLabel("feed"))
    , m_rate(addLabel("rate"))
    , m_rows(addLabel("rows"))
    , m_latency(addLabel("latency"))
{
    setSizeGripEnabled(false);
}

QLabel *ZrStatusLine::addLabel(const char *name)
{
    auto *const label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText); // a feed's name comes from a file
    addWidget(label);
    return label;
}

void ZrStatusLine::setFeed(const QString &name)
{
    m_feed->setText(tr("Feed: %1").arg(name));
}

void ZrStatusLine::show(qint64 messages, qint64 spanMs, int rows, const ZrLatencyMeter &toPixel)
{
    const double rate = spanMs > 0 ? double(messages) * 1000.0 / double(spanMs) : 0;
    m_rate->setText(tr("%1 messages/s").arg(locale().toString(qRound64(rate))));
    m_rows->setText(tr("%1 rows").arg(locale().toString(rows)));
    if (toPixel.count() > 0)
        m_latency->setText(tr("Tick to pixel: %1 ms median, %2 ms 99th percentile")
                               .arg(locale().toString(toPixel.percentileUs(0.5) / 1000.0, 'f', 1),
                                    locale().toString(toPixel.percentileUs(0.99) / 1000.0, 'f', 1)));
}
