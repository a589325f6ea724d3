#pragma once

#include "zrwidget_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <optional>

/// The user's named styles of hidden columns for the views of a plugin, and which style is in force.
///
/// Shape:   views by caption. As text, the styles are {"Orders":{"Short":["3","7"]}} and those in force
///          {"Orders":"Short"}.
/// Units:   logical columns.
/// Threads: one thread at a time; the plugin's is the GUI thread.
/// Errors:  a text that is no JSON, or is longer than maxCharacters, changes nothing. What goes beyond the
///          other bounds is left out. Either gives one log line for the text.
class ZRWIDGET_PRIVATE_EXPORT ZrHideStyles
{
public:
    // A settings file is edited by hand, copied between desks, and damaged: no text in it may cost more than
    // the widest grid.
    static constexpr int maxCharacters = 1 << 20;
    static constexpr int maxViews = 256;
    static constexpr int maxStyles = 256;   // of a view
    static constexpr int maxColumns = 4096; // of a style
    static constexpr int maxNameCharacters = 256;
    static constexpr int leastColumn = -2; // the pseudo-columns have -1 and -2
    static constexpr int mostColumn = 65535;

    // Shared: the family may read and write.
    QMap<QString, QMap<QString, QList<int>>> custom; // caption -> style name -> hidden columns
    QMap<QString, QString> current;                  // caption -> name of the style in force

    /// Adds what the text holds to the styles that are there. An element that is no number counts as 0.
    void addCustom(const QString &json);
    void readCurrent(const QString &json);
    QString customText() const;
    QString currentText() const;
    /// The columns that the style in force hides, none when that style is gone; nothing without a style.
    std::optional<QList<int>> currentColumns(const QString &caption) const;
};
