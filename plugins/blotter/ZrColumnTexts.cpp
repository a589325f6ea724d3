#include "ZrColumnTexts.h"

#include <QtCore/QCoreApplication>

namespace {
// The translator's tool finds the texts here.
const char *const known[] = {
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Order no."),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Symbol"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Name"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Market"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Side"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Type"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Validity"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Price"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Quantity"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Order value"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Entered"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Status"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Report"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Filled"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Open"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Withdrawn"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Average price"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Last price"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Last quantity"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Filled value"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Done"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Fills"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Report no."),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Changed"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Day"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Trading account"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Account name"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Asset account"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Asset name"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Product"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Investor"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "Node"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "order"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "execution"),
    QT_TRANSLATE_NOOP("ZrColumnTexts", "account"),
};
} // namespace

QString ZrColumnTexts::title(const QString &text)
{
    for (const char *const entry : known) {
        if (text == QLatin1String(entry))
            return QCoreApplication::translate("ZrColumnTexts", entry);
    }
    return text;
}

QString ZrColumnTexts::band(const QString &word)
{
    const QString text = title(word);
    // English words of a file are lower case; a band is a caption.
    return text.isEmpty() ? text : text.at(0).toUpper() + text.mid(1);
}
