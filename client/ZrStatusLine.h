#pragma once

#include <QtWidgets/QStatusBar>

class QLabel;
class ZrLatencyMeter;

/// The window's status bar: messages a second, rows, tick-to-pixel time.
class ZrStatusLine : public QStatusBar
{
    Q_OBJECT
public:
    explicit ZrStatusLine(QWidget *parent = nullptr);

    /// `spanMs` is the time in which `messages` came and `toPixel` was measured.
    void show(qint64 messages, qint64 spanMs, int rows, const ZrLatencyMeter &toPixel);
    void setFeed(const QString &name);

private:
    QLabel *addLabel(const char *name);

    QLabel *m_feed;
    QLabel *m_rate;
    QLabel *m_rows;
    QLabel *m_latency;
};
