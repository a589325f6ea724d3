#include "ZrMoneyText.h"

namespace {
constexpr int GroupDigits = 4;
constexpr QChar TenThousand(0x4E07);     // 万
constexpr QChar HundredMillion(0x4EBF);  // 亿
constexpr QChar Stop = QLatin1Char('.'); // what the amount editors take
} // namespace

// Called at each key press: one pass over the text, one allocation.
QString ZrMoneyText::reading(const QString &amount)
{
    const int stop = amount.indexOf(Stop);
    const int digits = stop < 0 ? amount.size() : stop;
    const int secondStop = stop < 0 ? -1 : amount.indexOf(Stop, stop + 1);
    const int end = secondStop < 0 ? amount.size() : secondStop;

    const QStringView text(amount);
    QString result;
    result.reserve(amount.size() + 2);
    int from = 0;
    if (digits > 2 * GroupDigits) {
        from = digits - 2 * GroupDigits;
        result.append(text.left(from)).append(HundredMillion);
    }
    if (digits > GroupDigits) {
        const int low = digits - GroupDigits;
        result.append(text.mid(from, low - from)).append(TenThousand);
        from = low;
    }
    return result.append(text.mid(from, end - from));
}
