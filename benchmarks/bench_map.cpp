// Messages of thirty fields to rows, by a configuration with mixed chains.
#include "ZrBench.h"
#include "ZrGridSetting.h"
#include "ZrTablePropertySet.h"

#include <QtCore/QDateTime>
#include <zrbusinessdata/CBusinessDataBase.h>
#include <zrdatabase/CDataBase.h>
#include <zrdatabase/ZrDataStore.h>

#include <random>

namespace {
using Message = QMap<QString, QVariant>;

constexpr int Fields = 30;
constexpr int Messages = 2000;
const char *const DictionarySection = "OrderStatus";

// The fields come in turns of ten kinds, as in an order blotter.
enum Kind { Id, Symbol, Status, Price, Ratio, Quantity, Amount, Day, Moment, Note, Kinds };

ZrFieldSetting fieldOf(int index)
{
    ZrFieldSetting field;
    field.index = index;
    field.fieldNumber = QString::number(1000 + index);
    field.type = QStringLiteral("QString");
    switch (index % Kinds) {
    case Id:
        field.keyColumn = true;
        break;
    case Symbol:
        field.displayRoleProperty = QStringLiteral("SymbolName");
        break;
    case Status:
        field.fieldNumber = index < Kinds ? QLatin1String(DictionarySection) : field.fieldNumber;
        field.displayRoleProperty = index < Kinds ? QStringLiteral("Dictionary") : QString();
        break;
    case Price:
        field.type = QStringLiteral("double");
        field.decimal = 3;
        break;
    case Ratio:
        field.type = QStringLiteral("double");
        field.displayRoleProperty = QStringLiteral("Percent");
        break;
    case Quantity:
        field.type = QStringLiteral("int");
        field.displayRoleProperty = QStringLiteral("CommaSeparation");
        field.exportViewRoleProperty = QStringLiteral("UserRole");
        break;
    case Amount:
        field.type = QStringLiteral("double");
        field.decimal = 2;
        field.displayRoleProperty = QStringLiteral("CommaSeparation");
        field.exportViewRoleProperty = QStringLiteral("UserRole");
        break;
    case Day:
        field.type = QStringLiteral("Date");
        field.displayRoleProperty = QStringLiteral("Date");
        break;
    case Moment:
        field.type = QStringLiteral("DateTime");
        field.displayRoleProperty = QStringLiteral("DateTime");
        field.dateStyle = QStringLiteral("hh:mm:ss");
        break;
    default:
        break;
    }
    return field;
}

class MapFixture
{
public:
    MapFixture()
    {
        ZrDataStore::openSeed();
        for (int index = 0; index < Fields; ++index) {
            m_fields.append(fieldOf(index));
            m_grid.addFieldSetting(m_fields.constLast());
        }
        const auto securities = ZrDataStore::snapshot()->contents().securities;
        for (int i = 0; i < Messages; ++i)
            m_messages.append(messageOf(i, securities));
    }
    ~MapFixture() { ZrDataStore::close(); }

    double ourRate()
    {
        RecordDataList records;
        return Messages /
               secondsOf([&] { ZrTablePropertySet::setTableRecordData(m_grid, m_messages, records); });
    }

    // The conversions and formats alone: no row, no cell, no configuration to look at, and the values at
    // hand.
    double bareRate()
    {
        QVector<QVector<QVariant>> values;
        for (const Message &message : qAsConst(m_messages)) {
            QVector<QVariant> row;
            for (const ZrFieldSetting &field : qAsConst(m_fields))
                row.append(message.value(field.fieldNumber));
            values.append(row);
        }
        return Messages / secondsOf([&] {
                   for (const QVector<QVariant> &row : qAsConst(values)) {
                       for (int index = 0; index < Fields; ++index)
                           convert(row.at(index), index % Kinds, index < Kinds);
                   }
               });
    }

private:
    Message messageOf(int number, const QVector<QVariantMap> &securities)
    {
        Message message;
        for (int index = 0; index < Fields; ++index)
            message.insert(m_fields.at(index).fieldNumber, valueOf(number, index % Kinds, securities));
        return message;
    }

    QVariant valueOf(int number, int kind, const QVector<QVariantMap> &securities)
    {
        switch (kind) {
        case Id:
            return QStringLiteral("ORD%1").arg(number, 9, 10, QLatin1Char('0'));
        case Symbol:
            return securities.at(int(m_random() % uint(securities.size()))).value(QStringLiteral("Symbol"));
        case Status:
            return QString::number(m_random() % 3);
        case Price:
            return (m_random() % 1000000) / 1000.0;
        case Ratio:
            return (m_random() % 10000) / 10000.0;
        case Quantity:
            return int(m_random() % 1000000);
        case Amount:
            return (m_random() % 1000000000) / 100.0;
        case Day:
            return QDate(2024, 1, 1).addDays(m_random() % 366).toString(QStringLiteral("yyyyMMdd"));
        case Moment:
            return qint64(1706671845123) + qint64(m_random());
        }
        return QStringLiteral("note of some length");
    }

    static QString grouped(QString text)
    {
        const int point = text.indexOf(QLatin1Char('.'));
        for (int i = (point < 0 ? text.size() : point) - 3; i > 0; i -= 3)
            text.insert(i, QLatin1String(", "));
        return text;
    }

    void keep(const QString &text, const QVariant &raw)
    {
        m_sink += uint(text.size()) + uint(raw.userType());
    }

    void convert(const QVariant &value, int kind, bool isDictionary)
    {
        switch (kind) {
        case Symbol:
            return keep(CBusinessDataBase::GetInstance()->GetSecurityChineseName(value.toString(), QString()),
                        value.toString());
        case Status:
            return keep(isDictionary ? CDataBase::GetInstance()->GetStaticCfgValue(
                                           QLatin1String(DictionarySection), value.toString())
                                     : value.toString(),
                        value.toString());
        case Price:
            return keep(QString::number(value.toDouble(), 'f', 3), value.toDouble());
        case Ratio:
            return keep(QStringLiteral("%1%").arg(value.toString().toDouble() * 100.0, 0, 'f', 2),
                        value.toDouble());
        case Quantity:
            return keep(grouped(value.toString()), value.toInt());
        case Amount:
            return keep(grouped(QString::number(value.toDouble(), 'f', 2)), value.toDouble());
        case Day: {
            const QDate date = QDate::fromString(value.toString(), QStringLiteral("yyyyMMdd"));
            return keep(date.toString(QStringLiteral("yyyy-MM-dd")), date);
        }
        case Moment: {
            const QDateTime moment = QDateTime::fromMSecsSinceEpoch(value.toLongLong());
            return keep(moment.toString(QStringLiteral("hh:mm:ss")), moment);
        }
        default:
            return keep(value.toString(), value.toString());
        }
    }

    ZrGridSetting m_grid;
    QVector<ZrFieldSetting> m_fields;
    QList<Message> m_messages;
    std::mt19937 m_random{3};
    volatile uint m_sink = 0; // keeps the conversions from being left out
};
} // namespace

ZrBenchCases mapBenches()
{
    // 2.5 times the time is 0.4 times the rate.
    const ZrBenchRow row = {"map/messages",   "messages/s", true, {}, "bare conversions and formats",
                            ZrBenchRow::None, 1 / 2.5};
    return {
        {row, [] {
             const auto fixture = std::make_shared<MapFixture>();
             return ZrBenchSides{[=] { return fixture->ourRate(); }, {}, [=] { return fixture->bareRate(); }};
         }}};
}
