#include "ZrLadderTexts.h"

QString ZrLadderTexts::side(int side)
{
    return side != 0 ? QStringLiteral("卖 ") : QStringLiteral("买 ");
}

QString ZrLadderTexts::level(int level, int numerals)
{
    return numerals == 1 ? chineseNumber(level) : QString::number(level);
}

QString ZrLadderTexts::chineseNumber(int number)
{
    static const QString numerals = QStringLiteral("一二三四五六七八九十");
    return number >= 1 && number <= numerals.size() ? QString(numerals.at(number - 1)) : QString();
}

QString ZrLadderTexts::latest()
{
    return QStringLiteral("最新");
}

QString ZrLadderTexts::noPrice()
{
    return QStringLiteral("—");
}
