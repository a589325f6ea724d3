#pragma once

#include <QtCore/QMap>
#include <QtCore/QVariantMap>

/// What goes together in a strategy parameter: editors, value types, bounds, initial values.
///
/// Shape:   editors and types are the host's constants; the maps tell the words that a description uses.
/// Threads: any.
/// Errors:  a fault is a sentence; empty when there is none.
class ZrStrategyRules
{
public:
    static const QMap<QString, QString> &editors(); // word in the file -> constant
    static const QMap<QString, QString> &types();
    /// The word of the type that an editor has when none is told; empty when one must be told.
    static QString usualType(const QString &editor);
    static bool suits(const QString &editor, const QString &type);
    static bool isNumber(const QString &type);
    static bool offersChoices(const QString &editor);
    static bool canDepend(const QString &editor);
    static bool hasInitial(const QString &editor);

    /// Whether the bounds of a record leave no value.
    static bool isEmptyRange(const QVariantMap &record);
    /// A pattern must be one that can be compiled in little time and memory.
    static QString faultOfPattern(const QString &pattern);
    static QString faultOfInitial(const QVariantMap &record, const QVariant &value);

private:
    ZrStrategyRules() = delete;
};
