#include "ZrColumnOrder.h"

#include <QtCore/QStringList>
#include <QtWidgets/QHeaderView>

QList<int> ZrColumnOrder::listOrder(int count)
{
    QList<int> order;
    for (int index = 0; index < count; ++index)
        order.append(index);
    return order;
}

QList<int> ZrColumnOrder::fromText(const QString &text)
{
    QList<int> order;
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts)
        order.append(part.toInt());
    return order;
}

QString ZrColumnOrder::toText(const QList<int> &logicalOrder)
{
    QStringList parts;
    for (const int column : logicalOrder)
        parts.append(QString::number(column));
    return parts.join(QLatin1Char(','));
}

QList<int> ZrColumnOrder::logicalNumbers(const HeadList &heads)
{
    QList<int> numbers;
    for (const QMap<QString, QVariant> &head : heads)
        numbers.append(head.value(QStringLiteral("Head_ColumnIndex")).toInt());
    return numbers;
}

QList<int> ZrColumnOrder::toLogical(const QList<int> &visualOrder, const HeadList &heads)
{
    const QList<int> numbers = logicalNumbers(heads);
    QList<int> order;
    for (const int index : visualOrder) {
        if (index >= 0 && index < numbers.size())
            order.append(numbers.at(index));
    }
    return order;
}

QList<int> ZrColumnOrder::toVisual(const QList<int> &logicalOrder, const HeadList &heads)
{
    const QList<int> numbers = logicalNumbers(heads);
    QList<int> order;
    for (const int column : logicalOrder) {
        const int index = numbers.indexOf(column);
        // A stored order outlives the columns it was made for, and a user's file may name one twice.
        if (index < 0 || order.contains(index))
            return listOrder(heads.size());
        order.append(index);
    }
    return order.size() == heads.size() ? order : listOrder(heads.size());
}

void ZrColumnOrder::apply(const QList<int> &visualOrder, int offset, QHeaderView *head)
{
    const int count = head->count();
    for (int position = 0; position < visualOrder.size(); ++position) {
        const int section = visualOrder.at(position) + offset;
        // The head is asked where the section stands now: a head that was ordered before does not start
        // from the order of the list.
        const int from = section >= offset && section < count ? head->visualIndex(section) : -1;
        if (from >= 0 && position + offset < count)
            head->moveSection(from, position + offset);
    }
}
