#include "ZrFoldedTexts.h"

#include <QtCore/QByteArrayMatcher>

#include <algorithm>
#include <array>
#include <cstring>

namespace {
// Bytes: 0 begins a text; digits and letters have one each, whatever their case; all other characters share
// the rest. Characters that are equal but for their case always have the same byte, so nothing is missed.
constexpr int TextBegin = 0;
constexpr int FirstDigit = 1;
constexpr int FirstLetter = FirstDigit + 10;
constexpr int Surrogate = FirstLetter + 26; // halves of characters, which fold only together
constexpr int FirstOther = Surrogate + 1;
constexpr int OtherCount = 256 - FirstOther;
constexpr int AsciiEnd = 128;

constexpr uchar asciiByte(int unit)
{
    if (unit >= '0' && unit <= '9')
        return uchar(FirstDigit + unit - '0');
    if (unit >= 'a' && unit <= 'z')
        return uchar(FirstLetter + unit - 'a');
    if (unit >= 'A' && unit <= 'Z')
        return uchar(FirstLetter + unit - 'A');
    return uchar(FirstOther + unit % OtherCount);
}

constexpr std::array<uchar, AsciiEnd> makeAscii()
{
    std::array<uchar, AsciiEnd> bytes{};
    for (int unit = 0; unit < AsciiEnd; ++unit)
        bytes[std::size_t(unit)] = asciiByte(unit);
    return bytes;
}

constexpr std::array<uchar, AsciiEnd> Ascii = makeAscii();

uchar byteOf(ushort unit)
{
    if (unit < AsciiEnd)
        return Ascii[unit];
    if (QChar::isSurrogate(unit))
        return Surrogate;
    // The Kelvin sign and the long s fold to letters of ASCII.
    const uint folded = QChar::toCaseFolded(uint(unit));
    return folded < AsciiEnd ? Ascii[folded] : uchar(FirstOther + folded % OtherCount);
}

char *append(char *end, const QString &text)
{
    const ushort *const units = text.utf16();
    for (int i = 0; i < text.size(); ++i)
        *end++ = char(byteOf(units[i]));
    return end;
}

QByteArray needleOf(const QString &part, ZrFoldedTexts::Place place)
{
    QByteArray needle;
    if (place == ZrFoldedTexts::Place::Start)
        needle.append(char(TextBegin));
    const int before = needle.size();
    needle.resize(before + part.size());
    append(needle.data() + before, part);
    return needle;
}

/// One pass over the bytes.
class Finder
{
public:
    Finder(const QByteArray &bytes, const QByteArray &needle)
        : m_bytes(bytes)
        , m_needle(needle)
        , m_matcher(needle)
    {
    }

    int next(int from) const
    {
        // A single byte is what the machine finds fastest, and the matcher slowest.
        if (m_needle.size() != 1)
            return m_matcher.indexIn(m_bytes.constData(), m_bytes.size(), from);
        const void *const found =
            std::memchr(m_bytes.constData() + from, m_needle.at(0), std::size_t(m_bytes.size() - from));
        return found ? int(static_cast<const char *>(found) - m_bytes.constData()) : -1;
    }

private:
    const QByteArray &m_bytes;
    const QByteArray m_needle;
    const QByteArrayMatcher m_matcher;
};
} // namespace

void ZrFoldedTexts::assign(const QStringList &texts)
{
    m_texts = texts;
    int size = 0;
    for (const QString &text : texts)
        size += 1 + text.size();
    m_bytes = QByteArray(size, Qt::Uninitialized);
    m_starts.resize(texts.size());
    char *const begin = m_bytes.data();
    char *end = begin;
    int *start = m_starts.data();
    for (const QString &text : texts) {
        *start++ = int(end - begin);
        *end++ = char(TextBegin);
        end = append(end, text);
    }
}

void ZrFoldedTexts::forEach(const QString &part, Place place, const Visitor &visit) const
{
    const Finder finder(m_bytes, needleOf(part, place));
    const auto end = m_starts.cend();
    auto start = m_starts.cbegin(); // of the text to look at next
    while (start != end) {
        const int at = finder.next(*start);
        if (at < 0)
            return;
        start = std::upper_bound(start, end, at); // of the text behind the found one
        const int index = int(start - m_starts.cbegin()) - 1;
        if (holds(index, part, place) && !visit(index))
            return;
    }
}

bool ZrFoldedTexts::holds(int index, const QString &part, Place place) const
{
    const QString &text = m_texts.at(index);
    return place == Place::Start ? text.startsWith(part, Qt::CaseInsensitive)
                                 : text.contains(part, Qt::CaseInsensitive);
}
