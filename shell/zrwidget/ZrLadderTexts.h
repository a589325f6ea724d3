#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

/// The words that a ladder writes beside what its caller sends.
///
/// Shape:   Chinese, whatever the language of the client: traders read a ladder by these very words.
/// Threads: any.
class ZRWIDGET_PRIVATE_EXPORT ZrLadderTexts
{
public:
    /// "卖 " for any side but 0, "买 " for 0; the blank parts it from the level.
    static QString side(int side);
    /// The level's number, as a Chinese numeral when `numerals` is 1.
    static QString level(int level, int numerals);
    /// "一" to "十" for 1 to 10, else empty.
    static QString chineseNumber(int number);
    /// "最新", in front of the latest price.
    static QString latest();
    /// "—", for a level without a price.
    static QString noPrice();

private:
    ZrLadderTexts() = delete;
};
