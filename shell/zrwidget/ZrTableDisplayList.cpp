#include "ZrTableDisplayList.h"

#include <QtCore/QtAlgorithms>

namespace {

constexpr int c_wordBits = 64;

int wordOf(int bit)
{
    return bit / c_wordBits;
}

quint64 maskOf(int bit)
{
    return quint64(1) << (bit % c_wordBits);
}

int bitOfRank(quint64 word, int rank)
{
    for (; rank > 0; --rank)
        word &= word - 1;
    return int(qCountTrailingZeroBits(word));
}

} // namespace

void ZrTableDisplayList::clear()
{
    *this = ZrTableDisplayList();
}

void ZrTableDisplayList::assign(const QVector<bool> &marks)
{
    clear();
    m_rows = marks.size();
    m_marks.fill(0, wordOf(m_rows) + 1);
    for (int row = 0; row < m_rows; ++row) {
        if (marks.at(row))
            m_marks[wordOf(row)] |= maskOf(row);
    }
    recount();
}

// Counts of all words anew: a thousandth of the rows' number, so whatever shifts the marks may afford it.
void ZrTableDisplayList::recount()
{
    m_lastPosition = -1;
    m_shown = 0;
    m_counts.fill(0, m_marks.size() + 1);
    for (int word = 0; word < m_marks.size(); ++word) {
        const int count = int(qPopulationCount(m_marks.at(word)));
        m_shown += count;
        m_counts[word + 1] += count;
        const int parent = word + 1 + ((word + 1) & -(word + 1));
        if (parent < m_counts.size())
            m_counts[parent] += m_counts.at(word + 1);
    }
}

void ZrTableDisplayList::addCount(int word, int step)
{
    m_lastPosition = -1;
    m_shown += step;
    for (int i = word + 1; i < m_counts.size(); i += i & -i)
        m_counts[i] += step;
}

int ZrTableDisplayList::shownBefore(int bit) const
{
    int count = int(qPopulationCount(m_marks.at(wordOf(bit)) & (maskOf(bit) - 1)));
    for (int i = wordOf(bit); i > 0; i -= i & -i)
        count += m_counts.at(i);
    return count;
}

bool ZrTableDisplayList::isShown(int row) const
{
    if (row < 0 || row >= m_rows)
        return false;
    return m_marks.at(wordOf(m_first + row)) & maskOf(m_first + row);
}

int ZrTableDisplayList::positionOf(int row) const
{
    return isShown(row) ? shownBefore(m_first + row) : -1;
}

int ZrTableDisplayList::rowAt(int position) const
{
    if (position < 0 || position >= m_shown)
        return -1;
    if (position == m_lastPosition) // a view reads all cells of a row in turn
        return m_lastRow;
    int word = 0;
    int rest = position;
    int step = 1;
    while (step * 2 < m_counts.size())
        step *= 2;
    for (; step > 0; step /= 2) {
        if (word + step < m_counts.size() && m_counts.at(word + step) <= rest) {
            word += step;
            rest -= m_counts.at(word);
        }
    }
    m_lastPosition = position;
    m_lastRow = word * c_wordBits + bitOfRank(m_marks.at(word), rest) - m_first;
    return m_lastRow;
}

void ZrTableDisplayList::setShown(int row, bool shown)
{
    if (row < 0 || row >= m_rows || isShown(row) == shown)
        return;
    const int bit = m_first + row;
    m_marks[wordOf(bit)] ^= maskOf(bit);
    addCount(wordOf(bit), shown ? 1 : -1);
}

void ZrTableDisplayList::grow()
{
    const int used = wordOf(m_first);
    if (used > m_marks.size() / 2) { // mostly rows that left at the front: take their place
        m_marks.remove(0, used);
        m_first -= used * c_wordBits;
    }
    m_marks.resize(m_marks.size() * 2 + 1);
    recount();
}

void ZrTableDisplayList::appendRow(bool shown)
{
    if (wordOf(m_first + m_rows) >= m_marks.size())
        grow();
    ++m_rows;
    setShown(m_rows - 1, shown);
}

void ZrTableDisplayList::dropFront(int count)
{
    for (int i = 0; i < count && m_rows > 0; ++i) {
        setShown(0, false);
        ++m_first;
        --m_rows;
    }
    m_lastPosition = -1; // rows moved even when no mark did
}

void ZrTableDisplayList::insertRow(int row, bool shown)
{
    if (row >= m_rows) {
        appendRow(shown);
        return;
    }
    if (wordOf(m_first + m_rows) >= m_marks.size())
        grow();
    const int bit = m_first + row;
    const int word = wordOf(bit);
    for (int i = wordOf(m_first + m_rows); i > word; --i)
        m_marks[i] = (m_marks.at(i) << 1) | (m_marks.at(i - 1) >> (c_wordBits - 1));
    const quint64 below = m_marks.at(word) & (maskOf(bit) - 1);
    const quint64 above = m_marks.at(word) & ~(maskOf(bit) - 1);
    m_marks[word] = below | (above << 1) | (shown ? maskOf(bit) : 0);
    ++m_rows;
    recount();
}

void ZrTableDisplayList::removeRow(int row)
{
    if (row < 0 || row >= m_rows)
        return;
    const int bit = m_first + row;
    const int word = wordOf(bit);
    const quint64 below = m_marks.at(word) & (maskOf(bit) - 1);
    const quint64 above = m_marks.at(word) & ~(maskOf(bit) - 1) & ~maskOf(bit);
    m_marks[word] = below | (above >> 1);
    for (int i = word + 1; i < m_marks.size(); ++i) {
        m_marks[i - 1] |= m_marks.at(i) << (c_wordBits - 1);
        m_marks[i] >>= 1;
    }
    --m_rows;
    recount();
}

void ZrTableDisplayList::assignKeys(const QList<QString> &keys)
{
    clear();
    m_ordered = false;
    m_keys = keys;
}

void ZrTableDisplayList::insertKey(int position, const QString &key)
{
    m_keys.insert(qBound(0, position, m_keys.size()), key);
}

void ZrTableDisplayList::removeAt(int position)
{
    if (position >= 0 && position < m_keys.size())
        m_keys.removeAt(position);
}

QString ZrTableDisplayList::invariantError() const
{
    if (!m_ordered)
        return m_rows == 0 ? QString() : QStringLiteral("a plain list of keys with marks");
    int shown = 0;
    for (int row = 0; row < m_rows; ++row) {
        if (!isShown(row))
            continue;
        if (positionOf(row) != shown || rowAt(shown) != row)
            return QStringLiteral("row %1 isn't at position %2").arg(row).arg(shown);
        ++shown;
    }
    return shown == m_shown ? QString() : QStringLiteral("%1 shown, counted %2").arg(shown).arg(m_shown);
}
