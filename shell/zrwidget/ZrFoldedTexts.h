#pragma once

#include "zrwidget_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>

/// A list of texts, prepared to be searched at each key press without regard to case.
///
/// Shape:     finds exactly the texts that QString::startsWith and QString::contains find with
///            Qt::CaseInsensitive, in the order of the list. All texts stand in one run of bytes, a byte for
///            each character, so that a search is one pass over memory that lies together; what it finds is
///            then asked of the text itself:
///
///                0 6 0 0 5 1 9 . S H ... 0 0 0 0 0 0 1 . S Z ...
///                ^ a text begins         ^ the next one
///
/// Units:     indexes from 0.
/// Ownership: shares the list.
/// Threads:   any, as long as nobody calls assign() meanwhile.
/// Errors:    none. Not supported: lists of more than 2^31 characters.
class ZRWIDGET_PRIVATE_EXPORT ZrFoldedTexts
{
public:
    enum class Place { Start, Anywhere };
    /// Gets the index of a text; false ends the search.
    using Visitor = std::function<bool(int index)>;

    void assign(const QStringList &texts);
    const QStringList &texts() const { return m_texts; }
    void forEach(const QString &part, Place place, const Visitor &visit) const;
    /// Whether the text of an index holds the part: what forEach() goes by.
    bool holds(int index, const QString &part, Place place) const;

private:
    QStringList m_texts;
    QByteArray m_bytes;    // see Shape
    QVector<int> m_starts; // where each text's 0 stands
};
