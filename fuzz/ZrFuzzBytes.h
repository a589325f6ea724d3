#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <cstring>

/// Takes values from the front of a fuzzer's input; zeros once it is used up.
class ZrFuzzBytes
{
public:
    ZrFuzzBytes(const quint8 *data, size_t size)
        : m_data(data)
        , m_left(size)
    {
    }
    bool isEmpty() const { return m_left == 0; }
    template<typename Number>
    Number take()
    {
        Number number = {};
        const size_t count = qMin(m_left, sizeof number);
        std::memcpy(&number, m_data, count);
        skip(count);
        return number;
    }
    QString takeText()
    {
        const size_t count = qMin(m_left, size_t(take<quint8>() % 24));
        const QString text = QString::fromUtf8(reinterpret_cast<const char *>(m_data), int(count));
        skip(count);
        return text;
    }

private:
    void skip(size_t count)
    {
        m_data += count;
        m_left -= count;
    }
    const quint8 *m_data;
    size_t m_left;
};
