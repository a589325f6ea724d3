#pragma once

#include "zrutils/ZrRecordTypes.h"
#include "zrwidget_global.h"

class QHeaderView;
class ZrTableModelPrivate;

/// Heads of the grid: pseudo-columns and stored widths.
class ZRWIDGET_PRIVATE_EXPORT ZrTableSections
{
public:
    explicit ZrTableSections(ZrTableModelPrivate &fields);

    void setHeads(const HeadList &heads);
    void showCheckColumn(bool shown);
    void setSerialOrder(int order);
    void setWidth(int column, int widthPx);
    void applyWidths();

private:
    void insertCheckHead();
    void insertSerialHead();
    static void resize(QHeaderView *header, int section, int widthPx);

    ZrTableModelPrivate &m_fields;
};
