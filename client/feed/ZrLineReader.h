#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>

/// Lines of a plain or gzip file, read as a stream.
///
/// Shape:   strips a byte order mark, the line end (LF or CRLF) and what a last line lacks of it.
/// Units:   a line holds at most MaxLine bytes; a longer one is reported as such and skipped whole.
/// Threads: one at a time.
/// Errors:  error() is empty unless the file could not be opened or broke off.
class ZrLineReader
{
public:
    static constexpr int MaxLine = 64 * 1024;

    ZrLineReader();
    ~ZrLineReader();

    bool open(const QString &path);
    /// The next line without its end; false at the end of the file.
    bool next(QByteArray *line);
    /// Whether the line that next() gave was cut because it is too long.
    bool wasTooLong() const { return m_tooLong; }
    /// Number of the line that next() gave, from 1.
    qint64 lineNumber() const { return m_lineNumber; }
    QString error() const { return m_error; }

private:
    Q_DISABLE_COPY(ZrLineReader)
    bool fill();
    void take(QByteArray *line, int size);

    struct Closer
    {
        void operator()(void *file) const;
    };
    std::unique_ptr<void, Closer> m_file;
    QByteArray m_buffer;
    int m_at = 0;
    qint64 m_lineNumber = 0;
    bool m_tooLong = false;
    QString m_error;
};
