#pragma once

#include "zrwidget_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

class QTextCodec;

/// Decodes the bytes of an XML file strictly.
///
/// The order mark counts first, then the encoding that the XML declaration names, then UTF-8. Everybody who
/// reads the file afterwards reads the same text: two parsers that guess the encoding on their own could
/// see two different files.
///
/// Threads: any; no state.
/// Errors:  bytes that aren't text in that encoding, or an unknown encoding, give ok == false.
class ZRWIDGET_PRIVATE_EXPORT ZrXmlText
{
public:
    struct Result
    {
        bool ok = false;
        QString text;
    };
    static Result decode(const QByteArray &bytes);
    /// The encoding named in the XML declaration; empty when none is.
    static QByteArray declaredEncoding(const QByteArray &bytes);

private:
    static QTextCodec *codecFor(const QByteArray &bytes);
};
