#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// The tables of a shared object, read from its bytes with every place checked before it is used.
///
/// Shape:   open() checks the head, each segment and each section against the size of the file and against
/// one
///          another; nothing in the file is followed or run. Only objects of this process's own kind are
///          known.
/// Units:   offsets and sizes in bytes.
/// Threads: reentrant.
/// Errors:  open() says which of the outcomes it is, errorText() the first place that is wrong.
class ZrElfImage
{
public:
    enum Outcome {
        Good,
        NotElf,       // does not begin as one
        OtherMachine, // of another word size, byte order or processor, or no shared object
        Broken        // a table or what it names lies outside of the file
    };

    /// `bytes` are shared, not copied.
    Outcome open(const QByteArray &bytes);
    QString errorText() const { return m_errorText; }
    /// The bytes of the first section of that name; empty if there is none.
    QByteArray section(const QByteArray &name) const;

private:
    Outcome fail(Outcome outcome, const QString &text);
    bool holds(quint64 offset, quint64 size) const;
    template<typename Value>
    Value valueAt(quint64 offset) const;
    bool segmentsHold();
    bool sectionsHold();

    QByteArray m_bytes;
    QString m_errorText;
    quint64 m_sections = 0; // offset of the table
    quint64 m_sectionCount = 0;
    quint64 m_names = 0;     // offset of the section names
    quint64 m_namesSize = 0; // their last byte is a zero
};
