#pragma once

#include <QtCore/QString>

#include <vector>

/// A text to sort and the row it stands in.
struct ZrTextEntry
{
    quint64 key;         // working space of the sorter
    const QString *text; // not owned
    quint32 row;
};

/// Stable sort of texts by code point.
///
/// Shape:   what all texts begin with is skipped, the next units are packed into a number and sorted as such;
/// only
///          texts alike so far are looked at again. So a column of order numbers touches each text a few
///          times.
/// Threads: any; one object for one sort.
class ZrTextSorter
{
public:
    ZrTextSorter(std::vector<ZrTextEntry> &entries, bool descending);

    void sort();

private:
    void sortRange(std::size_t begin, std::size_t end, int from, int depth);
    void compareRange(std::size_t begin, std::size_t end, int from);
    int commonLength(std::size_t begin, std::size_t end, int from) const;
    bool packNarrow(std::size_t begin, std::size_t end, int from);
    void packWide(std::size_t begin, std::size_t end, int from);

    std::vector<ZrTextEntry> &m_entries;
    std::vector<ZrTextEntry> m_spare;
    const bool m_descending;
};
