#include "zrutils/ZrTextSorter.h"

#include "zrutils/ZrCellValue.h"
#include "zrutils/ZrRadixSort.h"

#include <limits>

namespace {
constexpr std::size_t smallCount = 48; // below, comparing is cheaper than packing
constexpr int deepest = 64;            // texts made to differ ever later must not eat the stack
constexpr int narrowUnits = 8;
constexpr int wideUnits = 4;
} // namespace

ZrTextSorter::ZrTextSorter(std::vector<ZrTextEntry> &entries, bool descending)
    : m_entries(entries)
    , m_descending(descending)
{
}

void ZrTextSorter::sort()
{
    sortRange(0, m_entries.size(), 0, 0);
}

void ZrTextSorter::sortRange(std::size_t begin, std::size_t end, int from, int depth)
{
    if (end - begin < smallCount || depth > deepest)
        return compareRange(begin, end, from);
    const int start = commonLength(begin, end, from);
    if (start < 0)
        return;
    const bool narrow = packNarrow(begin, end, start);
    if (!narrow)
        packWide(begin, end, start);
    ZrRadixSort<ZrTextEntry>::sort(m_entries, begin, end, m_spare);
    for (std::size_t first = begin; first < end;) {
        std::size_t next = first + 1;
        while (next < end && m_entries[next].key == m_entries[first].key)
            ++next;
        // A narrow key tells where its text ends within it: such texts are equal as a whole. A wide one can't
        // tell the end from U+0000, so its texts are compared from the start of the packed units.
        const bool whole = narrow && m_entries[first].text->size() < start + narrowUnits;
        if (next - first > 1 && !whole) {
            const bool beyond = !narrow && m_entries[first].text->size() <= start + wideUnits;
            sortRange(first, next, beyond ? start : start + (narrow ? narrowUnits : wideUnits), depth + 1);
        }
        first = next;
    }
}

void ZrTextSorter::compareRange(std::size_t begin, std::size_t end, int from)
{
    const auto first = m_entries.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto last = m_entries.begin() + static_cast<std::ptrdiff_t>(end);
    if (m_descending) {
        std::stable_sort(first, last, [from](const ZrTextEntry &a, const ZrTextEntry &b) {
            return ZrTextOrder::compare(*a.text, *b.text, from) > 0;
        });
    } else {
        std::stable_sort(first, last, [from](const ZrTextEntry &a, const ZrTextEntry &b) {
            return ZrTextOrder::compare(*a.text, *b.text, from) < 0;
        });
    }
}

/// How many units all the texts begin with alike; -1 when all are equal.
int ZrTextSorter::commonLength(std::size_t begin, std::size_t end, int from) const
{
    const QString &model = *m_entries[begin].text;
    int common = model.size();
    bool equal = true;
    for (std::size_t i = begin + 1; i < end; ++i) {
        const QString &text = *m_entries[i].text;
        equal = equal && text.size() == model.size();
        const int limit = std::min(common, text.size());
        int alike = std::min(from, limit);
        while (alike < limit && model.at(alike) == text.at(alike))
            ++alike;
        common = alike;
        if (common <= from && !equal)
            break;
    }
    return equal && common == model.size() ? -1 : common;
}

/// Eight units to a key, 0 for the end; only when all of them are below 0xFF.
bool ZrTextSorter::packNarrow(std::size_t begin, std::size_t end, int from)
{
    for (std::size_t i = begin; i < end; ++i) {
        const QString &text = *m_entries[i].text;
        const ushort *units = text.utf16();
        quint64 key = 0;
        for (int unit = from; unit < from + narrowUnits; ++unit) {
            const uint value = unit < text.size() ? units[unit] + 1u : 0u;
            if (value > std::numeric_limits<quint8>::max())
                return false;
            key = key << 8 | value;
        }
        m_entries[i].key = m_descending ? ~key : key;
    }
    return true;
}

void ZrTextSorter::packWide(std::size_t begin, std::size_t end, int from)
{
    for (std::size_t i = begin; i < end; ++i) {
        const QString &text = *m_entries[i].text;
        const ushort *units = text.utf16();
        quint64 key = 0;
        for (int unit = from; unit < from + wideUnits; ++unit)
            key = key << 16 | (unit < text.size() ? ZrTextOrder::rank(units[unit]) : 0);
        m_entries[i].key = m_descending ? ~key : key;
    }
}
