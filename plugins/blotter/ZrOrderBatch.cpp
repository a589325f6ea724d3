#include "ZrOrderBatch.h"

namespace {
QString keyOf(const QVariantMap &record, const QStringList &keyFields)
{
    QString key;
    for (const QString &field : keyFields) {
        key += record.value(field).toString();
        key += QChar(0); // or 12 and 3 would be the order that 1 and 23 is
    }
    return key;
}

// Names of fields are mostly copies of one text, which a pointer tells.
bool isSame(const QString &a, const QString &b)
{
    return a.isSharedWith(b) || a == b;
}
} // namespace

ZrOrderBatch::ZrOrderBatch(const std::vector<ZrInboxMessage> &messages, const QStringList &keyFields)
{
    QHash<QString, size_t> known;
    known.reserve(int(messages.size()));
    m_recordOf.reserve(messages.size());
    for (const ZrInboxMessage &message : messages) {
        const QString key = keyOf(message.record, keyFields);
        const auto found = known.constFind(key);
        if (found != known.constEnd()) {
            join(message.record, &m_records[*found]);
            m_recordOf.push_back(*found);
        } else {
            known.insert(key, m_records.size());
            m_recordOf.push_back(m_records.size());
            m_records.push_back(message.record);
        }
    }
}

// Nearly always the later message has all that the earlier one told: then nothing is copied. Both are sorted
// by field, so they are walked side by side.
void ZrOrderBatch::join(const QVariantMap &later, QVariantMap *record)
{
    QVariantMap joined = later;
    auto told = later.constBegin();
    for (auto field = record->constBegin(); field != record->constEnd(); ++field) {
        while (told != later.constEnd() && !isSame(told.key(), field.key()) && told.key() < field.key())
            ++told;
        const bool isTold = told != later.constEnd() && isSame(told.key(), field.key()) && told->isValid();
        if (!isTold && field->isValid())
            joined.insert(field.key(), *field);
    }
    *record = joined;
}
