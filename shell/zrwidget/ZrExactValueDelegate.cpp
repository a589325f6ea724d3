#include "ZrExactValueDelegate.h"

#include "ZrPlainText.h"

#include <QtCore/QLocale>

#include <limits>

namespace {
// No row is as wide; more would only cost time.
constexpr ZrPlainText::Bound rowBound{400, std::numeric_limits<int>::max(), 400};
} // namespace

QString ZrExactValueDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    const auto type = QMetaType::Type(value.type());
    // The base rounds to six digits, which is another amount.
    if (type == QMetaType::Double || type == QMetaType::Float) {
        const double number = value.toDouble();
        return type == QMetaType::Float ? QString::number(number, 'g', std::numeric_limits<float>::digits10)
                                        : QString::number(number, 'f', QLocale::FloatingPointShortest);
    }
    QString line = ZrPlainText::beginning(value.toString(), rowBound);
    for (QChar &unit : line) {
        if (unit == QLatin1Char('\n') || unit == QLatin1Char('\r') || unit == QChar::LineSeparator ||
            unit == QChar::ParagraphSeparator)
            unit = QLatin1Char(' ');
    }
    return line;
}
