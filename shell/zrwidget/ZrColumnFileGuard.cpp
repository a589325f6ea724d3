#include "ZrColumnFileGuard.h"

#include "ZrXmlText.h"

#include <QtCore/QXmlStreamReader>

ZrColumnFileGuard::Verdict ZrColumnFileGuard::check(const QByteArray &bytes)
{
    if (bytes.size() > MaxBytes)
        return refuse(tr("the file is larger than %1 bytes").arg(MaxBytes));
    const ZrXmlText::Result decoded = ZrXmlText::decode(bytes);
    if (!decoded.ok)
        return refuse(tr("the file isn't text in its encoding"));
    return checkText(decoded.text);
}

ZrColumnFileGuard::Verdict ZrColumnFileGuard::refuse(const QString &message, qint64 line, qint64 column)
{
    Verdict verdict;
    verdict.message = message;
    verdict.line = int(qBound<qint64>(1, line, MaxBytes));
    verdict.column = int(qBound<qint64>(1, column, MaxBytes));
    return verdict;
}

ZrColumnFileGuard::Verdict ZrColumnFileGuard::checkText(const QString &text)
{
    if (hasCrowdedTag(text))
        return refuse(tr("an element has more than %1 attributes").arg(MaxAttributesPerTag));
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    int nodes = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        nodes += 1 + reader.attributes().size();
        const QString limit = limitReached(reader, depth, nodes);
        if (!limit.isEmpty())
            return refuse(limit, reader.lineNumber(), reader.columnNumber());
    }
    if (reader.hasError() && !isHarmless(text))
        return refuse(reader.errorString(), reader.lineNumber(), reader.columnNumber());
    Verdict verdict;
    verdict.accepted = true;
    verdict.text = text;
    return verdict;
}

QString ZrColumnFileGuard::limitReached(const QXmlStreamReader &reader, int depth, int nodes)
{
    // Entities are defined in a document type; a column file needs neither.
    if (reader.tokenType() == QXmlStreamReader::DTD)
        return tr("a document type isn't allowed");
    if (depth > MaxDepth)
        return tr("elements are nested more than %1 deep").arg(MaxDepth);
    if (nodes > MaxNodes)
        return tr("the file has more than %1 nodes").arg(MaxNodes);
    return QString();
}

bool ZrColumnFileGuard::hasCrowdedTag(const QString &text)
{
    int attributes = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == QLatin1Char('<')) {
            attributes = 0;
        } else if (character == QLatin1Char('=')) {
            int next = i + 1;
            while (next < text.size() && text.at(next).isSpace())
                ++next;
            const QChar quote = next < text.size() ? text.at(next) : QChar();
            const bool opensValue = quote == QLatin1Char('"') || quote == QLatin1Char('\'');
            attributes += opensValue ? 1 : 0;
            i = next - 1;
        }
        if (attributes > MaxAttributesPerTag)
            return true;
    }
    return false;
}

bool ZrColumnFileGuard::isHarmless(const QString &text)
{
    // The document's parser may go on where the reader stopped, so the bounds have to hold for the whole
    // text, however it is understood.
    return text.count(QLatin1Char('<')) <= MaxTagsWhenMalformed &&
           !text.contains(QLatin1String("<!DOCTYPE"), Qt::CaseInsensitive) &&
           !text.contains(QLatin1String("<!ENTITY"), Qt::CaseInsensitive);
}
