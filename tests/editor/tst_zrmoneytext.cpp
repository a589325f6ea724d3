#include "ZrMoneyText.h"
#include "ZrTestMain.h"

#include <random>

namespace {

constexpr int MostDigits = 16; // thirteen, and three more where there is no full stop
constexpr int MostDecimals = 3;
constexpr int RandomAmounts = 100000;

QString padded(quint64 value, int width)
{
    return QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
}

// The second way: by arithmetic on the number instead of cutting of texts. The number of digits says how wide
// each group is written, since zeros at the front are typed too.
QString byArithmetic(const QString &amount)
{
    const QString whole = amount.section('.', 0, 0);
    const int digits = whole.size();
    const quint64 value = whole.toULongLong();
    QString result;
    if (digits > 8)
        result += padded(value / 100000000, digits - 8) + QStringLiteral("亿");
    if (digits > 4)
        result += padded(value / 10000 % 10000, qMin(4, digits - 4)) + QStringLiteral("万");
    if (digits > 0)
        result += padded(value % 10000, qMin(4, digits));
    if (amount.contains('.'))
        result += '.' + amount.section('.', 1, 1);
    return result;
}

class Amounts
{
public:
    explicit Amounts(quint32 seed)
        : m_random(seed)
    {
    }

    /// As the editor lets them in: up to 13 digits, a full stop or none, up to three digits.
    QString next()
    {
        QString amount = digits(1 + below(13));
        if (below(2) == 1)
            amount += '.';
        return amount + digits(below(MostDecimals + 1));
    }

private:
    int below(int bound) { return int(m_random() % quint32(bound)); }

    QString digits(int count)
    {
        QString text;
        // Every third run holds zeros mostly: round amounts are the usual ones.
        const bool isRound = below(3) == 0;
        for (int i = 0; i < count; ++i)
            text += QChar('0' + (isRound && below(4) != 0 ? 0 : below(10)));
        return text;
    }

    std::mt19937 m_random;
};

} // namespace

class tst_ZrMoneyText : public QObject
{
    Q_OBJECT
private slots:
    void amountsAreRead_data();
    void amountsAreRead();
    void everyLengthAgreesWithArithmetic();
    void randomAmountsAgreeWithArithmetic();
    void whatWasAddedCanBeTakenAwayAgain();
};

void tst_ZrMoneyText::amountsAreRead_data()
{
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("one digit") << "7"
                               << "7";
    QTest::newRow("four digits, no name yet") << "9999"
                                              << "9999";
    QTest::newRow("four digits and decimals") << "9999.125"
                                              << "9999.125";
    QTest::newRow("five digits") << "10000" << QStringLiteral("1万0000");
    QTest::newRow("eight digits") << "12345678" << QStringLiteral("1234万5678");
    QTest::newRow("nine digits") << "123456789" << QStringLiteral("1亿2345万6789");
    QTest::newRow("twelve digits") << "123456789012" << QStringLiteral("1234亿5678万9012");
    QTest::newRow("thirteen digits and decimals")
        << "1234567890123.45" << QStringLiteral("12345亿6789万0123.45");
    QTest::newRow("sixteen digits, no full stop")
        << "1234567890123456" << QStringLiteral("12345678亿9012万3456");
    QTest::newRow("decimals are not grouped") << "12345.678" << QStringLiteral("1万2345.678");
    QTest::newRow("groups of zeros stay") << "100000000" << QStringLiteral("1亿0000万0000");
    QTest::newRow("zeros at the front stay") << "00001" << QStringLiteral("0万0001");
    QTest::newRow("full stop at the end") << "12345." << QStringLiteral("1万2345.");
    QTest::newRow("full stop at the front") << ".5"
                                            << ".5";
    QTest::newRow("only a full stop") << "."
                                      << ".";
    QTest::newRow("what follows a second full stop is left out")
        << "12345.6.7" << QStringLiteral("1万2345.6");
    QTest::newRow("two full stops in a row") << "1..5"
                                             << "1.";
    QTest::newRow("other characters are grouped too") << "abcdefghi" << QStringLiteral("a亿bcde万fghi");
}

void tst_ZrMoneyText::amountsAreRead()
{
    QFETCH(QString, amount);
    QFETCH(QString, expected);
    QCOMPARE(ZrMoneyText::reading(amount), expected);
}

void tst_ZrMoneyText::everyLengthAgreesWithArithmetic()
{
    const QString digits = QStringLiteral("9080706050403021");
    const QString zeros(MostDigits, '0');
    for (int whole = 0; whole <= MostDigits; ++whole) {
        for (const QString &source : {digits, zeros}) {
            const QString amount = source.left(whole);
            QCOMPARE(ZrMoneyText::reading(amount), byArithmetic(amount));
            for (int decimals = 0; decimals <= MostDecimals; ++decimals) {
                const QString withStop = amount + '.' + source.left(decimals);
                QCOMPARE(ZrMoneyText::reading(withStop), byArithmetic(withStop));
            }
        }
    }
}

void tst_ZrMoneyText::randomAmountsAgreeWithArithmetic()
{
    Amounts amounts(20240607);
    for (int i = 0; i < RandomAmounts; ++i) {
        const QString amount = amounts.next();
        const QString reading = ZrMoneyText::reading(amount);
        if (reading != byArithmetic(amount))
            QCOMPARE(reading, byArithmetic(amount));
    }
}

void tst_ZrMoneyText::whatWasAddedCanBeTakenAwayAgain()
{
    Amounts amounts(7);
    for (int i = 0; i < RandomAmounts / 10; ++i) {
        const QString amount = amounts.next();
        QString digits = ZrMoneyText::reading(amount);
        digits.remove(QStringLiteral("万")).remove(QStringLiteral("亿"));
        if (digits != amount)
            QCOMPARE(digits, amount);
    }
}

ZR_TEST_GUILESS_MAIN(tst_ZrMoneyText)
#include "tst_zrmoneytext.moc"
