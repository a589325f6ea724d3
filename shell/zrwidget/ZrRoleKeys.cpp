#include "ZrRoleKeys.h"

#include <QtCore/QVector>

const QString ITEM_DISPLAYROLE = QString::number(Qt::DisplayRole);
const QString ITEM_TOOLTIPROLE = QString::number(Qt::ToolTipRole);
const QString ITEM_BACKGROUNDROLE = QString::number(Qt::BackgroundRole);
const QString ITEM_FOREGROUNDROLE = QString::number(Qt::ForegroundRole);
const QString ITEM_USERROLE = QString::number(ZrRawRole);
const QString ITEM_CUSTOMROLE = QString::number(ZrSecondRawRole);
const QString ITEM_EXPORTVIEWROLE = QString::number(ZrExportRole);
const QString ITEM_CHECKENABLEDROLE = QString::number(ZrCheckEnabledRole);
const QString ITEM_RESERVEDROLE = QString::number(ZrReservedRole);

const QString HEAD_DISPLAYROLE = QStringLiteral("Head_DisplayRole");
const QString HEAD_USERROLE = QStringLiteral("Head_UserRole");
const QString HEAD_SHOWROLE = QStringLiteral("Head_ShowRole");
const QString HEAD_COLUMNINDEX = QStringLiteral("Head_ColumnIndex");
const QString HEAD_GROUPID = QStringLiteral("Head_GroupId");
const QString HEAD_GROUPNAME = QStringLiteral("Head_GroupName");

namespace {

// Twice the number of the first caller-defined role: every role that grids and plugins use lies below.
constexpr int c_tableSize = 512;

QVector<QString> makeRoleTexts()
{
    QVector<QString> texts(c_tableSize);
    for (int role = 0; role < c_tableSize; ++role)
        texts[role] = QString::number(role);
    return texts;
}

} // namespace

QString zrRoleKey(int role)
{
    static const QVector<QString> texts = makeRoleTexts();
    if (role >= 0 && role < c_tableSize)
        return texts.at(role);
    return QString::number(role);
}
