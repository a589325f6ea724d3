#pragma once

#include "ZrFoldedTexts.h"
#include "zrwidget_global.h"

#include <QtCore/QStringList>

#include <set>

/// Narrows a list of securities to those that a typed text means.
///
/// Shape:     a text is looked for in the securities and in their search keys, without regard to case. What
///            is found comes sorted and without duplicates. Of a result that is cut, the securities that
///            stand first in the list stay, and search keys come last.
/// Units:     counts of rows.
/// Ownership: shares the lists.
/// Threads:   any, as long as nobody calls setLists() meanwhile.
/// Errors:    with an unknown mode nothing is found.
class ZRWIDGET_PRIVATE_EXPORT ZrSymbolMatcher
{
public:
    // The search box takes modes as plain numbers.
    static constexpr int StartsWith = 1;
    static constexpr int Contains = 2;

    /// As ZrSymbolText::parted() makes them.
    void setLists(const QStringList &securities, const QStringList &searchKeys);
    /// At most `most` rows, one more by a search key; below 1 means all.
    QStringList matches(const QString &text, int mode, int most) const;

private:
    using Rows = std::set<QString>;
    void addByKey(Rows *rows, const QString &text, ZrFoldedTexts::Place place, int most) const;

    ZrFoldedTexts m_securities;
    ZrFoldedTexts m_searchKeys;
};
