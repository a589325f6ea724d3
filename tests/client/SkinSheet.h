#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QColor>

/// One style sheet of a skin, as far as its colours go.
class SkinSheet
{
public:
    using Values = QMap<QString, QString>; // property to value

    explicit SkinSheet(const QString &text);

    QStringList selectors() const { return m_rules.keys(); }
    /// What holds for a selector: its own values over those of the selector without its states, as "QLabel"
    /// for "QLabel:disabled".
    Values values(const QString &selector) const;

    /// All colours in a value: one, or the stops of a gradient.
    static QList<QColor> colours(const QString &value);
    /// How far two colours stand apart, from 1 to 21. A translucent text stands on `back`.
    static double contrast(QColor text, const QColor &back);
    static QColor over(const QColor &upper, const QColor &lower);

private:
    QMap<QString, Values> m_rules;
};
