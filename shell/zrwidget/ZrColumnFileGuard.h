#pragma once

#include "zrwidget_global.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

class QByteArray;
class QXmlStreamReader;

/// Looks through a column configuration file before a document tree is built from it.
///
/// The document classes recurse once per nested element and hold every node as an object of its own: some
/// ten kB of nested elements end the process, a megabyte of small ones costs hundreds. The file is user
/// data, so what is far beyond any grid is refused here, by a reader that neither recurses nor keeps nodes.
///
/// Shape:   bytes in; the decoded text, or where and why the file is refused, out.
/// Threads: any; no state between calls.
/// Errors:  a file that is merely malformed is passed on as long as it is harmless: the document's own
///          parser then says what is wrong in its own words.
class ZRWIDGET_PRIVATE_EXPORT ZrColumnFileGuard
{
    Q_DECLARE_TR_FUNCTIONS(ZrColumnFileGuard)
public:
    struct Verdict
    {
        bool accepted = false;
        QString text;    // the decoded file, when accepted
        QString message; // why it is refused
        int line = 1;
        int column = 1;
    };

    static constexpr int MaxBytes = 2 * 1024 * 1024;
    static constexpr int MaxDepth = 64;
    static constexpr int MaxNodes = 100000;          // elements, attributes, comments, texts ...
    static constexpr int MaxAttributesPerTag = 1000; // the reader compares each name with all before it
    static constexpr int MaxTagsWhenMalformed = 2000;

    static Verdict check(const QByteArray &bytes);

private:
    static Verdict refuse(const QString &message, qint64 line = 1, qint64 column = 1);
    static Verdict checkText(const QString &text);
    static QString limitReached(const QXmlStreamReader &reader, int depth, int nodes);
    static bool hasCrowdedTag(const QString &text);
    static bool isHarmless(const QString &text);
};
