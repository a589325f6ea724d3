#include "ZrCompactDate.h"

#include <QtCore/QString>

namespace {
constexpr int Length = 8;

// -1 when one of the characters is no ASCII digit.
int numberAt(const QString &text, int from, int count)
{
    int number = 0;
    for (int i = from; i < from + count; ++i) {
        const ushort unicode = text.at(i).unicode();
        if (unicode < '0' || unicode > '9')
            return -1;
        number = number * 10 + (unicode - '0');
    }
    return number;
}
} // namespace

QDate ZrCompactDate::parse(const QString &text)
{
    if (text.size() == Length) {
        const int year = numberAt(text, 0, 4);
        const int month = numberAt(text, 4, 2);
        const int day = numberAt(text, 6, 2);
        if (year >= 0 && month >= 0 && day >= 0)
            return QDate(year, month, day);
    }
    // Blanks, other digits, other lengths: as the toolkit sees it.
    return QDate::fromString(text, QStringLiteral("yyyyMMdd"));
}
