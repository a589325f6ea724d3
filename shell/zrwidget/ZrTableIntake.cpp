#include "ZrTableIntake.h"

#include "ZrTableModel_p.h"
#include "ZrTableRows.h"
#include "ZrTableSignalScope.h"

#include <QtCore/QDebug>
#include <QtCore/QLoggingCategory>

namespace {
// Up to here each record of a list takes its place one by one; above, one rebuild at the end is cheaper.
constexpr int c_fewRecords = 16;
} // namespace

ZrTableIntake::ZrTableIntake(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

ZrTableIntake::Kind ZrTableIntake::classify(const QString &key) const
{
    if (!m_fields.rows().hasKeys())
        return New;
    if (m_fields.keyToRow.contains(key))
        return Existing;
    return key.isEmpty() ? Refused : New;
}

// Known to the operators of the grid by its run of ones; it stays as it is. A full grid comes here for each
// row: nothing is put together that nobody reads.
void ZrTableIntake::logEviction() const
{
    if (!QLoggingCategory::defaultCategory()->isDebugEnabled())
        return;
    qDebug() << "111111111111111111111111111111" << m_fields.modelData.size() << m_fields.maximumRowCount;
}

// The rows' numbers in the signals of this class are positions in the model, also in filter mode: callers
// rely on exactly these numbers. settleViews() lets the views count again where that doesn't fit what is
// shown.
void ZrTableIntake::evictFront(int count)
{
    if (count <= 0)
        return;
    m_fields.beginRemove(0, count - 1);
    m_fields.rows().dropFront(count);
    m_fields.endRemove();
}

void ZrTableIntake::evictBack(int count)
{
    if (count <= 0)
        return;
    const int size = m_fields.modelData.size();
    m_fields.beginRemove(size - count, size - 1);
    m_fields.rows().dropBack(count);
    m_fields.endRemove();
}

void ZrTableIntake::tellInserted(int first, int last)
{
    if (m_fields.delayedDisplay) {
        m_fields.startDelayTimer();
        return;
    }
    m_fields.beginInsert(first, last);
    m_fields.endInsert();
    // A new row is unchecked and so ends the state "all checked".
    if (m_fields.checkBoxShown && m_fields.headCheckState == Qt::Checked)
        m_fields.updateHeadCheckState();
}

void ZrTableIntake::mergeExisting(const RecordDataList &existing)
{
    for (const RecordData &record : existing)
        m_fields.model->updataRecordData(record);
}

void ZrTableIntake::add(const RecordData &record)
{
    const QString key = m_fields.makeKey(record);
    const Kind kind = classify(key);
    if (kind == Existing)
        m_fields.model->updataRecordData(record);
    if (kind != New)
        return;
    const bool isFull =
        m_fields.modelData.size() >= m_fields.maximumRowCount && !m_fields.modelData.isEmpty();
    const ZrTableSignalScope scope(m_fields, isFull && m_fields.filterable);
    if (isFull) {
        logEviction();
        evictFront(1);
    }
    // Tested before its types are known: the first record of a column meets the filter without them.
    const bool isShown = m_fields.rows().append(record, key);
    m_fields.rows().learnTypes(record);
    if (isShown)
        tellInserted(m_fields.modelData.size() - 1, m_fields.modelData.size() - 1);
}

int ZrTableIntake::appendNew(const RecordDataList &records, RecordDataList &existing)
{
    int shown = 0;
    for (const RecordData &record : records) {
        const QString key = m_fields.makeKey(record);
        const Kind kind = classify(key);
        if (kind == Existing)
            existing.append(record);
        if (kind != New)
            continue;
        shown += m_fields.rows().append(record, key) ? 1 : 0;
        m_fields.rows().learnTypes(record);
    }
    return shown;
}

void ZrTableIntake::addList(const RecordDataList &records)
{
    const ZrTableSignalScope scope(m_fields, m_fields.filterable);
    RecordDataList existing;
    const int shown = appendNew(records, existing);
    if (m_fields.modelData.size() > m_fields.maximumRowCount) {
        logEviction();
        evictFront(qMin(m_fields.modelData.size() - m_fields.maximumRowCount, m_fields.modelData.size()));
    }
    mergeExisting(existing);
    // Given after the rows came, and counting those that left again: required, a view reads rowCount().
    const int size = m_fields.modelData.size();
    if (shown > 0)
        tellInserted(size - 1, shown + size - 2);
}

int ZrTableIntake::insert(int row, const RecordData &record)
{
    const QString key = m_fields.makeKey(record);
    const Kind kind = classify(key);
    if (kind == Existing)
        m_fields.model->updataRecordData(record);
    if (kind != New)
        return 0;
    const ZrTableSignalScope scope(m_fields, m_fields.filterable);
    // Rows inserted at the top push the tail out, as rows appended push the head out.
    if (m_fields.modelData.size() >= m_fields.maximumRowCount && !m_fields.modelData.isEmpty())
        evictBack(1);
    const int at = qBound(0, row, m_fields.modelData.size());
    if (m_fields.rows().insert(at, record, key))
        tellInserted(at, at);
    return 1;
}

int ZrTableIntake::insertNew(int row, const RecordDataList &records, RecordDataList &existing, int &shown)
{
    ZrTableRows &rows = m_fields.rows();
    const bool stepwise = records.size() < c_fewRecords && rows.hasKeys() && rows.canFollow();
    int inserted = 0;
    for (int i = records.size() - 1; i >= 0; --i) { // from the last, so that the given order survives
        const RecordData &record = records.at(i);
        const QString key = m_fields.makeKey(record);
        const Kind kind = classify(key);
        // In front: they are merged in the given order, as those of an appended list are. Of two records of
        // one key the later one is the newer push, and its values stay.
        if (kind == Existing)
            existing.prepend(record);
        if (kind != New)
            continue;
        ++inserted;
        if (stepwise) {
            shown += rows.insert(row, record, key) ? 1 : 0;
            continue;
        }
        rows.learnTypes(record);
        rows.insertForRebuild(row, record, key);
        shown += rows.wouldShow(record, key) ? 1 : 0;
    }
    return inserted;
}

int ZrTableIntake::insertList(int row, const RecordDataList &records)
{
    const ZrTableSignalScope scope(m_fields, m_fields.filterable);
    RecordDataList existing;
    int shown = 0;
    const int at = qBound(0, row, m_fields.modelData.size());
    const int inserted = insertNew(at, records, existing, shown);
    const int excess = qMin(m_fields.modelData.size() - m_fields.maximumRowCount, m_fields.modelData.size());
    if (excess > 0) {
        evictBack(excess);
        shown -= excess;
    }
    if (!m_fields.rows().canFollow())
        m_fields.rows().rebuild();
    mergeExisting(existing);
    if (shown > 0)
        tellInserted(at, at + shown - 1);
    return inserted;
}
