#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDate>
#include <QtCore/QString>
#include <QtCore/QTimeZone>

/// How a recording writes its times.
enum class ZrTimeForm {
    Clock,   // 09:30:00 with any number of decimals
    Compact, // 93000123 or 20230201093000123: digits only, milliseconds last
    Seconds, // the last four: numbers with decimals
    Milliseconds,
    Microseconds,
    Nanoseconds,
    Iso // 2023-02-01T09:30:00.123456789+08:00
};

/// Reads the times of one file.
///
/// Shape:   clock times and times "since midnight" belong to `date` in `zone`; an ISO time without an
///          offset to `zone`. Times "since epoch" need neither.
/// Units:   results are nanoseconds since 1970-01-01 UTC.
/// Threads: any; a value.
/// Errors:  read() says whether the text was a time of the form.
class ZrFeedTime
{
public:
    ZrTimeForm form = ZrTimeForm::Clock;
    bool sinceEpoch = false;
    QDate date = QDate(1970, 1, 1);
    QTimeZone zone = QTimeZone::utc();

    /// Whether the times of a day fit into nanoseconds since 1970; those of all days of 1700 to 2200 do.
    static bool fits(const QDate &day) { return day.isValid() && day.year() >= 1700 && day.year() <= 2200; }
    /// To be called once after the fields are set: finds the midnight that times count from.
    void prepare();
    bool read(const QByteArray &text, qint64 *timeNs) const;
    qint64 midnightNs() const { return m_midnightNs; }

private:
    bool readCompact(const QByteArray &text, qint64 *timeNs) const;
    bool readNumber(const QByteArray &text, qint64 unitNs, qint64 *timeNs) const;
    bool readIso(const QByteArray &text, qint64 *timeNs) const;
    qint64 midnightOf(const QDate &day) const;

    qint64 m_midnightNs = 0;
};

/// Writes times as the clock of a zone shows them, "09:30:00.123".
///
/// Shape:   asks the zone once for each quarter of an hour: its rules are slow to read and change on none
///          of the minutes between.
/// Threads: one at a time.
class ZrClockText
{
public:
    explicit ZrClockText(const QTimeZone &zone);
    QString text(qint64 timeNs);

private:
    const QTimeZone m_zone;
    qint64 m_quarter = -1;
    qint64 m_offsetMs = 0;
};
