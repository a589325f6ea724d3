#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

/// Reads an amount in plain digits the Chinese way: grouped by four from the right, with the names of ten
/// thousand (万) and a hundred million (亿) between the groups.
///
///     12345678           1234万5678
///     1234567890123.45   12345亿6789万0123.45
///     100000000          1亿0000万0000
///
/// Shape:   digits and zeros stay as they are; nothing is rounded or left out of the integer digits. What
///          stands before the last two groups is one group, however long: there is no name above 亿 here.
///          Behind the first full stop the text stays up to a second one, where it ends.
/// Threads: any.
/// Errors:  nothing checks for digits: other characters are grouped just the same. An empty text reads empty.
class ZRWIDGET_PRIVATE_EXPORT ZrMoneyText
{
public:
    static QString reading(const QString &amount);

private:
    ZrMoneyText() = delete;
};
