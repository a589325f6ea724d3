#include "zrutils/ZrRecordSorter.h"

#include "zrutils/ZrCellValue.h"
#include "zrutils/ZrNumber.h"
#include "zrutils/ZrRadixSort.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {
constexpr quint64 signBit = quint64(1) << 63;
constexpr qint64 dayMs = 24 * 60 * 60 * 1000;
constexpr qint64 epochDay = 2440588; // Julian day of the first day of 1970
constexpr qint64 farthestDay = Q_INT64_C(100000000000);
constexpr qint64 exactReals = qint64(1) << 53; // whole numbers up to here are doubles too

/// Bits of a signed number, so that the order of the bits is that of the numbers.
quint64 signedKey(quint64 bits)
{
    return bits ^ signBit;
}

/// The same for doubles; NaN below all, and both zeros equal.
quint64 realKey(double value)
{
    if (std::isnan(value))
        return 0;
    const quint64 bits = ZrNumber::fromReal(value + 0.0).asUnsigned();
    return bits & signBit ? ~bits : bits | signBit;
}

template<typename T>
const T &stored(const QVariant &value)
{
    return *static_cast<const T *>(value.constData());
}

/// Milliseconds of the clock on the wall since that clock told the start of 1970.
qint64 wallClockMs(const QDateTime &moment)
{
    // Dates beyond all calendars lie outside of what 64 bits count in ms.
    return qBound(-farthestDay, moment.date().toJulianDay() - epochDay, farthestDay) * dayMs +
           moment.time().msecsSinceStartOfDay();
}

qint64 instantOfWallClock(qint64 ms)
{
    const QDateTime asUtc = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
    return QDateTime(asUtc.date(), asUtc.time(), Qt::LocalTime).toMSecsSinceEpoch();
}

ZrNumber numberOf(quint32 kind, quint64 bits)
{
    return ZrNumber::fromBits(static_cast<ZrNumber::Kind>(kind), bits);
}

bool isExactReal(quint64 signedBits)
{
    const qint64 value = static_cast<qint64>(signedBits);
    return value >= -exactReals && value <= exactReals;
}
} // namespace

ZrRecordSorter::ZrRecordSorter(RecordDataList &records)
    : m_records(records)
    , m_rows(static_cast<std::size_t>(records.size()))
{
    std::iota(m_rows.begin(), m_rows.end(), 0u);
}

void ZrRecordSorter::sort(const QList<QPair<int, Qt::SortOrder>> &keys)
{
    // Each pass is stable, so the last column goes first and the first one decides.
    for (int i = keys.size() - 1; i >= 0; --i)
        sortByColumn(keys.at(i).first, keys.at(i).second == Qt::DescendingOrder);
    if (!std::is_sorted(m_rows.begin(), m_rows.end()))
        moveRows();
}

void ZrRecordSorter::sortByColumn(int column, bool descending)
{
    extract(column);
    sortNumbers(descending);
    sortMoments(descending);
    for (Entry &entry : m_times)
        entry.key = signedKey(entry.key);
    sortByKey(m_times, descending);
    ZrTextSorter(m_texts, descending).sort();
    collect(descending);
}

void ZrRecordSorter::extract(int column)
{
    m_missing.clear();
    m_numbers.clear();
    m_moments.clear();
    m_times.clear();
    m_texts.clear();
    m_madeTexts.clear();
    const RecordDataList &records = m_records;
    for (const quint32 row : m_rows)
        take(ZrCellValue::of(records.at(static_cast<int>(row)), column), row);
}

void ZrRecordSorter::take(const QVariant *value, quint32 row)
{
    if (!value || !value->isValid()) {
        m_missing.push_back(row);
        return;
    }
    const ZrNumber number = ZrNumber::fromVariant(*value);
    if (number.kind() != ZrNumber::None) {
        m_numbers.push_back({number.asUnsigned(), row, number.kind()});
        return;
    }
    switch (value->userType()) {
    case QMetaType::QDate:
        return takeMoment(QDateTime(stored<QDate>(*value), QTime(0, 0), Qt::UTC), WallClock, row);
    case QMetaType::QDateTime: {
        const QDateTime &moment = stored<QDateTime>(*value);
        return takeMoment(moment, moment.timeSpec() == Qt::LocalTime ? WallClock : Instant, row);
    }
    case QMetaType::QTime:
        if (stored<QTime>(*value).isValid())
            m_times.push_back({static_cast<quint64>(stored<QTime>(*value).msecsSinceStartOfDay()), row, 0});
        else
            m_missing.push_back(row);
        return;
    default:
        return takeText(*value, row);
    }
}

// Local time is told by the clock on the wall: it is what the column shows, and asking the time zone for each
// row would take longer than the rest of the sort.
void ZrRecordSorter::takeMoment(const QDateTime &moment, MomentKind kind, quint32 row)
{
    if (!moment.isValid()) {
        m_missing.push_back(row);
        return;
    }
    const qint64 ms = kind == Instant ? moment.toMSecsSinceEpoch() : wallClockMs(moment);
    m_moments.push_back({static_cast<quint64>(ms), row, kind});
}

void ZrRecordSorter::takeText(const QVariant &value, quint32 row)
{
    if (value.userType() == QMetaType::QString) {
        m_texts.push_back({0, static_cast<const QString *>(value.constData()), row});
        return;
    }
    m_madeTexts.push_back(value.toString());
    m_texts.push_back({0, &m_madeTexts.back(), row});
}

// Whole numbers alone, or doubles with whole numbers that are doubles too, become one 64-bit key. What is
// left, such as doubles beside whole numbers above 2^53, compares number by number.
void ZrRecordSorter::sortNumbers(bool descending)
{
    bool seen[] = {false, false, false, false};
    bool exact = true;
    for (const Entry &entry : m_numbers) {
        seen[entry.kind] = true;
        exact = exact && (entry.kind != ZrNumber::Signed || isExactReal(entry.key));
    }
    const bool anyReal = seen[ZrNumber::Real];
    if (seen[ZrNumber::Unsigned] ? anyReal || seen[ZrNumber::Signed] : anyReal && !exact)
        return sortMixedNumbers(descending);
    for (Entry &entry : m_numbers) {
        if (anyReal)
            entry.key = realKey(numberOf(entry.kind, entry.key).asReal());
        else
            entry.key = signedKey(entry.key);
    }
    sortByKey(m_numbers, descending);
}

void ZrRecordSorter::sortMixedNumbers(bool descending)
{
    const int direction = descending ? -1 : 1;
    std::stable_sort(m_numbers.begin(), m_numbers.end(), [direction](const Entry &a, const Entry &b) {
        return direction * ZrNumber::compare(numberOf(a.kind, a.key), numberOf(b.kind, b.key)) < 0;
    });
}

// The clocks of several time zones meet only in the instants they tell.
void ZrRecordSorter::sortMoments(bool descending)
{
    const bool anyInstant = std::any_of(m_moments.cbegin(), m_moments.cend(),
                                        [](const Entry &entry) { return entry.kind == Instant; });
    for (Entry &entry : m_moments) {
        const qint64 ms = static_cast<qint64>(entry.key);
        entry.key = signedKey(
            anyInstant && entry.kind == WallClock ? static_cast<quint64>(instantOfWallClock(ms)) : entry.key);
    }
    sortByKey(m_moments, descending);
}

void ZrRecordSorter::sortByKey(Entries &entries, bool descending)
{
    if (descending) {
        for (Entry &entry : entries)
            entry.key = ~entry.key;
    }
    ZrRadixSort<Entry>::sort(entries, 0, entries.size(), m_spare);
}

void ZrRecordSorter::collect(bool descending)
{
    auto place = m_rows.begin();
    const auto put = [&place](const auto &entries) {
        for (const auto &entry : entries)
            *place++ = entry.row;
    };
    const auto putMissing = [&place, this] { place = std::copy(m_missing.begin(), m_missing.end(), place); };
    if (descending) {
        put(m_texts);
        put(m_times);
        put(m_moments);
        put(m_numbers);
        putMissing();
    } else {
        putMissing();
        put(m_numbers);
        put(m_moments);
        put(m_times);
        put(m_texts);
    }
}

// A row moves as one pointer: the records keep their data, and nobody's copy is detached.
void ZrRecordSorter::moveRows()
{
    std::vector<RecordData> moved;
    moved.reserve(m_rows.size());
    const auto from = m_records.begin();
    for (const quint32 row : m_rows)
        moved.push_back(std::move(from[static_cast<int>(row)]));
    std::move(moved.begin(), moved.end(), m_records.begin());
}
