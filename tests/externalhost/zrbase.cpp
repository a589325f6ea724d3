// A bus that leads nowhere: it takes over what it is given and drops it.
#include "zrbase/IMessageInterface.h"
#include "zrevent/CEventMessageCommon.h"
#include "zrmsg/CMessageCommon.h"

IMessageInterface::IMessageInterface(QObject *parent)
    : QObject(parent)
    , d(nullptr)
{
}
IMessageInterface::~IMessageInterface()
{
    Q_UNUSED(d)
}
bool IMessageInterface::event(QEvent *event)
{
    return QObject::event(event);
}

void IMessageInterface::ProcMsg(QString, QVariant, QVariant) {}
void IMessageInterface::ProcEventMsg(QString, QVariant, QVariant) {}
void IMessageInterface::ProcQuotationMsg(QString, QVariant, QVariant) {}
void IMessageInterface::Reg(QString, IMessageInterface *, IMessageInterface::ThreadType) {}
void IMessageInterface::UnReg(QString) {}
void IMessageInterface::Put(QString, CMessageCommon *msg)
{
    delete msg;
}
void IMessageInterface::PutEvent(QString, CEventMessageCommon *evt)
{
    delete evt;
}
void IMessageInterface::Sub(QString, QVariant, int) {}
void IMessageInterface::SubEvent(QString, QVariant, int) {}
void IMessageInterface::setRelation(const QString &, const QString &, int, RelationColor_t, int) {}
