#include "ZrDisplayChain.h"

#include "ZrCompactDate.h"
#include "ZrDigitGrouping.h"
#include "ZrFieldSetting.h"

#include <QtCore/QDateTime>
#include <zrbusinessdata/CBusinessDataBase.h>
#include <zrdatabase/CDataBase.h>
#include <zrdefine/VexlorFields.h>
#include <zrdefine/VexlorValues.h>

namespace {
using Transformation = QString (*)(const QString &text, const ZrFieldSetting &field);

QString commaSeparated(const QString &text, const ZrFieldSetting &)
{
    return ZrDigitGrouping::grouped(text, QStringLiteral(", "));
}

QString spaceSeparated(const QString &text, const ZrFieldSetting &)
{
    return ZrDigitGrouping::grouped(text, QStringLiteral("  ")); // two blanks
}

QString emptied(const QString &, const ZrFieldSetting &)
{
    return QString(QLatin1String(""));
}

QString symbolId(const QString &text, const ZrFieldSetting &)
{
    return CBusinessDataBase::GetInstance()->getSecurityIDBySymbol(
        text, QString(), Vexlor_Values::SecurityIDSource::securityID);
}

QString symbolName(const QString &text, const ZrFieldSetting &)
{
    return CBusinessDataBase::GetInstance()->GetSecurityChineseName(text, QString());
}

QString translated(const QString &text, const ZrFieldSetting &field)
{
    return CDataBase::GetInstance()->GetStaticCfgValue(field.fieldNumber, text);
}

QString market(const QString &text, const ZrFieldSetting &)
{
    const QString post = CBusinessDataBase::GetInstance()->GetSymbolPostBySymbol(text);
    return CDataBase::GetInstance()->GetStaticCfgValue(Vexlor_Fields::UserAccount::SymbolPost, post);
}

QString investAccount(const QString &text, const ZrFieldSetting &)
{
    return CBusinessDataBase::GetInstance()
        ->GetAccountDetailsByInvestAccount(text)
        .value(Vexlor_Fields::UserAccount::investorName)
        .toString();
}

QString productAccount(const QString &text, const ZrFieldSetting &)
{
    return CBusinessDataBase::GetInstance()
        ->GetAccountDetailsByProductAccount(text)
        .value(Vexlor_Fields::UserAccount::productName)
        .toString();
}

QString tradingAccount(const QString &text, const ZrFieldSetting &)
{
    return CBusinessDataBase::GetInstance()
        ->GetAccountDetailsByTradinngAccount(text)
        .value(Vexlor_Fields::UserAccount::tradingAccountName)
        .toString();
}

QString assetAccount(const QString &text, const ZrFieldSetting &)
{
    return CBusinessDataBase::GetInstance()
        ->GetAccountDetailsByAssertAccount(text)
        .value(Vexlor_Fields::UserAccount::assetAccountName)
        .toString();
}

QString date(const QString &text, const ZrFieldSetting &field)
{
    const QDate date = ZrCompactDate::parse(text);
    const QString styled = field.dateStyle.isEmpty() ? QString() : date.toString(field.dateStyle);
    // The default format is the ISO one for the four-digit years that can be read.
    return styled.isEmpty() ? date.toString(Qt::ISODate) : styled;
}

QString dateTime(const QString &text, const ZrFieldSetting &field)
{
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(text.toLongLong());
    const QString styled = field.dateStyle.isEmpty() ? QString() : moment.toString(field.dateStyle);
    return styled.isEmpty() ? moment.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss:zzz")) : styled;
}

QString percent(const QString &text, const ZrFieldSetting &field)
{
    constexpr int DefaultDecimals = 2;
    constexpr int MaxDecimals = 1100; // no double has more; a file could ask for a gigabyte of zeros
    const int decimals = field.decimal == -1 ? DefaultDecimals : qMin(field.decimal, MaxDecimals);
    return QString::number(text.toDouble() * 100.0, 'f', decimals) + QLatin1Char('%');
}

struct Word
{
    QLatin1String name;
    Transformation transformation;
};

// The misspelled names are those of the configuration files in use.
const Word Words[] = {
    {QLatin1String("CommaSeparation"), commaSeparated},
    {QLatin1String("SpaceSeparation"), spaceSeparated},
    {QLatin1String("Empty"), emptied},
    {QLatin1String("SymbolID"), symbolId},
    {QLatin1String("SymbolName"), symbolName},
    {QLatin1String("Dictionary"), translated},
    {QLatin1String("Market"), market},
    {QLatin1String("InvestAccount"), investAccount},
    {QLatin1String("ProductAccount"), productAccount},
    {QLatin1String("TradinngAccount"), tradingAccount},
    {QLatin1String("AssertAccount"), assetAccount},
    {QLatin1String("Date"), date},
    {QLatin1String("DateTime"), dateTime},
    {QLatin1String("Percent"), percent},
};

Transformation transformationOf(QStringView name)
{
    for (const Word &word : Words) {
        if (word.name.size() == name.size() && name == word.name)
            return word.transformation;
    }
    return nullptr;
}
} // namespace

QString ZrDisplayChain::apply(const QString &text, const ZrFieldSetting &field)
{
    // Parsed in place for each cell: finding a word costs less than looking up a kept parse would, and there
    // is no state that could go stale when a caller changes its field.
    QString result = text;
    const QStringView chain(field.displayRoleProperty);
    for (int begin = 0; begin < chain.size();) {
        const int bar = field.displayRoleProperty.indexOf(QLatin1Char('|'), begin);
        const int end = bar < 0 ? int(chain.size()) : bar;
        if (const Transformation transformation = transformationOf(chain.mid(begin, end - begin)))
            result = transformation(result, field);
        begin = end + 1;
    }
    return result;
}
