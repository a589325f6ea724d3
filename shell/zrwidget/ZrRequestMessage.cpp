#include "ZrRequestMessage.h"

#include "ZrPresenterClass.h"

#include "zrbusinessdata/CBusinessDataBase.h"
#include "zrdefine/VexlorFields.h"
#include "zrmsg/CMessageCommon.h"
#include "zrmsg/CPackMessageCommon.h"
#include "zrmsg/CUnPackMessageCommon.h"

namespace {
/// The one-entry map by which the host finds a record's account; empty if the record names none.
ZrRequestMessage::Record accountOf(const ZrRequestMessage::Record &record)
{
    using namespace Vexlor_Fields::UserAccount;
    for (const QString &field : {tradingAccount, assetAccount}) {
        const QString account = record.value(field).toString();
        if (!account.isEmpty())
            return {{field, account}};
    }
    return {};
}
} // namespace

ZrRequestMessage::ZrRequestMessage(const CMessageCommon &msg)
{
    CUnPackMessageCommon reader;
    reader.SetUnPackMsg(msg.GetMsg(), false);
    clientMsgID = reader.GetValue(Vexlor_Fields::System::clientMsgID, QString()).toString();
    msgType = reader.GetValue(Vexlor_Fields::System::msgType, QString()).toString();
    records = reader.GetAllValue();
}

void ZrRequestMessage::setRequestType(const QString &requestType)
{
    records.first().insert(Vexlor_Fields::CustomField::requestType, requestType);
}

void ZrRequestMessage::finish(CMessageCommon *msg)
{
    addSysNodeID(records);
    QVariantList body;
    body.reserve(records.size());
    for (const Record &record : qAsConst(records))
        body.append(QVariant(record));
    msg->SetMsg(body);
}

void ZrRequestMessage::addSysNodeID(QList<Record> &list)
{
    const QString nodeField = Vexlor_Fields::Security::systemNodeId;
    if (list.isEmpty() || !list.constFirst().value(nodeField).toString().isEmpty())
        return;
    for (const Record &record : qAsConst(list)) {
        const Record account = accountOf(record);
        if (account.isEmpty())
            continue;
        const QString node = CBusinessDataBase::GetInstance()->GetSysNodeIDByAccount(account);
        list.first().insert(nodeField, node);
        return;
    }
}

QVariant ZrRequestMessage::timeoutBody(const QString &clientMsgID)
{
    CPackMessageCommon writer;
    writer.AddVaule(Vexlor_Fields::System::clientMsgID, clientMsgID);
    writer.AddVaule(Vexlor_Fields::System::textDescription, ZrPresenterClass::tr("request timeout"));
    return writer.GetPackedMsg(false);
}
