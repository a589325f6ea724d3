#pragma once

#include "zrwidget_global.h"

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVector>

class CheckBoxInMultiBox;

/// The texts of a list's rows beside each other, so that joining those of the ticked ones reads memory in its
/// order and doesn't visit thousands of items.
///
/// Shape:     one text and one check box for each row, in the order of rows. Whether a row is ticked is asked
///            of its check box each time, since anybody may tick that.
/// Ownership: check boxes are borrowed and may end at any time.
/// Threads:   GUI thread only.
/// Errors:    a row without a check box is never ticked.
class ZRWIDGET_PRIVATE_EXPORT ZrTickedTexts
{
public:
    struct Joined
    {
        int count = 0; // of ticked rows; their texts may be empty
        QString text;
    };

    int rowCount() const { return m_boxes.size(); }
    void clear();
    void append(const QString &text, CheckBoxInMultiBox *box);
    Joined joined(QChar separator) const;

private:
    QString m_texts;     // of all rows, one after the other
    QVector<int> m_ends; // of each row's text in m_texts
    QVector<QPointer<CheckBoxInMultiBox>> m_boxes;
};
