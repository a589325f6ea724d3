#include "ZrFeedFileFields.h"

#include "ZrCsvLine.h"

#include <algorithm>

namespace {
constexpr int MaxLevels = 50;
const QStringList
    kindNames = {QStringLiteral("ignore"),  QStringLiteral("add"),    QStringLiteral("cancel"),
                 QStringLiteral("delete"),  QStringLiteral("modify"), QStringLiteral("reject"),
                 QStringLiteral("execute"), QStringLiteral("fill"),   QStringLiteral("trade"),
                 QStringLiteral("book"),    QStringLiteral("phase")}; // in the order of ZrFeedKind
const QStringList sideNames = {QStringLiteral("none"), QStringLiteral("buy"), QStringLiteral("sell")};

QString key(const char *name)
{
    return QString::fromLatin1(name);
}
} // namespace

ZrFeedFileFields::ZrFeedFileFields(const QJsonObject &object, const QString &where, QString *error)
    : m_fields(object, where, error)
{
}

ZrFeedFile ZrFeedFileFields::read()
{
    m_file.path = m_fields.text(key("path"));
    if (m_file.path.isEmpty())
        m_fields.complain(key("path"), QStringLiteral("the name of the file is missing"));
    m_file.role = ZrFeedRole(m_fields.word(
        key("role"), {QStringLiteral("orders"), QStringLiteral("trades"), QStringLiteral("books")}));
    readFormat();
    readTime();
    readSecurity();
    readExchange();
    readKind();
    readSide();
    m_file.sequence = column(key("sequence"));
    m_file.order = column(key("order"));
    m_file.newOrder = column(key("newOrder"));
    m_file.buyOrder = column(key("buyOrder"));
    m_file.sellOrder = column(key("sellOrder"));
    m_file.price = number(key("price"));
    readQuantity();
    readPhase();
    m_file.previousClose = number(key("previousClose"));
    m_file.last = number(key("last"));
    readLevels();
    m_fields.finish();
    checkRole();
    return m_file;
}

void ZrFeedFileFields::readFormat()
{
    ZrJsonFields format(m_fields.object(key("format")), m_fields.where(key("format")), m_fields.error());
    const auto oneByte = [&format](const QString &name, char otherwise, bool mayBeEmpty) {
        const QByteArray text = format.text(name, QString(QLatin1Char(otherwise))).toUtf8();
        if (text.isEmpty() && mayBeEmpty)
            return '\0';
        if (text.size() == 1 && text.at(0) != '\0')
            return text.at(0);
        format.complain(name, QStringLiteral("one ASCII character is wanted"));
        return otherwise;
    };
    m_file.separator = oneByte(key("separator"), ',', false);
    m_file.quote = oneByte(key("quote"), '"', true);
    m_file.comment = format.text(key("comment")).toUtf8();
    m_file.head = format.flag(key("head"), true);
    m_file.columns = format.texts(key("columns"));
    if (m_file.head && !m_file.columns.isEmpty())
        format.complain(key("columns"), QStringLiteral("names are only for a file without a head line"));
    if (m_file.columns.size() > ZrCsvLine::MaxFields)
        format.complain(key("columns"), QStringLiteral("at most %1 columns").arg(ZrCsvLine::MaxFields));
    format.finish();
}

void ZrFeedFileFields::readTime()
{
    if (!m_fields.has(key("time"))) {
        m_fields.complain(key("time"), QStringLiteral("the time's column is missing"));
        return;
    }
    const QString where = m_fields.where(key("time"));
    ZrJsonFields time(m_fields.object(key("time")), where, m_fields.error());
    m_alignedPath = time.text(key("sameRowAs"));
    m_file.timeColumn = columnOf(time.value(key("column")), &time, key("column"));
    if (m_alignedPath.isEmpty() == !m_file.timeColumn.isSet())
        time.complain(key("column"), QStringLiteral("either this or \"sameRowAs\" is wanted"));
    m_file.time.form = ZrTimeForm(
        time.word(key("form"), {QStringLiteral("clock"), QStringLiteral("compact"), QStringLiteral("seconds"),
                                QStringLiteral("milliseconds"), QStringLiteral("microseconds"),
                                QStringLiteral("nanoseconds"), QStringLiteral("iso")}));
    m_file.time.sinceEpoch =
        time.word(key("since"), {QStringLiteral("midnight"), QStringLiteral("epoch")}) == 1;
    time.finish();
}

void ZrFeedFileFields::readSecurity()
{
    const QJsonValue value = m_fields.value(key("security"));
    if (!value.isObject()) {
        m_file.security = column(key("security"));
    } else {
        ZrJsonFields security(value.toObject(), m_fields.where(key("security")), m_fields.error());
        m_file.security = columnOf(security.value(key("column")), &security, key("column"));
        m_file.securityConstant = security.code(key("constant")).toUtf8();
        security.finish();
    }
    if (m_file.security.isSet() == !m_file.securityConstant.isEmpty())
        m_fields.complain(key("security"), QStringLiteral("either a column or a constant is wanted"));
}

void ZrFeedFileFields::readExchange()
{
    const QJsonValue value = m_fields.value(key("exchange"));
    if (!value.isObject()) {
        m_file.exchange = column(key("exchange"));
        return;
    }
    ZrJsonFields exchange(value.toObject(), m_fields.where(key("exchange")), m_fields.error());
    m_file.exchange = columnOf(exchange.value(key("column")), &exchange, key("column"));
    m_file.exchangeConstant = exchange.code(key("constant")).toUtf8();
    m_file.exchangeWords = words(&exchange, key("words"));
    const QHash<QByteArray, QByteArray> prefixes = words(&exchange, key("byPrefix"));
    for (auto it = prefixes.cbegin(); it != prefixes.cend(); ++it)
        m_file.exchangePrefixes.append({it.key(), it.value()});
    std::sort(
        m_file.exchangePrefixes.begin(), m_file.exchangePrefixes.end(), [](const auto &a, const auto &b) {
            return a.first.size() != b.first.size() ? a.first.size() > b.first.size() : a.first < b.first;
        });
    const int ways =
        int(m_file.exchange.isSet()) + int(!m_file.exchangeConstant.isEmpty()) + int(!prefixes.isEmpty());
    if (ways > 1)
        m_fields.complain(key("exchange"),
                          QStringLiteral("only one of column, constant and byPrefix is wanted"));
    exchange.finish();
}

void ZrFeedFileFields::readKind()
{
    const ZrFeedKind otherwise[] = {ZrFeedKind::Add, ZrFeedKind::Trade, ZrFeedKind::Book};
    m_file.kindConstant = otherwise[int(m_file.role)];
    if (!m_fields.has(key("kind")))
        return;
    ZrJsonFields kind(m_fields.object(key("kind")), m_fields.where(key("kind")), m_fields.error());
    m_file.kind = columnOf(kind.value(key("column")), &kind, key("column"));
    const QHash<QByteArray, QByteArray> found = words(&kind, key("words"));
    for (auto it = found.cbegin(); it != found.cend(); ++it) {
        const int index = kindNames.indexOf(QString::fromUtf8(it.value()));
        if (index < 0)
            kind.complain(key("words"), QStringLiteral("\"%1\" is none of %2")
                                            .arg(QString::fromUtf8(it.value().left(60)),
                                                 kindNames.join(QStringLiteral(", "))));
        m_file.kindWords.insert(it.key(), ZrFeedKind(qMax(0, index)));
    }
    if (!m_file.kind.isSet() || found.isEmpty())
        kind.complain(key("words"), QStringLiteral("a column and its words are wanted"));
    kind.finish();
}

void ZrFeedFileFields::readSide()
{
    const QJsonValue value = m_fields.value(key("side"));
    if (!value.isObject()) {
        m_file.side = column(key("side"));
        for (const char *word : {"B", "b", "BUY", "Buy", "buy", "1"})
            m_file.sideWords.insert(word, ZrFeedSide::Buy);
        for (const char *word : {"S", "s", "SELL", "Sell", "sell", "2", "-1"})
            m_file.sideWords.insert(word, ZrFeedSide::Sell);
        for (const char *word : {"", "N", "0"})
            m_file.sideWords.insert(word, ZrFeedSide::None);
        return;
    }
    ZrJsonFields side(value.toObject(), m_fields.where(key("side")), m_fields.error());
    m_file.side = columnOf(side.value(key("column")), &side, key("column"));
    const QHash<QByteArray, QByteArray> found = words(&side, key("words"));
    for (auto it = found.cbegin(); it != found.cend(); ++it) {
        const int index = sideNames.indexOf(QString::fromUtf8(it.value()));
        if (index < 0)
            side.complain(key("words"), QStringLiteral("\"%1\" is none of none, buy, sell")
                                            .arg(QString::fromUtf8(it.value().left(60))));
        m_file.sideWords.insert(it.key(), ZrFeedSide(qMax(0, index)));
    }
    if (!m_file.side.isSet() || found.isEmpty())
        side.complain(key("words"), QStringLiteral("a column and its words are wanted"));
    side.finish();
}

void ZrFeedFileFields::readQuantity()
{
    m_file.quantity = number(key("quantity"));
    const int meaning =
        m_fields.word(key("quantityMeans"), {QStringLiteral("original"), QStringLiteral("rest")});
    m_file.quantityIsRest = meaning == 1;
}

void ZrFeedFileFields::readPhase()
{
    const QJsonValue value = m_fields.value(key("phase"));
    if (!value.isObject()) {
        m_file.phase = column(key("phase"));
        return;
    }
    ZrJsonFields phase(value.toObject(), m_fields.where(key("phase")), m_fields.error());
    m_file.phase = columnOf(phase.value(key("column")), &phase, key("column"));
    m_file.phaseWords = words(&phase, key("words"));
    phase.finish();
}

void ZrFeedFileFields::readLevels()
{
    if (!m_fields.has(key("levels")))
        return;
    ZrJsonFields levels(m_fields.object(key("levels")), m_fields.where(key("levels")), m_fields.error());
    m_file.levels.askPrice = pattern(&levels, key("askPrice"));
    m_file.levels.askQuantity = pattern(&levels, key("askQuantity"));
    m_file.levels.bidPrice = pattern(&levels, key("bidPrice"));
    m_file.levels.bidQuantity = pattern(&levels, key("bidQuantity"));
    m_file.levels.from = levels.whole(key("from"), 1, 0, 1000);
    m_file.levels.to = levels.whole(key("to"), 10, 0, 1000);
    const int count = m_file.levels.to - m_file.levels.from + 1;
    if (count < 1 || count > MaxLevels)
        levels.complain(key("to"), QStringLiteral("from 1 to %1 levels are wanted").arg(MaxLevels));
    levels.finish();
}

void ZrFeedFileFields::checkRole()
{
    const bool hasOrder = m_file.order.isSet() || m_file.buyOrder.isSet() || m_file.sellOrder.isSet();
    if (m_file.role == ZrFeedRole::Orders && !hasOrder)
        m_fields.complain(key("order"), QStringLiteral("a file of orders needs the column of their numbers"));
    if (m_file.role == ZrFeedRole::Trades && !m_file.quantity.column.isSet())
        m_fields.complain(key("quantity"),
                          QStringLiteral("a file of trades needs the column of their quantities"));
    if (m_file.role == ZrFeedRole::Books && m_file.levels.to < m_file.levels.from)
        m_fields.complain(key("levels"), QStringLiteral("a file of books needs the columns of its levels"));
}

ZrFeedColumn ZrFeedFileFields::column(const QString &name)
{
    return columnOf(m_fields.value(name), &m_fields, name);
}

ZrFeedColumn ZrFeedFileFields::columnOf(const QJsonValue &value, ZrJsonFields *fields, const QString &name)
{
    ZrFeedColumn result;
    if (value.isUndefined())
        return result;
    if (value.isDouble()) {
        result.number = value.toInt(-1);
        if (result.number < 0 || result.number >= ZrCsvLine::MaxFields)
            fields->complain(
                name, QStringLiteral("a column number from 0 to %1 is wanted").arg(ZrCsvLine::MaxFields - 1));
        return result;
    }
    result.name = value.toString();
    if (result.name.isEmpty())
        fields->complain(name, QStringLiteral("the name or the number of a column is wanted"));
    else if (!m_file.head && m_file.columns.indexOf(result.name) < 0)
        fields->complain(
            name, QStringLiteral(
                      "the file has no head line, so column \"%1\" must stand in \"columns\" or be a number")
                      .arg(result.name.left(60)));
    return result;
}

ZrFeedNumber ZrFeedFileFields::number(const QString &name)
{
    ZrFeedNumber result;
    const QJsonValue value = m_fields.value(name);
    if (!value.isObject()) {
        result.column = column(name);
        return result;
    }
    ZrJsonFields fields(value.toObject(), m_fields.where(name), m_fields.error());
    result.column = columnOf(fields.value(key("column")), &fields, key("column"));
    readScale(&fields, &result);
    const QStringList none = fields.texts(key("none"));
    for (const QString &text : none)
        result.noValue.append(text.toUtf8());
    const bool levelScale = m_file.role == ZrFeedRole::Books;
    if (!result.column.isSet() && !levelScale)
        fields.complain(key("column"), QStringLiteral("the column is missing"));
    fields.finish();
    return result;
}

void ZrFeedFileFields::readScale(ZrJsonFields *fields, ZrFeedNumber *number)
{
    constexpr qint64 most = 1000000000000;
    const QJsonValue scale = fields->value(key("scale"));
    if (!scale.isUndefined()) {
        // "1/10000", 0.0001 or 100.
        const QStringList parts = scale.toString().split(QLatin1Char('/'));
        bool good = scale.isDouble();
        const double factor = scale.toDouble();
        number->numerator = good && factor >= 1 ? qint64(factor) : 1;
        number->denominator = good && factor > 0 && factor < 1 ? qRound64(1.0 / qMax(factor, 1e-13)) : 1;
        good = good && factor > 0 && factor <= double(most);
        if (parts.size() == 2) {
            bool top = false;
            number->numerator = parts.at(0).trimmed().toLongLong(&top);
            number->denominator = parts.at(1).trimmed().toLongLong(&good);
            good = good && top;
        }
        if (!good || number->numerator < 1 || number->denominator < 1 || number->numerator > most ||
            number->denominator > most)
            fields->complain(key("scale"), QStringLiteral("a fraction such as \"1/10000\" is wanted"));
    }
    const QString tick = fields->code(key("tick"));
    if (!tick.isNull() &&
        (!ZrDecimal::parse(tick.toLatin1(), &number->tick) || !(number->tick > ZrDecimal())))
        fields->complain(key("tick"), QStringLiteral("a price step such as \"0.01\" is wanted"));
    if (fields->has(key("decimals"))) {
        qint64 unit = ZrDecimal::One;
        for (int i = fields->whole(key("decimals"), 8, 0, 8); i > 0; --i)
            unit /= 10;
        number->tick = ZrDecimal::fromUnits(unit);
    }
}

ZrFeedPattern ZrFeedFileFields::pattern(ZrJsonFields *fields, const QString &name)
{
    ZrFeedPattern result;
    const QJsonValue value = fields->value(name);
    if (value.isString()) {
        result.pattern = value.toString();
        if (!result.pattern.contains(QLatin1String("%1")))
            fields->complain(name, QLatin1Char('"') + result.pattern.left(60) +
                                       QLatin1String("\" has no %1 for the running number"));
    } else if (value.isObject()) {
        ZrJsonFields steps(value.toObject(), fields->where(name), fields->error());
        result.first = steps.whole(key("first"), 0, 0, ZrCsvLine::MaxFields - 1);
        result.step = steps.whole(key("step"), 1, 1, ZrCsvLine::MaxFields - 1);
        steps.finish();
    } else {
        fields->complain(
            name,
            QStringLiteral("a pattern such as \"AskPrice%1\" or {\"first\": 0, \"step\": 4} is wanted"));
    }
    return result;
}

QHash<QByteArray, QByteArray> ZrFeedFileFields::words(ZrJsonFields *fields, const QString &name)
{
    QHash<QByteArray, QByteArray> result;
    const QJsonObject object = fields->object(name);
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const QString text = ZrJsonFields::codeOf(it.value());
        if (text.isNull())
            fields->complain(name, QStringLiteral("the meaning of \"%1\" is no text").arg(it.key().left(60)));
        result.insert(it.key().toUtf8(), text.toUtf8());
    }
    return result;
}
