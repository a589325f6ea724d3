#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QDateEdit>

class ZrDateEditPrivate;

/// A date editor that can hold nothing.
///
/// Shape:     a QDateEdit; once setNullable(true) was called, an invalid date empties it. It then reads as
///            invalid until a date is set, typed or picked: the first digit, and the opening of the calendar,
///            set today. Backspace with all the text selected empties it again. Emptying is told by the
///            base's signals with a date that means nothing; date() is right by then. What the base writes
///            into an empty field, when it loses the focus for one, goes at the next paint.
/// Units:     dates and times are local.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    an invalid date in an editor that isn't nullable is left to the base, which ignores it.
/// Not supported: the null state through a pointer to the base or through the properties date, dateTime and
///            time, which are the base's; steps by wheel or arrow keys while it is empty.
class ZRWIDGET_EXPORT ZrDateEdit : public QDateEdit
{
    Q_OBJECT
public:
    explicit ZrDateEdit(QWidget *parent = nullptr);
    ~ZrDateEdit() override;

    // They hide the base's: an invalid value while the editor is empty.
    QDateTime dateTime() const;
    QDate date() const;
    QTime time() const;

    bool isNullable() const;
    void setNullable(bool nullable);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    // They hide the base's: an invalid value empties the editor if it is nullable.
    void setDateTime(QDateTime dateTime);
    void setDate(QDate date);
    void setTime(QTime time);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    QValidator::State validate(QString &input, int &pos) const override;

private:
    bool emptiesField(const QKeyEvent &event) const;

    ZrDateEditPrivate *const d; // owned as a child
};
