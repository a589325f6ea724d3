#include "ZrDateEdit_p.h"

#include "ZrDateEdit.h"

#include <QtWidgets/QLineEdit>

ZrDateEditPrivate::ZrDateEditPrivate(ZrDateEdit *owner)
    : QObject(owner)
    , q(owner)
{
}

void ZrDateEditPrivate::setNull(bool null)
{
    isNull = null;
    if (!null)
        return;
    QLineEdit *const edit = field();
    // Twice when needed: the cursor that goes back to the start looks to the base like the end of an entry in
    // one of the sections, and it writes its date once more. The test spares a signal at each paint.
    for (int i = 0; i < 2 && edit && !edit->text().isEmpty(); ++i)
        edit->clear();
}

QLineEdit *ZrDateEditPrivate::field() const
{
    // By name: the base's own accessor is for classes that replace the field.
    return q->findChild<QLineEdit *>(QStringLiteral("qt_spinbox_lineedit"));
}
