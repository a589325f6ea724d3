#include "ZrFeedRecorder.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {
QString besides(const QString &path, const char *ending)
{
    const QFileInfo info(path);
    return info.absolutePath() + QLatin1Char('/') + info.completeBaseName() + QLatin1String(ending);
}

QByteArray kindWord(ZrFeedKind kind)
{
    static const char *const words[] = {"ignore",  "add",  "cancel", "delete", "modify", "reject",
                                        "execute", "fill", "trade",  "book",   "phase"};
    return words[int(kind)];
}

QByteArray sideWord(ZrFeedSide side)
{
    return side == ZrFeedSide::Buy ? "B" : side == ZrFeedSide::Sell ? "S" : "N";
}

QByteArray number(ZrDecimal value, bool present)
{
    return present ? value.toString().toLatin1() : QByteArray();
}

QJsonObject column(const char *name)
{
    return {{QStringLiteral("column"), QLatin1String(name)}};
}

QJsonObject commonKeys()
{
    QJsonObject time = column("Time");
    time.insert(QStringLiteral("form"), QStringLiteral("nanoseconds"));
    time.insert(QStringLiteral("since"), QStringLiteral("epoch"));
    return {{QStringLiteral("time"), time},
            {QStringLiteral("sequence"), QStringLiteral("Number")},
            {QStringLiteral("security"), QStringLiteral("Symbol")}};
}

QJsonObject eventKeys()
{
    QJsonObject words;
    for (int i = 0; i <= int(ZrFeedKind::Phase); ++i) {
        const QString word = QString::fromLatin1(kindWord(ZrFeedKind(i)));
        words.insert(word, word);
    }
    QJsonObject kind = column("Kind");
    kind.insert(QStringLiteral("words"), words);
    QJsonObject keys;
    keys.insert(QStringLiteral("role"), QStringLiteral("orders"));
    keys.insert(QStringLiteral("kind"), kind);
    const char *const same[][2] = {
        {"side", "Side"},           {"order", "Order"}, {"newOrder", "NewOrder"}, {"buyOrder", "BuyOrder"},
        {"sellOrder", "SellOrder"}, {"price", "Price"}, {"quantity", "Quantity"}, {"phase", "Phase"}};
    for (const auto &pair : same)
        keys.insert(QLatin1String(pair[0]), QLatin1String(pair[1]));
    return keys;
}

QJsonObject bookKeys()
{
    QJsonObject levels;
    for (const char *name : {"askPrice", "askQuantity", "bidPrice", "bidQuantity"})
        levels.insert(QLatin1String(name), QLatin1String(name) + QLatin1String("%1"));
    levels.insert(QStringLiteral("from"), 1);
    levels.insert(QStringLiteral("to"), ZrFeedRecorder::Levels);
    QJsonObject keys;
    keys.insert(QStringLiteral("role"), QStringLiteral("books"));
    keys.insert(QStringLiteral("levels"), levels);
    keys.insert(QStringLiteral("phase"), QStringLiteral("Phase"));
    keys.insert(QStringLiteral("last"), QStringLiteral("Last"));
    keys.insert(QStringLiteral("previousClose"), QStringLiteral("PreviousClose"));
    return keys;
}
} // namespace

ZrFeedRecorder::ZrFeedRecorder(const QString &path)
    : m_path(path)
    , m_events(besides(path, ".events.csv"))
    , m_books(besides(path, ".books.csv"))
{
    if (!m_events.open(QIODevice::WriteOnly) || !m_books.open(QIODevice::WriteOnly)) {
        m_error = QStringLiteral("the recording %1 cannot be written").arg(path);
        return;
    }
    m_events.write("Number,Time,Symbol,Kind,Side,Order,NewOrder,BuyOrder,SellOrder,Price,Quantity,Phase\n");
    QByteArray head = "Number,Time,Symbol,Phase,PreviousClose,Last";
    for (const char *side : {"ask", "bid"}) {
        for (int i = 1; i <= Levels; ++i)
            head += QByteArray(",") + side + "Price" + QByteArray::number(i) + ',' + side + "Quantity" +
                    QByteArray::number(i);
    }
    m_books.write(head + '\n');
}

void ZrFeedRecorder::add(const ZrFeedEvent &event)
{
    if (!m_error.isEmpty())
        return;
    if (event.kind == ZrFeedKind::Book) {
        addBook(event);
        return;
    }
    const QList<QByteArray> fields = {QByteArray::number(event.sequence),
                                      QByteArray::number(event.timeNs),
                                      event.symbol,
                                      kindWord(event.kind),
                                      sideWord(event.side),
                                      event.order,
                                      event.newOrder,
                                      event.buyOrder,
                                      event.sellOrder,
                                      number(event.price, event.hasPrice),
                                      number(event.quantity, event.hasQuantity),
                                      event.phase};
    m_events.write(fields.join(',') + '\n');
}

QByteArray ZrFeedRecorder::levels(const QVector<ZrFeedLevel> &levels)
{
    QByteArray result;
    for (int i = 0; i < Levels; ++i) {
        const bool present = i < levels.size();
        const ZrFeedLevel level = levels.value(i);
        result += ',' + number(level.price, present) + ',' + number(level.quantity, present);
    }
    return result;
}

void ZrFeedRecorder::addBook(const ZrFeedEvent &event)
{
    const QList<QByteArray> fields = {QByteArray::number(event.sequence),
                                      QByteArray::number(event.timeNs),
                                      event.symbol,
                                      event.phase,
                                      number(event.previousClose, !event.previousClose.isZero()),
                                      number(event.last, !event.last.isZero())};
    m_books.write(fields.join(',') + levels(event.asks) + levels(event.bids) + '\n');
}

QByteArray ZrFeedRecorder::description(const QString &timeZone) const
{
    const auto file = [this](QJsonObject keys, const char *ending) {
        keys.insert(QStringLiteral("path"), QFileInfo(besides(m_path, ending)).fileName());
        return keys;
    };
    const QJsonObject root = {{QStringLiteral("name"), QFileInfo(m_path).completeBaseName()},
                              {QStringLiteral("timeZone"), timeZone},
                              {QStringLiteral("defaults"), commonKeys()},
                              {QStringLiteral("files"),
                               QJsonArray{file(eventKeys(), ".events.csv"), file(bookKeys(), ".books.csv")}}};
    return QJsonDocument(root).toJson();
}

QString ZrFeedRecorder::finish(const QString &timeZone)
{
    if (!m_error.isEmpty())
        return m_error;
    QSaveFile json(m_path);
    const bool good = m_events.commit() && m_books.commit() && json.open(QIODevice::WriteOnly) &&
                      json.write(description(timeZone)) > 0 && json.commit();
    return good ? QString() : QStringLiteral("the recording %1 cannot be written").arg(m_path);
}
