#include "ZrDateEdit.h"

#include "ZrDateEdit_p.h"

#include <QtCore/QDateTime>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QLineEdit>

namespace {
// The last digit of a date touches the buttons without it.
constexpr int ExtraWidthPx = 3;
} // namespace

ZrDateEdit::ZrDateEdit(QWidget *parent)
    : QDateEdit(parent)
    , d(new ZrDateEditPrivate(this))
{
}

ZrDateEdit::~ZrDateEdit() = default;

QDateTime ZrDateEdit::dateTime() const
{
    return d->isNullInForce() ? QDateTime() : QDateEdit::dateTime();
}

QDate ZrDateEdit::date() const
{
    return d->isNullInForce() ? QDate() : QDateEdit::date();
}

QTime ZrDateEdit::time() const
{
    return d->isNullInForce() ? QTime() : QDateEdit::time();
}

void ZrDateEdit::setDateTime(QDateTime dateTime)
{
    if (d->nullable && !dateTime.isValid()) {
        d->setNull(true);
        return;
    }
    d->isNull = false;
    QDateEdit::setDateTime(dateTime);
}

void ZrDateEdit::setDate(QDate date)
{
    if (d->nullable && !date.isValid()) {
        d->setNull(true);
        return;
    }
    d->isNull = false;
    QDateEdit::setDate(date);
}

void ZrDateEdit::setTime(QTime time)
{
    if (d->nullable && !time.isValid()) {
        d->setNull(true);
        return;
    }
    d->isNull = false;
    QDateEdit::setTime(time);
}

bool ZrDateEdit::isNullable() const
{
    return d->nullable;
}

void ZrDateEdit::setNullable(bool nullable)
{
    d->nullable = nullable;
    update();
}

QSize ZrDateEdit::sizeHint() const
{
    return QDateEdit::sizeHint() + QSize(ExtraWidthPx, 0);
}

// Past the date editor's own, which is no smaller than its size hint: a form may squeeze the field.
QSize ZrDateEdit::minimumSizeHint() const
{
    return QAbstractSpinBox::minimumSizeHint() + QSize(ExtraWidthPx, 0);
}

void ZrDateEdit::mousePressEvent(QMouseEvent *event)
{
    const bool wasNull = d->isNull;
    QDateEdit::mousePressEvent(event);
    // Without a popup calendarWidget() is null; asked for only here, since it makes the calendar.
    if (!d->nullable || !wasNull || !calendarPopup())
        return;
    const QCalendarWidget *const calendar = calendarWidget();
    if (calendar && calendar->isVisible())
        setDateTime(QDateTime::currentDateTime());
}

void ZrDateEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isDigit = event->key() >= Qt::Key_0 && event->key() <= Qt::Key_9;
    // First today, then the digit: there has to be a date for the digit to change.
    if (d->isNullInForce() && isDigit && !isReadOnly())
        setDateTime(QDateTime::currentDateTime());
    // The date editor would look for the next of its sections; an empty field has none.
    if (event->key() == Qt::Key_Tab && d->isNullInForce()) {
        QAbstractSpinBox::keyPressEvent(event);
        return;
    }
    if (emptiesField(*event)) {
        setDateTime(QDateTime());
        event->accept();
        return;
    }
    QDateEdit::keyPressEvent(event);
}

bool ZrDateEdit::emptiesField(const QKeyEvent &event) const
{
    if (event.key() != Qt::Key_Backspace || !d->nullable || isReadOnly())
        return false;
    const QLineEdit *const edit = d->field();
    return edit && edit->selectedText() == edit->text();
}

// Kept empty before each paint and after each show: the base writes the text of its date on many occasions,
// such as a new range or format.
void ZrDateEdit::paintEvent(QPaintEvent *event)
{
    d->setNull(d->isNull);
    QDateEdit::paintEvent(event);
}

void ZrDateEdit::resizeEvent(QResizeEvent *event)
{
    QDateEdit::resizeEvent(event);
}

void ZrDateEdit::showEvent(QShowEvent *event)
{
    QDateEdit::showEvent(event);
    d->setNull(d->isNull);
}

bool ZrDateEdit::focusNextPrevChild(bool next)
{
    // The date editor's version goes through the sections of a date first.
    return d->isNullInForce() ? QWidget::focusNextPrevChild(next) : QDateEdit::focusNextPrevChild(next);
}

QValidator::State ZrDateEdit::validate(QString &input, int &pos) const
{
    return d->isNullInForce() ? QValidator::Acceptable : QDateEdit::validate(input, pos);
}
