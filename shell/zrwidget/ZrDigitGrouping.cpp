#include "ZrDigitGrouping.h"

QString ZrDigitGrouping::grouped(const QString &text, const QString &separator)
{
    constexpr int GroupSize = 3;
    const int first = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    const int stop = text.indexOf(QLatin1Char('.'));
    const int end = stop < 0 ? text.size() : stop;
    const int digits = end - first;
    if (digits <= GroupSize)
        return text;
    const int separators = (digits - 1) / GroupSize;
    QString result;
    result.reserve(text.size() + separators * separator.size());
    int position = end - separators * GroupSize;
    result.append(QStringView(text).left(position));
    for (; position < end; position += GroupSize)
        result.append(separator).append(QStringView(text).mid(position, GroupSize));
    return result.append(QStringView(text).mid(end));
}
