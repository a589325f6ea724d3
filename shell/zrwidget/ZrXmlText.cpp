#include "ZrXmlText.h"

#include <QtCore/QTextCodec>

namespace {
constexpr int DeclarationBytes = 256; // an XML declaration ends well before
constexpr int Utf8Mib = 106;
constexpr int Utf16BigEndianMib = 1013;
constexpr int Utf16LittleEndianMib = 1014;
} // namespace

QByteArray ZrXmlText::declaredEncoding(const QByteArray &bytes)
{
    const QByteArray start = bytes.left(DeclarationBytes);
    const int end = start.indexOf("?>");
    if (!start.startsWith("<?xml") || end < 0)
        return QByteArray();
    const QByteArray declaration = start.left(end);
    const int name = declaration.indexOf("encoding");
    const int equals = name < 0 ? -1 : declaration.indexOf('=', name);
    if (equals < 0)
        return QByteArray();
    const QByteArray rest = declaration.mid(equals + 1).trimmed();
    const char quote = rest.isEmpty() ? '\0' : rest.at(0);
    const int close = (quote == '"' || quote == '\'') ? rest.indexOf(quote, 1) : -1;
    return close < 0 ? QByteArray() : rest.mid(1, close - 1);
}

QTextCodec *ZrXmlText::codecFor(const QByteArray &bytes)
{
    if (QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked;
    // UTF-16 without an order mark still shows by its first character, which is "<".
    if (bytes.startsWith(QByteArray("<\0", 2)))
        return QTextCodec::codecForMib(Utf16LittleEndianMib);
    if (bytes.startsWith(QByteArray("\0<", 2)))
        return QTextCodec::codecForMib(Utf16BigEndianMib);
    const QByteArray declared = declaredEncoding(bytes);
    return declared.isEmpty() ? QTextCodec::codecForMib(Utf8Mib) : QTextCodec::codecForName(declared);
}

ZrXmlText::Result ZrXmlText::decode(const QByteArray &bytes)
{
    Result result;
    const QTextCodec *codec = codecFor(bytes);
    if (!codec)
        return result;
    QTextCodec::ConverterState state;
    result.text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    result.ok = state.invalidChars == 0 && state.remainingChars == 0;
    return result;
}
