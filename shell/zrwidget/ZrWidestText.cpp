#include "ZrWidestText.h"

#include <algorithm>
#include <functional>

namespace {
constexpr int FrequentCharacters = 0x250; // Latin and its extensions
} // namespace

ZrWidestText::ZrWidestText(const QFontMetrics &metrics)
    : m_metrics(metrics)
    , m_frequent(FrequentCharacters, -1)
{
}

int ZrWidestText::widthPx(const QVector<QString> &texts)
{
    int widest = 0;
    if (texts.size() <= MeasuredMost) {
        for (const QString &text : texts)
            widest = qMax(widest, measured(text));
        return widest;
    }
    // The narrowest of those that seem widest stands in front.
    using Candidate = QPair<int, int>; // seeming width, position
    QVector<Candidate> candidates;
    for (int i = 0; i < texts.size(); ++i) {
        const int px = estimated(texts.at(i));
        const bool isFull = candidates.size() == MeasuredMost;
        if (isFull && px <= candidates.constFirst().first)
            continue;
        if (isFull) {
            std::pop_heap(candidates.begin(), candidates.end(), std::greater<Candidate>());
            candidates.removeLast();
        }
        candidates.append({px, i});
        std::push_heap(candidates.begin(), candidates.end(), std::greater<Candidate>());
    }
    for (const Candidate &candidate : qAsConst(candidates))
        widest = qMax(widest, measured(texts.at(candidate.second)));
    return widest;
}

int ZrWidestText::measured(const QString &text) const
{
    return m_metrics.horizontalAdvance(text.size() > CharactersMost ? text.left(CharactersMost) : text);
}

int ZrWidestText::estimated(const QString &text)
{
    const int count = qMin(text.size(), CharactersMost);
    const QChar *const units = text.constData();
    int sum = 0;
    for (int i = 0; i < count; ++i) {
        const ushort unit = units[i].unicode();
        const int known = unit < FrequentCharacters ? m_frequent.at(unit) : -1;
        sum += known >= 0 ? known : characterPx(unit);
    }
    return sum;
}

int ZrWidestText::characterPx(ushort unit)
{
    if (unit < FrequentCharacters)
        return m_frequent[unit] = m_metrics.horizontalAdvance(QChar(unit));
    const auto known = m_others.constFind(unit);
    if (known != m_others.constEnd())
        return *known;
    // Half of a character beyond the basic ones has no width of its own.
    const int px =
        QChar::isSurrogate(unit) ? m_metrics.averageCharWidth() : m_metrics.horizontalAdvance(QChar(unit));
    m_others.insert(unit, px);
    return px;
}
