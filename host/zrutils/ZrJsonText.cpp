#include "zrutils/ZrJsonText.h"

#include <QtCore/QJsonDocument>

namespace {
constexpr int longest = 8 * 1024 * 1024;
constexpr int deepest = 128;
} // namespace

bool ZrJsonText::isTooDeep(const QString &text)
{
    int depth = 0;
    bool inText = false;
    for (int i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (inText && unit == '\\') {
            ++i;
        } else if (unit == '"') {
            inText = !inText;
        } else if (!inText && (unit == '[' || unit == '{')) {
            if (++depth > deepest)
                return true;
        } else if (!inText && (unit == ']' || unit == '}')) {
            --depth;
        }
    }
    return false;
}

bool ZrJsonText::parse(const QString &text, QJsonDocument &document)
{
    if (text.isEmpty() || text.size() > longest || isTooDeep(text))
        return false;
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        return false;
    document = parsed;
    return true;
}
