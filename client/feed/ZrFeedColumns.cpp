#include "ZrFeedColumns.h"

QString ZrFeedColumns::resolve(const ZrFeedFile &file, const QStringList &names)
{
    m_names = names;
    m_error.clear();
    time = find(file.timeColumn);
    sequence = find(file.sequence);
    security = find(file.security);
    exchange = find(file.exchange);
    side = find(file.side);
    kind = find(file.kind);
    order = find(file.order);
    newOrder = find(file.newOrder);
    buyOrder = find(file.buyOrder);
    sellOrder = find(file.sellOrder);
    price = find(file.price.column);
    quantity = find(file.quantity.column);
    phase = find(file.phase);
    previousClose = find(file.previousClose.column);
    last = find(file.last.column);
    askPrices = findLevels(file.levels.askPrice, file.levels.from, file.levels.to);
    askQuantities = findLevels(file.levels.askQuantity, file.levels.from, file.levels.to);
    bidPrices = findLevels(file.levels.bidPrice, file.levels.from, file.levels.to);
    bidQuantities = findLevels(file.levels.bidQuantity, file.levels.from, file.levels.to);
    return m_error;
}

int ZrFeedColumns::find(const ZrFeedColumn &column)
{
    if (!column.isSet() || column.number >= 0)
        return column.number;
    const int index = m_names.indexOf(column.name);
    if (index < 0 && m_error.isEmpty())
        m_error = QStringLiteral("there is no column \"%1\"").arg(column.name.left(60));
    return index;
}

QVector<int> ZrFeedColumns::findLevels(const ZrFeedPattern &pattern, int from, int to)
{
    QVector<int> result;
    for (int i = from; pattern.isSet() && i <= to; ++i) {
        const QString name = QString(pattern.pattern).replace(QLatin1String("%1"), QString::number(i));
        result.append(pattern.first >= 0 ? pattern.first + pattern.step * (i - from) : m_names.indexOf(name));
        if (result.constFirst() < 0 && m_error.isEmpty())
            m_error = QStringLiteral("there is no column \"%1\"").arg(name.left(60));
    }
    return result;
}
