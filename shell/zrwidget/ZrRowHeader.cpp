#include "ZrRowHeader.h"

#include <QtCore/QAbstractItemModel>

ZrRowHeader::ZrRowHeader(QWidget *parent)
    : QHeaderView(Qt::Vertical, parent)
{
    setSectionsClickable(true);
    setHighlightSections(true);
    connect(this, &QHeaderView::sectionResized, this, &ZrRowHeader::noteSize);
}

void ZrRowHeader::setModel(QAbstractItemModel *newModel)
{
    if (newModel == model())
        return;
    if (model())
        model()->disconnect(this);
    QHeaderView::setModel(newModel);
    if (!newModel)
        return;
    // The base head's slots are private or protected; they are called below where they are needed. The others
    // are what a view does for its editors and its current cell, of which a head has none.
    disconnect(newModel, &QAbstractItemModel::rowsAboutToBeRemoved, this, nullptr);
    disconnect(newModel, &QAbstractItemModel::rowsRemoved, this, nullptr);
    disconnect(newModel, &QAbstractItemModel::rowsInserted, this, nullptr);
    connect(newModel, &QAbstractItemModel::rowsRemoved, this, &ZrRowHeader::followRemoval);
    connect(newModel, &QAbstractItemModel::rowsInserted, this, &ZrRowHeader::followInsertion);
}

void ZrRowHeader::followRemoval(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid())
        return;
    if (isUniform()) {
        owe();
        return;
    }
    QMetaObject::invokeMethod(this, "_q_sectionsRemoved", Qt::DirectConnection, Q_ARG(QModelIndex, parent),
                              Q_ARG(int, first), Q_ARG(int, last));
}

void ZrRowHeader::followInsertion(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid())
        return;
    if (!isUniform()) {
        sectionsInserted(parent, first, last);
        return;
    }
    // New rows are wanted at once: a view may scroll to them in its next line.
    if (model()->rowCount() > count())
        initializeSections();
    else
        owe();
}

// The row's height counts as its own even if it comes back to the default: to find out would cost all rows.
void ZrRowHeader::noteSize(int section, int oldSizePx, int newSizePx)
{
    Q_UNUSED(section)
    Q_UNUSED(oldSizePx)
    if (newSizePx == defaultSectionSize() || m_hasOwnSizes)
        return;
    settle();
    m_hasOwnSizes = true;
}

bool ZrRowHeader::isUniform() const
{
    return !m_hasOwnSizes && !sectionsMoved() && !sectionsHidden();
}

bool ZrRowHeader::isInSight(int row, int heightPx) const
{
    if (!isUniform())
        return true;
    const qint64 topPx = qint64(row) * defaultSectionSize() - offset();
    return topPx < heightPx && topPx + defaultSectionSize() > 0;
}

void ZrRowHeader::owe()
{
    // The rows under the sections are others now: the table lays out and paints anew, once for all of them.
    if (!m_isTold)
        emit sectionCountChanged(count(), count());
    m_isTold = m_tellsOnce;
    if (m_isOwing)
        return;
    m_isOwing = true;
    QMetaObject::invokeMethod(this, &ZrRowHeader::settle, Qt::QueuedConnection);
}

void ZrRowHeader::settle()
{
    if (!m_isOwing)
        return;
    m_isOwing = false;
    if (model() && model()->rowCount() != count())
        initializeSections();
}
