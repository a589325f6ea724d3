#include "ZrLinkageCombox.h"

#include <QtCore/QDebug>
#include <QtGui/QRgb>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace {
constexpr int Channels = 4;
constexpr int MostDigits = 3;
constexpr int MostValue = 255;

/// Decimal digits only: what else a number may be written with has no place in a style sheet.
bool isChannel(const QString &text)
{
    const QString digits = text.trimmed();
    const bool isNumber = !digits.isEmpty() && digits.size() <= MostDigits &&
                          std::all_of(digits.cbegin(), digits.cend(), [](QChar digit) {
                              return digit >= QLatin1Char('0') && digit <= QLatin1Char('9');
                          });
    return isNumber && digits.toInt() <= MostValue;
}

bool isColour(const QString &rgba)
{
    const QStringList parts = rgba.split(QLatin1Char(','));
    return parts.size() == Channels && std::all_of(parts.cbegin(), parts.cend(), isChannel);
}

/// Whether a light text can't be read on the colour, whatever dark ground shines through it.
bool isBright(const QString &rgba)
{
    constexpr int brightGray = 200;
    const QStringList parts = rgba.split(QLatin1Char(','));
    return qGray(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt()) > brightGray;
}
} // namespace

ZrLinkageCombox::ZrLinkageCombox(QWidget *parent)
    : QComboBox(parent)
{
    setAccessibleName(tr("Linkage group"));
    view()->setAccessibleName(tr("Linkage groups"));
}

void ZrLinkageCombox::setComboBackground(const QString &rgba)
{
    // The text comes from item data and becomes part of a style sheet, which could name files or other
    // widgets.
    if (!isColour(rgba)) {
        qWarning() << "ZrLinkageCombox::setComboBackground" << rgba.left(64);
        return;
    }
    // Before the sheet, which makes all sheets be read again: a skin's rules choose the text's colour by it.
    setProperty("brightGroup", isBright(rgba));
    if (QLineEdit *const edit = lineEdit())
        edit->setStyleSheet(QStringLiteral("QLineEdit{background:rgba(") + rgba + QStringLiteral(");}"));
    else
        setStyleSheet(QStringLiteral("ZrLinkageCombox{background:rgba(") + rgba + QStringLiteral(");}"));
}
