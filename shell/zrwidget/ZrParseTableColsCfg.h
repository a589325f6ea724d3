#pragma once

#include "ZrGridSetting.h"

class QDomElement;
class QFile;

/// Reads a column configuration file.
///
///     <GridSetting>
///       <FieldSetting Index="4" TitleName="Amount" FieldNumber="Amount" ColumnWidth="120" Type="double"
///                     Decimal="2" DisplayRole_Property="CommaSeparation" ColumnAlignment="Right"/>
///     </GridSetting>
///
/// Shape:   only direct children named FieldSetting count, and of them only the attributes. The result is
///          sorted by index.
/// Threads: any; no state.
/// Errors:  a file that can't be opened or parsed, has another root, or is far larger or deeper than any
///          grid (ZrColumnFileGuard) gives one warning and an empty grid. A bad attribute value isn't an
///          error: a non-number reads as 0, an unknown word as its default.
class ZRWIDGET_EXPORT ZrParseTableColsCfg
{
public:
    ZrParseTableColsCfg();

    static ZrGridSetting parseGridConfigure(const QString &fileName);

private:
    static void warnParseFailure(const QString &fileName, int line, int column, const QString &message);
    static ZrGridSetting parseGridSetting(const QDomElement &root);
    static void parseFieldSetting(const QDomElement &element, ZrGridSetting &grid);
    static int handleColAlignmentProperty(QString word);
};
