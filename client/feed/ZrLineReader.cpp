#include "ZrLineReader.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstring>
#include <zlib.h>

namespace {
constexpr int BufferSize = 256 * 1024;
}

void ZrLineReader::Closer::operator()(void *file) const
{
    gzclose(static_cast<gzFile>(file));
}

ZrLineReader::ZrLineReader() = default;
ZrLineReader::~ZrLineReader() = default;

bool ZrLineReader::open(const QString &path)
{
    // Opening a folder or a pipe succeeds and would then fail, or wait for ever.
    if (!QFileInfo(path).isFile()) {
        m_error = QStringLiteral("there is no such file");
        return false;
    }
    // zlib hands a file that is not compressed through as it is.
    m_file.reset(gzopen(QFile::encodeName(path).constData(), "rb"));
    if (!m_file) {
        m_error = QStringLiteral("the file cannot be read");
        return false;
    }
    gzbuffer(static_cast<gzFile>(m_file.get()), BufferSize);
    if (fill() && m_buffer.startsWith("\xEF\xBB\xBF"))
        m_at = 3;
    return m_error.isEmpty();
}

bool ZrLineReader::fill()
{
    m_buffer.resize(BufferSize);
    m_at = 0;
    const int got = gzread(static_cast<gzFile>(m_file.get()), m_buffer.data(), unsigned(BufferSize));
    m_buffer.resize(qMax(0, got));
    int code = Z_OK;
    if (got < BufferSize)
        gzerror(static_cast<gzFile>(m_file.get()), &code);
    if (got < 0 || (code != Z_OK && code != Z_STREAM_END))
        m_error = QStringLiteral("the compressed data is broken");
    return got > 0;
}

void ZrLineReader::take(QByteArray *line, int size)
{
    const int room = MaxLine - line->size();
    line->append(m_buffer.constData() + m_at, qMin(size, room));
    m_tooLong = m_tooLong || size > room;
    m_at += size;
}

bool ZrLineReader::next(QByteArray *line)
{
    line->clear();
    m_tooLong = false;
    bool any = false;
    while (m_file && (m_at < m_buffer.size() || (m_error.isEmpty() && fill()))) {
        any = true;
        const char *const from = m_buffer.constData() + m_at;
        const auto *const end =
            static_cast<const char *>(std::memchr(from, '\n', size_t(m_buffer.size() - m_at)));
        take(line, end ? int(end - from) : m_buffer.size() - m_at);
        if (end) {
            ++m_at;
            break;
        }
    }
    if (!any)
        return false;
    ++m_lineNumber;
    if (line->endsWith('\r'))
        line->chop(1);
    return true;
}
