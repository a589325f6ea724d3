#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QColor>

/// Text and background of each rule of a style sheet, with what the first rule says for what a rule leaves
/// out. `ground` stands behind transparent backgrounds.
struct SheetColours
{
    QString selector;
    QColor text;
    QColor background;

    static QList<SheetColours> read(const QString &sheet, const QColor &ground);
    /// 1 to 21, as the guidelines for accessible texts define it.
    static double contrast(const QColor &one, const QColor &other);
};
