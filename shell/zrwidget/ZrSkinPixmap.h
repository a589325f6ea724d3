#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>
#include <QtGui/QPixmap>

class QPainter;
class QUrl;

/// Pictures of the current skin, read once and kept, for painters that need the same few in every cell.
///
/// Shape:     a picture is named by a path below the skin's folder ("ZRSkin:<skin id>/<path>"), as the style
///            sheets give it. Drawings (SVG) are rendered at the wanted size, others scaled to it.
/// Units:     sizes in logical px; the pixmap holds size * device pixel ratio and says so.
/// Ownership: values; the store behind them is bounded, and emptied at a change of skin and at the
///            application's end.
/// Threads:   GUI thread only.
/// Errors:    a missing or unreadable file, or a path that would leave the skin's folder, is a null pixmap,
///            which paints nothing. That answer is kept too: a missing file costs one look at the disk.
class ZRWIDGET_PRIVATE_EXPORT ZrSkinPixmap
{
public:
    /// The picture under `path` in the current skin.
    static QPixmap get(const QString &path, const QSize &size, qreal devicePixelRatio);
    /// Draws the picture that `url` names into `rect`, sharp on the painter's device.
    static void draw(QPainter *painter, const QRect &rect, const QUrl &url);
    static void draw(QPainter *painter, const QRect &rect, const QString &path);
    /// The file behind a picture; empty when skin id or path would lead out of the skin's folder.
    static QString fileName(const QString &skinId, const QString &path);

private:
    ZrSkinPixmap() = delete;
};
