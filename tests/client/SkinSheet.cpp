#include "SkinSheet.h"

#include <QtCore/QRegularExpression>

#include <cmath>

namespace {
QString withoutStates(const QString &selector)
{
    static const QRegularExpression states(QStringLiteral("(?<!:):!?[a-z][a-z-]*"));
    return QString(selector).remove(states);
}

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor colourOf(const QString &text)
{
    static const QRegularExpression rgb(QStringLiteral("^rgba?\\(([^)]*)\\)$"));
    const QRegularExpressionMatch match = rgb.match(text);
    if (!match.hasMatch())
        return QColor(text);
    const QStringList parts = match.captured(1).split(QLatin1Char(','));
    QColor colour(parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt());
    QString alpha = parts.value(3).trimmed();
    if (alpha.endsWith(QLatin1Char('%')))
        colour.setAlphaF(alpha.chopped(1).toDouble() / 100);
    else if (!alpha.isEmpty())
        colour.setAlpha(alpha.toInt());
    return colour;
}
} // namespace

SkinSheet::SkinSheet(const QString &text)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    const QStringList blocks = QString(text).remove(comment).split(QLatin1Char('}'), Qt::SkipEmptyParts);
    for (const QString &block : blocks) {
        const QStringList parts = block.split(QLatin1Char('{'));
        if (parts.size() != 2)
            continue;
        const QStringList selectors = parts.at(0).split(QLatin1Char(','));
        const QStringList lines = parts.at(1).split(QLatin1Char(';'));
        for (const QString &selector : selectors) {
            Values &rule = m_rules[selector.simplified()];
            for (const QString &line : lines) {
                const int colon = line.indexOf(QLatin1Char(':'));
                if (colon > 0)
                    rule.insert(line.left(colon).trimmed(), line.mid(colon + 1).trimmed());
            }
        }
    }
}

SkinSheet::Values SkinSheet::values(const QString &selector) const
{
    Values result = m_rules.value(withoutStates(selector));
    const Values own = m_rules.value(selector);
    // "background" and "background-color" set the same.
    if (own.contains(QStringLiteral("background")) || own.contains(QStringLiteral("background-color"))) {
        result.remove(QStringLiteral("background"));
        result.remove(QStringLiteral("background-color"));
    }
    for (auto it = own.cbegin(); it != own.cend(); ++it)
        result.insert(it.key(), it.value());
    return result;
}

QList<QColor> SkinSheet::colours(const QString &value)
{
    static const QRegularExpression one(
        QStringLiteral("#[0-9a-fA-F]{3,8}\\b|rgba?\\([^)]*\\)|\\bwhite\\b|\\bblack\\b"));
    QList<QColor> found;
    QRegularExpressionMatchIterator matches = one.globalMatch(value);
    while (matches.hasNext())
        found.append(colourOf(matches.next().captured()));
    return found;
}

QColor SkinSheet::over(const QColor &upper, const QColor &lower)
{
    const double share = upper.alphaF();
    return QColor::fromRgbF(upper.redF() * share + lower.redF() * (1 - share),
                            upper.greenF() * share + lower.greenF() * (1 - share),
                            upper.blueF() * share + lower.blueF() * (1 - share));
}

double SkinSheet::contrast(QColor text, const QColor &back)
{
    text = over(text, back);
    const double one = luminance(text);
    const double other = luminance(back);
    return (qMax(one, other) + 0.05) / (qMin(one, other) + 0.05);
}
