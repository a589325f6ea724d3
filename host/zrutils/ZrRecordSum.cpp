#include "zrutils/ZrRecordSum.h"

#include "zrutils/ZrCellValue.h"
#include "zrutils/ZrNumber.h"

#include <algorithm>

ZrRecordSum::ZrRecordSum(const QList<int> &leftOut)
    : m_leftOut(leftOut)
{
}

void ZrRecordSum::add(const RecordData &record)
{
    m_next = 0;
    for (auto cell = record.lowerBound(0); cell != record.constEnd(); ++cell) {
        const QVariant *value = ZrCellValue::of(cell.value());
        if (!value || value->userType() == QMetaType::Bool)
            continue;
        const ZrNumber number = ZrNumber::fromVariant(*value);
        switch (number.kind()) {
        case ZrNumber::None:
            break;
        case ZrNumber::Signed:
            sumOf(cell.key()).addSigned(number.asSigned());
            break;
        case ZrNumber::Unsigned:
            sumOf(cell.key()).addUnsigned(number.asUnsigned());
            break;
        case ZrNumber::Real:
            sumOf(cell.key()).addReal(number.asReal());
            break;
        }
    }
}

ZrExactSum &ZrRecordSum::sumOf(int column)
{
    if (m_next >= m_columns.size() || m_columns[m_next].number != column) {
        const auto place = std::lower_bound(m_columns.begin(), m_columns.end(), column,
                                            [](const Column &a, int number) { return a.number < number; });
        m_next = static_cast<std::size_t>(place - m_columns.begin());
        if (place == m_columns.end() || place->number != column)
            m_columns.insert(place, Column{column, ZrExactSum()});
    }
    return m_columns[m_next++].sum;
}

RecordData ZrRecordSum::record() const
{
    RecordData result;
    for (const Column &column : m_columns) {
        if (!m_leftOut.contains(column.number))
            result[column.number].insert(QStringLiteral("0"), column.sum.total());
    }
    return result;
}
