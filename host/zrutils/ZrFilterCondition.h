#pragma once

#include "zrutils/ZrNumber.h"

#include <QtCore/QDateTime>

/// How a column's values compare; from the QVariant type that the column was learned with.
enum class ZrValueKind : quint8 { Number, Text, Date, Time, DateTime, Own /* of the value at hand */ };

/// A moment, day or time of day as told by a clock on the wall, in ms.
struct ZrClockTime
{
    qint64 at = 0;
    qint64 width = 1; // how long the text that gave it lasts: "10:05" is the whole minute
    bool isValid = false;

    static ZrClockTime fromVariant(const QVariant &value, ZrValueKind kind);
    static ZrClockTime fromText(const QString &text, ZrValueKind kind);
};

/// One filter condition, read once.
///
/// A bound given to the minute or to the day stands for all of it: filter choices print their bounds so, and
/// the last row of a choice must not fall out because of its seconds.
///
/// Threads: any; a plain value.
/// Errors:  a condition that can't be read as the column's kind, or without a known operator, holds for no
/// value;
///          a value that can't be read so meets no condition.
class ZrFilterCondition
{
public:
    ZrFilterCondition(const QVariantMap &condition, ZrValueKind kind);

    /// Whether the value meets the condition.
    bool holds(const QVariant &value) const;
    /// Whether this one or the next has to hold, rather than both.
    bool joinsByOr() const { return m_joinsByOr; }
    /// For a set of texts: whether the condition asks for one certain text, and which.
    bool isEqualText() const { return m_kind == ZrValueKind::Text && m_operator == Equal; }
    const QString &text() const { return m_text; }

    static ZrValueKind kindOfType(int type);

private:
    enum Operator : quint8 { Unknown, Equal, GreaterOrEqual, LessOrEqual };

    static Operator operatorOf(const QString &word);
    bool holdsOrder(int order) const;
    bool holdsNumber(const QVariant &value) const;
    bool holdsTime(const QVariant &value, ZrValueKind kind) const;

    Operator m_operator;
    bool m_joinsByOr;
    ZrValueKind m_kind;
    QString m_text;
    ZrNumber m_number;
    ZrClockTime m_times[3]; // as Date, Time, DateTime
};
