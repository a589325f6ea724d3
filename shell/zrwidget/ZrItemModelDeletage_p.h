#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtGui/QColor>

#include <memory>

class ZrCellText;
class ZrItemModelDeletage;
class ZrItemStyle;

/// State of a delegate.
///
/// Shape:     plain fields; a change takes effect at the next paint.
/// Ownership: child of its delegate.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrItemModelDeletagePrivate : public QObject
{
    Q_OBJECT
public:
    explicit ZrItemModelDeletagePrivate(ZrItemModelDeletage *facade);
    ~ZrItemModelDeletagePrivate() override;

    // Shared: the family may read and write these.
    ZrItemModelDeletage *const delegate; // not owned: our QObject parent
    QList<int> list;                     // reserved
    QColor gridColor{40, 40, 40, 255};
    bool checkBoxShown = false;
    bool itemGridShown = true;
    int gridLineStyle = 1; // bit 1 horizontal line, bit 2 vertical line
    QUrl checkPath;        // paths below the skin's folder
    QUrl uncheckPath;
    QUrl tristatePath;
    int columnXMargin = 0;    // px
    bool summaryMode = false; // the one-row table under a grid
    bool checkedRowHighlight = false;
    QColor checkedColor; // invalid: no highlight
    const std::shared_ptr<ZrCellText> cellText;
    ZrItemStyle *const itemStyle; // our QObject child
};
