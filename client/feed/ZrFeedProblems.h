#pragma once

#include <QtCore/QStringList>

/// What was wrong with lines of a recording: all are counted, the first few are remembered.
class ZrFeedProblems
{
public:
    static constexpr int MaxKept = 5;

    void add(const QString &file, qint64 line, const QString &what);
    /// A complaint about a file as a whole; counts no line.
    void addFile(const QString &file, const QString &what);
    qint64 count() const { return m_count; }
    /// One line for each remembered complaint, and one that counts the others.
    QString text() const;

private:
    qint64 m_count = 0;
    QStringList m_first;
    QStringList m_files;
};
