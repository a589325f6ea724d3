#include "ZrCsvLine.h"

namespace {
bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}
} // namespace

QByteArray ZrCsvLine::at(int column) const
{
    return column >= 0 && column < m_size ? m_fields.at(column) : QByteArray();
}

void ZrCsvLine::add(const char *from, const char *to)
{
    if (m_size == m_fields.size())
        m_fields.append(QByteArray());
    m_fields[m_size++] = QByteArray(from, int(to - from));
}

bool ZrCsvLine::addQuoted(const QByteArray &line, int *at, char quote)
{
    QByteArray text;
    for (int i = *at + 1; i < line.size(); ++i) {
        if (line.at(i) != quote) {
            text.append(line.at(i));
        } else if (i + 1 < line.size() && line.at(i + 1) == quote) {
            text.append(quote);
            ++i;
        } else {
            *at = i + 1;
            add(text.constData(), text.constData() + text.size());
            return true;
        }
    }
    return false;
}

bool ZrCsvLine::split(const QByteArray &line, char separator, char quote)
{
    m_size = 0;
    int at = 0;
    const auto skipBlanks = [&] {
        while (at < line.size() && isBlank(line.at(at)) && line.at(at) != separator)
            ++at;
    };
    while (m_size < MaxFields) {
        skipBlanks();
        if (quote != '\0' && at < line.size() && line.at(at) == quote) {
            if (!addQuoted(line, &at, quote))
                return false;
            skipBlanks();
            if (at < line.size() && line.at(at) != separator)
                return false;
        } else {
            const int found = line.indexOf(separator, at);
            const int end = found < 0 ? line.size() : found;
            int last = end;
            while (last > at && isBlank(line.at(last - 1)))
                --last;
            add(line.constData() + at, line.constData() + last);
            at = end;
        }
        if (at >= line.size())
            return true;
        ++at;
    }
    return false;
}
