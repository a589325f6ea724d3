#include "ZrFeedTime.h"

#include <QtCore/QDateTime>

#include <limits>

namespace {
constexpr qint64 SecondNs = 1000000000;
constexpr qint64 DayNs = 86400 * SecondNs;

// Reads up to `most` digits from `*at` on; false when there is none.
bool readDigits(const QByteArray &text, int *at, int most, int *value)
{
    const int from = *at;
    *value = 0;
    while (*at < text.size() && *at - from < most && text.at(*at) >= '0' && text.at(*at) <= '9')
        *value = *value * 10 + (text.at((*at)++) - '0');
    return *at > from;
}

// Reads a fraction of a second, any number of digits; what lies beyond nanoseconds is cut off.
bool readFraction(const QByteArray &text, int *at, qint64 *fractionNs)
{
    *fractionNs = 0;
    if (*at >= text.size() || (text.at(*at) != '.' && text.at(*at) != ','))
        return true;
    qint64 unit = SecondNs;
    const int from = ++*at;
    while (*at < text.size() && text.at(*at) >= '0' && text.at(*at) <= '9') {
        unit /= 10;
        *fractionNs += unit * (text.at((*at)++) - '0');
    }
    return *at > from;
}

// hh:mm or hh:mm:ss with a fraction; leaves *at behind it. 24:00:00 and a leap second are times.
bool readClock(const QByteArray &text, int *at, qint64 *sinceMidnightNs)
{
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    qint64 fractionNs = 0;
    if (!readDigits(text, at, 2, &hours) || *at >= text.size() || text.at((*at)++) != ':' ||
        !readDigits(text, at, 2, &minutes))
        return false;
    if (*at < text.size() && text.at(*at) == ':') {
        ++*at;
        if (!readDigits(text, at, 2, &seconds) || !readFraction(text, at, &fractionNs))
            return false;
    }
    if (hours > 24 || minutes > 59 || seconds > 60)
        return false;
    *sinceMidnightNs = (hours * 3600 + minutes * 60 + seconds) * SecondNs + fractionNs;
    return true;
}

// +08:00, +0800, +08 or Z; leaves *at behind it.
bool readOffset(const QByteArray &text, int *at, qint64 *offsetNs)
{
    const char sign = text.at((*at)++);
    *offsetNs = 0;
    if (sign == 'Z' || sign == 'z')
        return true;
    int hours = 0;
    int minutes = 0;
    if ((sign != '+' && sign != '-') || !readDigits(text, at, 2, &hours))
        return false;
    if (*at < text.size() && text.at(*at) == ':')
        ++*at;
    if (*at < text.size() && !readDigits(text, at, 2, &minutes))
        return false;
    *offsetNs = (hours * 60 + minutes) * 60 * SecondNs * (sign == '-' ? -1 : 1);
    return hours <= 14 && minutes <= 59;
}
} // namespace

void ZrFeedTime::prepare()
{
    m_midnightNs = midnightOf(date);
}

qint64 ZrFeedTime::midnightOf(const QDate &day) const
{
    return QDateTime(day, QTime(0, 0), zone).toMSecsSinceEpoch() * 1000000;
}

bool ZrFeedTime::read(const QByteArray &text, qint64 *timeNs) const
{
    switch (form) {
    case ZrTimeForm::Clock: {
        int at = 0;
        qint64 sinceMidnightNs = 0;
        if (!readClock(text, &at, &sinceMidnightNs) || at != text.size())
            return false;
        *timeNs = m_midnightNs + sinceMidnightNs;
        return true;
    }
    case ZrTimeForm::Compact:
        return readCompact(text, timeNs);
    case ZrTimeForm::Seconds:
        return readNumber(text, SecondNs, timeNs);
    case ZrTimeForm::Milliseconds:
        return readNumber(text, 1000000, timeNs);
    case ZrTimeForm::Microseconds:
        return readNumber(text, 1000, timeNs);
    case ZrTimeForm::Nanoseconds:
        return readNumber(text, 1, timeNs);
    case ZrTimeForm::Iso:
        return readIso(text, timeNs);
    }
    return false;
}

bool ZrFeedTime::readCompact(const QByteArray &text, qint64 *timeNs) const
{
    // [yyyyMMdd][h]hmmss[zzz]: numbers in files lose their leading zero.
    bool digits = !text.isEmpty();
    for (const char c : text)
        digits = digits && c >= '0' && c <= '9';
    QByteArray clock = text;
    qint64 midnightNs = m_midnightNs;
    if (digits && text.size() >= 14) {
        const QDate day = QDate::fromString(QString::fromLatin1(text.left(8)), QStringLiteral("yyyyMMdd"));
        digits = fits(day);
        midnightNs = digits ? midnightOf(day) : 0;
        clock = text.mid(8);
    }
    if (!digits || clock.size() > 9)
        return false;
    clock = clock.size() <= 6 ? clock.rightJustified(6, '0') + "000" : clock.rightJustified(9, '0');
    const qint64 hours = clock.left(2).toInt();
    const qint64 minutes = clock.mid(2, 2).toInt();
    const qint64 seconds = clock.mid(4, 2).toInt();
    if (hours > 24 || minutes > 59 || seconds > 60)
        return false;
    *timeNs =
        midnightNs + (hours * 3600 + minutes * 60 + seconds) * SecondNs + clock.mid(6).toLongLong() * 1000000;
    return true;
}

bool ZrFeedTime::readNumber(const QByteArray &text, qint64 unitNs, qint64 *timeNs) const
{
    const int point = text.indexOf('.');
    bool good = false;
    const qint64 whole = text.left(point < 0 ? text.size() : point).toLongLong(&good);
    qint64 fractionNs = 0;
    int at = point;
    if (!good || whole < 0 || whole > std::numeric_limits<qint64>::max() / 2 / unitNs)
        return false;
    if (point >= 0 && (!readFraction(text, &at, &fractionNs) || at != text.size()))
        return false;
    const qint64 countNs = whole * unitNs + fractionNs / (SecondNs / unitNs);
    if (!sinceEpoch && countNs > 2 * DayNs)
        return false;
    *timeNs = countNs + (sinceEpoch ? 0 : m_midnightNs);
    return true;
}

bool ZrFeedTime::readIso(const QByteArray &text, qint64 *timeNs) const
{
    if (text.size() < 16 || (text.at(10) != 'T' && text.at(10) != ' '))
        return false;
    const QDate day = QDate::fromString(QString::fromLatin1(text.left(10)), Qt::ISODate);
    int at = 11;
    qint64 sinceMidnightNs = 0;
    if (!fits(day) || !readClock(text, &at, &sinceMidnightNs))
        return false;
    if (at == text.size()) {
        *timeNs = midnightOf(day) + sinceMidnightNs;
        return true;
    }
    qint64 offsetNs = 0;
    if (!readOffset(text, &at, &offsetNs) || at != text.size())
        return false;
    *timeNs = QDate(1970, 1, 1).daysTo(day) * DayNs + sinceMidnightNs - offsetNs;
    return true;
}

ZrClockText::ZrClockText(const QTimeZone &zone)
    : m_zone(zone)
{
}

QString ZrClockText::text(qint64 timeNs)
{
    constexpr qint64 quarterMs = 900000;
    constexpr qint64 dayMs = 86400000;
    const qint64 timeMs = timeNs / 1000000;
    if (timeMs / quarterMs != m_quarter) {
        m_quarter = timeMs / quarterMs;
        m_offsetMs = qint64(m_zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(timeMs, Qt::UTC))) * 1000;
    }
    const qint64 clockMs = ((timeMs + m_offsetMs) % dayMs + dayMs) % dayMs;
    QString result(12, QLatin1Char(':'));
    const auto write = [&result](int at, int digits, qint64 value) {
        for (; digits > 0; --digits, value /= 10)
            result[at + digits - 1] = QLatin1Char(char('0' + value % 10));
    };
    write(0, 2, clockMs / 3600000);
    write(3, 2, clockMs / 60000 % 60);
    write(6, 2, clockMs / 1000 % 60);
    write(9, 3, clockMs % 1000);
    result[8] = QLatin1Char('.');
    return result;
}
