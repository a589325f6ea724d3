#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

/// The fields of one line of a CSV file.
///
/// Shape:   blanks around a field go; a quoted field keeps its blanks and may hold separators and
///          doubled quotes, but no line end.
/// Errors:  split() refuses an unclosed quote and more than MaxFields fields.
class ZrCsvLine
{
public:
    static constexpr int MaxFields = 4096;

    bool split(const QByteArray &line, char separator, char quote);
    int size() const { return m_size; }
    /// The field, empty beyond the end. Valid until the next split().
    QByteArray at(int column) const;

private:
    bool addQuoted(const QByteArray &line, int *at, char quote);
    void add(const char *from, const char *to);

    QVector<QByteArray> m_fields; // the first m_size are in use: their memory is kept for the next line
    int m_size = 0;
};
