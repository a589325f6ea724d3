#pragma once

#include "zrwidget_global.h"

#include <QtCore/QHash>
#include <QtCore/QVector>
#include <QtGui/QFontMetrics>

/// The width of the widest of many texts.
///
/// To measure a text exactly takes some microseconds, which for 100,000 of them is longer than anybody waits
/// for a popup. So the widths of single characters, each measured once, tell which texts may be the widest,
/// and only those are measured.
///
/// Shape:   exact for as many as MeasuredMost texts. Among more, the width of the widest of the MeasuredMost
///          that seem widest; what joining characters take up more or less decides between neighbours then.
/// Units:   logical px. A text counts with its first CharactersMost characters, which are wider than screens.
/// Threads: GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrWidestText
{
public:
    static constexpr int MeasuredMost = 64;
    static constexpr int CharactersMost = 4000;

    explicit ZrWidestText(const QFontMetrics &metrics);

    /// 0 for no texts.
    int widthPx(const QVector<QString> &texts);

private:
    int measured(const QString &text) const;
    int estimated(const QString &text);
    int characterPx(ushort unit);

    const QFontMetrics m_metrics;
    QVector<int> m_frequent;     // width of the characters below, -1: not measured yet
    QHash<ushort, int> m_others; // of all others
};
