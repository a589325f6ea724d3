#include "ZrElfImage.h"

#include <cstring>
#include <elf.h>
#include <link.h>

namespace {
using Head = ElfW(Ehdr);
using Segment = ElfW(Phdr);
using Section = ElfW(Shdr);

#if defined(__x86_64__)
constexpr int ownMachine = EM_X86_64;
#elif defined(__aarch64__)
constexpr int ownMachine = EM_AARCH64;
#elif defined(__riscv)
constexpr int ownMachine = EM_RISCV;
#else
constexpr int ownMachine = EM_NONE; // not told apart here; the system's loader does
#endif
constexpr int ownClass = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;
constexpr int ownOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2LSB : ELFDATA2MSB;

bool isPowerOfTwo(quint64 value)
{
    return (value & (value - 1)) == 0;
}
} // namespace

ZrElfImage::Outcome ZrElfImage::fail(Outcome outcome, const QString &text)
{
    m_errorText = text;
    m_sectionCount = 0;
    return outcome;
}

bool ZrElfImage::holds(quint64 offset, quint64 size) const
{
    const auto all = quint64(m_bytes.size());
    return offset <= all && size <= all - offset;
}

template<typename Value>
Value ZrElfImage::valueAt(quint64 offset) const
{
    Value value; // copied: a damaged offset need not be aligned
    std::memcpy(&value, m_bytes.constData() + offset, sizeof value);
    return value;
}

ZrElfImage::Outcome ZrElfImage::open(const QByteArray &bytes)
{
    m_bytes = bytes;
    m_errorText.clear();
    m_sectionCount = 0;
    if (!bytes.startsWith(QByteArray(ELFMAG, SELFMAG)))
        return fail(NotElf, QStringLiteral("it is no shared object"));
    if (!holds(0, sizeof(Head)))
        return fail(Broken, QStringLiteral("its head is cut off"));
    const auto head = valueAt<Head>(0);
    const bool isOwn = head.e_ident[EI_CLASS] == ownClass && head.e_ident[EI_DATA] == ownOrder &&
                       (ownMachine == EM_NONE || head.e_machine == ownMachine);
    if (!isOwn)
        return fail(OtherMachine, QStringLiteral("it is made for another machine"));
    if (head.e_type != ET_DYN)
        return fail(OtherMachine, QStringLiteral("it is no shared object"));
    if (head.e_ehsize != sizeof(Head) || head.e_version != EV_CURRENT)
        return fail(Broken, QStringLiteral("its head is wrong"));
    if (!segmentsHold() || !sectionsHold())
        return fail(Broken, m_errorText);
    return Good;
}

bool ZrElfImage::segmentsHold()
{
    const auto head = valueAt<Head>(0);
    if (head.e_phnum == 0 || head.e_phentsize != sizeof(Segment) ||
        !holds(head.e_phoff, quint64(head.e_phnum) * sizeof(Segment))) {
        m_errorText = QStringLiteral("its table of segments lies outside");
        return false;
    }
    for (int i = 0; i < head.e_phnum; ++i) {
        const auto segment = valueAt<Segment>(head.e_phoff + quint64(i) * sizeof(Segment));
        const bool isLoaded = segment.p_type == PT_LOAD;
        const bool fits = holds(segment.p_offset, segment.p_filesz) && isPowerOfTwo(segment.p_align) &&
                          (!isLoaded || segment.p_filesz <= segment.p_memsz);
        if (!fits) {
            m_errorText = QStringLiteral("segment %1 is wrong").arg(i);
            return false;
        }
    }
    return true;
}

bool ZrElfImage::sectionsHold()
{
    const auto head = valueAt<Head>(0);
    if (head.e_shentsize != sizeof(Section) || head.e_shstrndx >= head.e_shnum ||
        !holds(head.e_shoff, quint64(head.e_shnum) * sizeof(Section))) {
        m_errorText = QStringLiteral("its table of sections lies outside");
        return false;
    }
    m_sections = head.e_shoff;
    for (int i = 0; i < head.e_shnum; ++i) {
        const auto section = valueAt<Section>(m_sections + quint64(i) * sizeof(Section));
        if (section.sh_type != SHT_NOBITS && !holds(section.sh_offset, section.sh_size)) {
            m_errorText = QStringLiteral("section %1 lies outside").arg(i);
            return false;
        }
    }
    const auto names = valueAt<Section>(m_sections + quint64(head.e_shstrndx) * sizeof(Section));
    const quint64 end = names.sh_offset + names.sh_size;
    if (names.sh_type != SHT_STRTAB || names.sh_size == 0 || m_bytes.at(int(end - 1)) != '\0') {
        m_errorText = QStringLiteral("its section names are wrong");
        return false;
    }
    m_names = names.sh_offset;
    m_namesSize = names.sh_size;
    m_sectionCount = head.e_shnum;
    return true;
}

QByteArray ZrElfImage::section(const QByteArray &name) const
{
    for (quint64 i = 0; i < m_sectionCount; ++i) {
        const auto section = valueAt<Section>(m_sections + i * sizeof(Section));
        // The last of the names ends in a zero, so that a comparison stops inside.
        if (section.sh_name < m_namesSize && section.sh_type != SHT_NOBITS &&
            name == m_bytes.constData() + m_names + section.sh_name)
            return m_bytes.mid(int(section.sh_offset), int(section.sh_size));
    }
    return QByteArray();
}
