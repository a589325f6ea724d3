#include "ZrViewBase_p.h"

ZrViewBasePrivate::ZrViewBasePrivate(QObject *view)
    : QObject(view)
{
}
