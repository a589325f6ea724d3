#include "ZrTableSections.h"

#include "ZrRoleKeys.h"
#include "ZrTableModel_p.h"

#include <QtCore/QDebug>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

namespace {

constexpr int c_checkColumnPx = 30;
constexpr int c_serialColumnPx = 60;

QMap<QString, QVariant> pseudoHead(int column, const QString &text)
{
    return {{HEAD_COLUMNINDEX, column}, {HEAD_DISPLAYROLE, text}};
}

} // namespace

ZrTableSections::ZrTableSections(ZrTableModelPrivate &fields)
    : m_fields(fields)
{
}

void ZrTableSections::insertCheckHead()
{
    m_fields.headList.prepend(pseudoHead(ZrCheckBoxColumn, QString()));
}

void ZrTableSections::insertSerialHead()
{
    const auto head =
        pseudoHead(ZrSerialNumberColumn, m_fields.modelTr(QT_TRANSLATE_NOOP("ZrTableModel", "Seq.")));
    m_fields.headList.insert(qMin(m_fields.checkBoxShown ? 1 : 0, m_fields.headList.size()), head);
}

void ZrTableSections::setHeads(const HeadList &heads)
{
    m_fields.headList = heads;
    if (m_fields.checkBoxShown)
        insertCheckHead();
    if (m_fields.hasSerialColumn())
        insertSerialHead();
    m_fields.model->update();
    applyWidths();
}

void ZrTableSections::showCheckColumn(bool shown)
{
    if (shown)
        insertCheckHead();
    else if (!m_fields.headList.isEmpty())
        m_fields.headList.removeFirst();
    m_fields.checkBoxShown = shown;
    m_fields.model->update();
}

// Never removes a head, and a change from ascending to descending adds a second one: callers choose the order
// before they set the heads.
void ZrTableSections::setSerialOrder(int order)
{
    m_fields.serialOrder = ZrViewModel::SerialNumColumnOrder(order);
    if (m_fields.hasSerialColumn())
        insertSerialHead();
    m_fields.settleViews();
}

void ZrTableSections::setWidth(int column, int widthPx)
{
    if (widthPx < 0) {
        qWarning() << "width < 0";
        return;
    }
    if (column > m_fields.headList.size()) {
        qWarning() << "iColumn > columnCount" << column << m_fields.headList.size();
        return;
    }
    m_fields.columnWidths.insert(column, widthPx);
    m_fields.columnSectionsApplied = false;
    applyWidths();
}

// The signal is sent by hand as well, also where the width stays the same: the head of the summary line
// follows it.
void ZrTableSections::resize(QHeaderView *header, int section, int widthPx)
{
    header->resizeSection(section, widthPx);
    emit header->sectionResized(section, 0, widthPx);
}

void ZrTableSections::applyWidths()
{
    const QTableView *parent = m_fields.parentView();
    if (!parent) {
        qWarning() << "Q_NULLPTR == parent";
        return;
    }
    QHeaderView *header = parent->horizontalHeader();
    if (!header) {
        qWarning() << "Q_NULLPTR == parent->horizontalHeader";
        return;
    }
    if (m_fields.checkBoxShown)
        resize(header, 0, c_checkColumnPx);
    if (m_fields.hasSerialColumn())
        resize(header, m_fields.checkBoxShown ? 1 : 0, c_serialColumnPx);
    if (m_fields.columnSectionsApplied)
        return;
    m_fields.columnSectionsApplied = true;
    for (auto it = m_fields.columnWidths.constBegin(); it != m_fields.columnWidths.constEnd(); ++it)
        resize(header, it.key() + m_fields.columnOffset(), it.value());
}
