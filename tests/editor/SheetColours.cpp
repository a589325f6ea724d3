#include "SheetColours.h"

#include <QtCore/QRegularExpression>

#include <cmath>

namespace {

QString valueOf(const QString &body, const QString &property)
{
    const QRegularExpression pattern(QStringLiteral("(?:^|[;\\s])%1\\s*:\\s*([^;]+);").arg(property));
    return pattern.match(body).captured(1).trimmed();
}

QColor colour(const QString &body, const QString &property, const QColor &otherwise)
{
    const QString value = valueOf(body, property);
    return value.isEmpty() || value == QLatin1String("transparent") ? otherwise : QColor(value);
}

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QList<SheetColours> SheetColours::read(const QString &sheet, const QColor &ground)
{
    QList<SheetColours> result;
    QString plain = sheet;
    plain.remove(
        QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
    auto rules = rule.globalMatch(plain);
    while (rules.hasNext()) {
        const QRegularExpressionMatch match = rules.next();
        const QColor text = result.isEmpty() ? QColor() : result.constFirst().text;
        const QColor background = result.isEmpty() ? ground : result.constFirst().background;
        result.append({match.captured(1).trimmed(), colour(match.captured(2), QStringLiteral("color"), text),
                       colour(match.captured(2), QStringLiteral("background"), background)});
    }
    return result;
}

double SheetColours::contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}
