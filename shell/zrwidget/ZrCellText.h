#pragma once

#include "zrwidget_global.h"

#include <QtCore/QCache>
#include <QtCore/QObject>
#include <QtCore/QVector>
#include <QtGui/QFont>
#include <QtWidgets/QStyleOptionViewItem>

#include <memory>

class QPainter;
class QStyle;

/// Draws cells that show one short line of text, and keeps each line as it was laid out and shaped.
///
/// A style lays a cell's text out anew, and more than once, at each paint; that was most of a grid's repaint,
/// while a grid mostly paints texts that it painted before. The same calls in the same order draw the kept
/// line, so that no pixel differs.
///
/// Units:     px, logical.
/// Ownership: shared by all delegates, so that one bound holds for all grids of a program.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrCellText : public QObject
{
    Q_OBJECT
public:
    ZrCellText();
    ~ZrCellText() override;

    static constexpr int mostLines = 4096;
    static constexpr int longestText = 64;

    /// That of the program; lives as long as somebody holds it.
    static std::shared_ptr<ZrCellText> shared();

    /// Draws the cell as CE_ItemViewItem of `style`, a style that ZrItemStyle found, would. False, with
    /// nothing drawn, when the cell shows more than one short line in its widget's font.
    bool draw(QPainter *painter, const QStyleOptionViewItem &option, QStyle *style);

    void clear();
    int lineCount() const { return m_lines.size(); }

private:
    struct Key
    {
        QString text;
        QSize size;
        int font = 0; // place in m_fonts
        uint look = 0;

        friend bool operator==(const Key &a, const Key &b)
        {
            return a.look == b.look && a.font == b.font && a.size == b.size && a.text == b.text;
        }
        friend uint qHash(const Key &key, uint seed)
        {
            return qHash(key.text, seed) ^
                   (uint(key.size.width()) * 31U + uint(key.size.height())) * 0x9e3779b1U ^ key.look ^
                   (uint(key.font) << 24);
        }
    };
    class Line;

    Line *line(const QStyleOptionViewItem &option, const QSize &size);
    int fontPlace(const QFont &font);

    QVector<QFont> m_fonts; // held, so that none can change its looks under the same address
    int m_lastFont = 0;
    QCache<Key, Line> m_lines;
};
