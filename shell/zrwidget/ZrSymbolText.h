#pragma once

#include "zrwidget_global.h"

#include <QtCore/QStringList>

/// Takes the texts of securities apart, as the host lists them and as a search box shows them.
///
/// Shape:     a candidate is a symbol and further fields, joined by Constants::SymbolSearch_Split; with more
///            than two fields the last one is a further search key. A symbol is code + "." + market.
/// Threads:   any.
/// Errors:    none: a text without a separator or a full stop is taken as a whole.
class ZRWIDGET_PRIVATE_EXPORT ZrSymbolText
{
public:
    /// A host's list, parted into what is shown and what is searched beside it.
    struct Parted
    {
        QStringList securities; // the candidates without their search keys, in the order of the list
        QStringList searchKeys; // key + "&" + candidate, where there is a key
    };
    static Parted parted(const QStringList &candidates);
    /// The candidate of an entry of Parted::searchKeys: all that stands behind the first "&".
    static QString candidateOf(const QString &searchKey);

    /// The first field of a candidate.
    static QString symbolOf(const QString &candidate);
    /// The symbol without its market: up to the last full stop.
    static QString shortCode(const QString &symbol);

private:
    ZrSymbolText() = delete;
};
