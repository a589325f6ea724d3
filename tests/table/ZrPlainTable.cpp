#include "ZrPlainTable.h"

#include "zrutils/ZrCommonUtils.h"

namespace {

QVariant firstOf(const ItemRoleMap &cell, const QStringList &roles)
{
    for (const QString &role : roles) {
        if (cell.contains(role))
            return cell.value(role);
    }
    return QVariant();
}

bool isChecked(const RecordData &record)
{
    return record.value(-1).value("256").toBool();
}

} // namespace

QString ZrPlainTable::keyOf(const RecordData &record) const
{
    QString key;
    for (int column : keyColumns) {
        for (const char *role : {"256", "0", "257"}) {
            const QString text = record.value(column).value(role).toString();
            if (!text.isEmpty()) {
                key += text;
                break;
            }
        }
    }
    return key;
}

int ZrPlainTable::modelRow(int shownRow) const
{
    if (!isFilterable)
        return shownRow >= 0 && shownRow < rows.size() ? shownRow : -1;
    if (shownRow < 0 || shownRow >= shownKeys.size())
        return -1;
    const int row = keyToRow.value(shownKeys.at(shownRow), 0);
    return row < rows.size() ? row : -1;
}

int ZrPlainTable::rowOfKey(const QString &key) const
{
    if (keyColumns.isEmpty())
        return -1;
    return isFilterable ? shownKeys.indexOf(key) : keyToRow.value(key, -1);
}

RecordDataList ZrPlainTable::shownRecords() const
{
    if (!isFilterable)
        return rows;
    RecordDataList records;
    for (const QString &key : shownKeys) {
        const int row = keyToRow.value(key, -1);
        if (row >= 0 && row < rows.size())
            records.append(rows.at(row));
    }
    return records;
}

int ZrPlainTable::countedHeadState() const
{
    int checked = 0;
    for (int i = 0; i < shownCount(); ++i) {
        const int row = modelRow(i);
        checked += row >= 0 && isChecked(rows.at(row)) ? 1 : 0;
    }
    return checked == 0 ? 0 : checked == shownCount() ? 2 : 1;
}

void ZrPlainTable::updateHead()
{
    if (isCheckBoxShown)
        headState = countedHeadState();
}

void ZrPlainTable::endAllChecked()
{
    if (headState == 2 && !isDelayed)
        updateHead();
}

ZrPlainTable::Kind ZrPlainTable::classify(const QString &key) const
{
    if (keyColumns.isEmpty())
        return New;
    if (keyToRow.contains(key))
        return Existing;
    return key.isEmpty() ? Refused : New;
}

bool ZrPlainTable::matches(const RecordData &record) const
{
    return ZrCommonUtils::isRecordMatchFilterList(record, filters, types);
}

void ZrPlainTable::learn(const RecordData &record)
{
    for (int column : record.keys()) {
        const QVariant value = firstOf(record.value(column), {"256", "257", "0"});
        if (!types.contains(column) && value.isValid())
            types.insert(column, value.type());
    }
}

void ZrPlainTable::renumber()
{
    keyToRow.clear();
    for (int i = 0; i < rows.size() && !keyColumns.isEmpty(); ++i) {
        if (!keyOf(rows.at(i)).isEmpty())
            keyToRow.insert(keyOf(rows.at(i)), i);
    }
}

void ZrPlainTable::rebuild()
{
    renumber();
    if (!keyColumns.isEmpty() && isFilterable)
        refresh();
}

void ZrPlainTable::refresh()
{
    shownKeys.clear();
    for (const RecordData &record : ZrCommonUtils::getMatchRecordListByFilterList(rows, filters, types)) {
        if (!keyOf(record).isEmpty())
            shownKeys.append(keyOf(record));
    }
}

void ZrPlainTable::add(const RecordData &record)
{
    const QString key = keyOf(record);
    if (classify(key) == Existing)
        update(record);
    if (classify(key) != New)
        return;
    if (rows.size() >= maximum) {
        rows.removeFirst();
        rebuild();
    }
    rows.append(record);
    if (!keyColumns.isEmpty())
        keyToRow.insert(key, rows.size() - 1);
    const bool isShown = !isFilterable || matches(record);
    if (isFilterable && isShown)
        shownKeys.append(key);
    learn(record);
    if (isShown)
        endAllChecked();
}

void ZrPlainTable::addList(const RecordDataList &records)
{
    RecordDataList existing;
    int count = 0;
    for (const RecordData &record : records) {
        const QString key = keyOf(record);
        if (classify(key) == Existing)
            existing.append(record);
        if (classify(key) != New)
            continue;
        rows.append(record);
        if (!keyColumns.isEmpty())
            keyToRow.insert(key, rows.size() - 1);
        if (!isFilterable) {
            ++count;
        } else if (matches(record)) {
            shownKeys.append(key);
            ++count;
        }
        learn(record);
    }
    if (rows.size() > maximum) {
        while (rows.size() > maximum)
            rows.removeFirst();
        rebuild();
    }
    for (const RecordData &record : existing)
        update(record);
    if (count > 0)
        endAllChecked();
}

void ZrPlainTable::insert(int row, const RecordData &record)
{
    const QString key = keyOf(record);
    if (classify(key) == Existing)
        update(record);
    if (classify(key) != New)
        return;
    if (rows.size() >= maximum)
        rows.removeLast();
    rows.insert(qBound(0, row, rows.size()), record);
    learn(record);
    rebuild();
    if (!isFilterable || matches(record))
        endAllChecked();
}

void ZrPlainTable::insertList(int row, const RecordDataList &records)
{
    RecordDataList existing;
    const int at = qBound(0, row, rows.size());
    int count = 0;
    for (int i = records.size() - 1; i >= 0; --i) {
        const QString key = keyOf(records.at(i));
        if (classify(key) == Existing)
            existing.prepend(records.at(i));
        if (classify(key) != New)
            continue;
        rows.insert(at, records.at(i));
        learn(records.at(i));
        if (!keyColumns.isEmpty())
            keyToRow.insert(key, at);
        count += !isFilterable || matches(records.at(i)) ? 1 : 0;
    }
    while (rows.size() > maximum) {
        rows.removeLast();
        --count;
    }
    rebuild();
    for (const RecordData &record : existing)
        update(record);
    if (count > 0)
        endAllChecked();
}

bool ZrPlainTable::mergeInto(const RecordData &record, int &row, bool &hasState)
{
    row = keyColumns.isEmpty() ? -1 : keyToRow.value(keyOf(record), -1);
    if (row < 0 || row >= rows.size())
        return false;
    bool isChanged = false;
    for (int column : record.keys()) {
        ItemRoleMap &stored = rows[row][column];
        const ItemRoleMap cell = record.value(column);
        for (const QString &role : cell.keys()) {
            if (stored.contains(role) && stored.value(role) == cell.value(role))
                continue;
            stored[role] = cell.value(role);
            isChanged = true;
        }
    }
    hasState = record.contains(-1);
    if (isChanged)
        learn(record);
    return isChanged;
}

void ZrPlainTable::settleShown(int row, const QString &key, bool &isTold)
{
    const int position = shownKeys.indexOf(key);
    const bool isMatch = matches(rows.at(row));
    isTold = (position >= 0) != isMatch;
    if (position >= 0 && !isMatch)
        shownKeys.removeAt(position);
    if (position >= 0 || !isMatch)
        return;
    for (int next = row + 1; next < rows.size(); ++next) {
        const int before = shownKeys.indexOf(keyOf(rows.at(next)));
        if (before >= 0) {
            shownKeys.insert(before, key);
            return;
        }
    }
    shownKeys.append(key);
}

void ZrPlainTable::update(const RecordData &record)
{
    int row = -1;
    bool hasState = false;
    if (!mergeInto(record, row, hasState))
        return;
    const QString key = keyOf(record);
    bool isMoved = false;
    if (isFilterable)
        settleShown(row, key, isMoved);
    if (isMoved || (hasState && (!isFilterable || shownKeys.contains(key))))
        updateHead();
}

void ZrPlainTable::updateMany(const RecordDataList &records)
{
    bool isChanged = false;
    for (const RecordData &record : records) {
        int row = -1;
        bool unused = false;
        if (!mergeInto(record, row, unused))
            continue;
        isChanged = true;
        if (isFilterable)
            settleShown(row, keyOf(record), unused);
    }
    if (isChanged)
        updateHead();
}

void ZrPlainTable::replaceAll(const RecordDataList &records)
{
    QStringList seen;
    rows.clear();
    for (const RecordData &record : records) {
        const QString key = keyOf(record);
        if (!keyColumns.isEmpty() && (key.isEmpty() || seen.contains(key)))
            continue;
        seen.append(key);
        learn(record);
        rows.append(record);
    }
    rebuild();
    updateHead();
}

int ZrPlainTable::remove(const RecordData &record)
{
    const QString key = keyOf(record);
    const int row = keyToRow.value(key, -1);
    if (key.isEmpty() || row < 0 || row >= rows.size())
        return 0;
    const bool wasChecked = isChecked(rows.at(row));
    rows.removeAt(row);
    shownKeys.removeOne(key);
    renumber();
    if (wasChecked && !isDelayed)
        updateHead();
    return 1;
}

int ZrPlainTable::removeList(const RecordDataList &records)
{
    QMap<int, QString> noted;
    int count = 0;
    for (const RecordData &record : records) {
        const QString key = keyOf(record);
        if (!keyToRow.contains(key))
            continue;
        noted.insert(isFilterable ? shownKeys.indexOf(key) : keyToRow.value(key), key);
        ++count;
    }
    if (noted.isEmpty())
        return 0;
    const QList<QString> keys = noted.values();
    for (int i = keys.size() - 1; i >= 0; --i) {
        const int row = keyToRow.value(keys.at(i), -1);
        if (row >= 0 && row < rows.size())
            rows.removeAt(row);
        keyToRow.remove(keys.at(i));
        shownKeys.removeOne(keys.at(i));
    }
    renumber();
    if (!isDelayed)
        updateHead();
    return count;
}

void ZrPlainTable::removeRow(int row)
{
    if (row < 0)
        return;
    if (keyColumns.isEmpty() || !isFilterable) {
        if (row >= rows.size())
            return;
        keyToRow.remove(keyOf(rows.at(row)));
        rows.removeAt(row);
        return;
    }
    if (row >= shownKeys.size())
        return;
    keyToRow.remove(shownKeys.takeAt(row));
    const int victim = keyToRow.value(shownKeys.value(row), 0);
    if (victim < rows.size())
        rows.removeAt(victim);
}

void ZrPlainTable::sort(int column, Qt::SortOrder order)
{
    ZrCommonUtils::sortTableViewRecordListByKeys(rows, {{column, order}});
    rebuild();
}

void ZrPlainTable::setFilters(const ViewFilterList &newFilters)
{
    filters = newFilters;
    rebuild();
}

void ZrPlainTable::setFilterable(bool on)
{
    isFilterable = on;
    shownKeys.clear();
    if (on)
        refresh();
}

void ZrPlainTable::check(int row, bool checked)
{
    const int at = modelRow(row);
    if (at < 0)
        return;
    rows[at][-1]["256"] = checked;
    updateHead();
}
