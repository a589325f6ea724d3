// The member of ZrSearchBox that needs a dialog, which stands above the field.
#include "ZrMessageBox.h"
#include "ZrSearchBox.h"
#include "ZrSearchBox_p.h"
#include "ZrWindowPlace.h"

#include <QtCore/QPointer>

void ZrSearchBox::slotErrorCode()
{
    Q_D(ZrSearchBox);
    // The message takes the focus from the field, which may raise the same error again.
    if (!d->errorCodeMsgBoxOn || d->isErrorShown)
        return;
    constexpr int confirmOnly = 1;
    const QPointer<ZrSearchBox> self(this);
    auto *const box = new ZrMessageBox(tr("Tips"), tr("The security id is not supported!"), confirmOnly, this,
                                       ZrWindowPlace::OverMainWindow);
    box->setAttribute(Qt::WA_DeleteOnClose);
    d->isErrorShown = true;
    box->exec();
    if (self)
        d->isErrorShown = false;
}
