#pragma once

#include <QtCore/qglobal.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

/// Stable sort of entries with a 64-bit member `key`, ascending, in time linear in their number.
///
/// Shape:   least significant digit first; a digit that all keys share costs nothing.
/// Threads: any.
template<typename Entry>
class ZrRadixSort
{
public:
    /// Sorts entries [begin, end); `spare` is working space that grows as needed.
    static void sort(std::vector<Entry> &entries, std::size_t begin, std::size_t end,
                     std::vector<Entry> &spare)
    {
        if (end - begin < smallCount) {
            std::stable_sort(entries.begin() + begin, entries.begin() + end,
                             [](const Entry &a, const Entry &b) { return a.key < b.key; });
            return;
        }
        if (spare.size() < end - begin)
            spare.resize(end - begin);
        const Counts counts = count(entries, begin, end);
        Entry *from = entries.data() + begin;
        Entry *to = spare.data();
        for (int digit = 0; digit < digitCount; ++digit) {
            if (counts[digit][digitOf(from[0].key, digit)] == end - begin)
                continue;
            scatter(from, to, end - begin, digit, counts[digit]);
            std::swap(from, to);
        }
        if (from == spare.data())
            std::copy(from, from + (end - begin), entries.data() + begin);
    }

private:
    // Six digits of eleven bits: fewer rounds than with bytes, and the buckets of a round still lie in the
    // cache.
    static constexpr int digitBits = 11;
    static constexpr int digitCount = 6;
    static constexpr std::size_t bucketCount = std::size_t(1) << digitBits;
    static constexpr std::size_t smallCount = 512;
    using Buckets = std::array<std::size_t, bucketCount>;
    using Counts = std::vector<Buckets>;

    static std::size_t digitOf(quint64 key, int digit)
    {
        return (key >> (digit * digitBits)) & (bucketCount - 1);
    }

    static Counts count(const std::vector<Entry> &entries, std::size_t begin, std::size_t end)
    {
        Counts counts(digitCount, Buckets{});
        for (std::size_t i = begin; i < end; ++i) {
            for (int digit = 0; digit < digitCount; ++digit)
                ++counts[digit][digitOf(entries[i].key, digit)];
        }
        return counts;
    }

    static void scatter(const Entry *from, Entry *to, std::size_t size, int digit, const Buckets &counts)
    {
        Buckets places;
        std::size_t place = 0;
        for (std::size_t bucket = 0; bucket < bucketCount; ++bucket) {
            places[bucket] = place;
            place += counts[bucket];
        }
        for (std::size_t i = 0; i < size; ++i)
            to[places[digitOf(from[i].key, digit)]++] = from[i];
    }
};
