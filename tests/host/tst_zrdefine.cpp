#include "ZrTestMain.h"

#include "zrdefine/Constants.h"
#include "zrdefine/PluginPropety.h"
#include "zrdefine/VexlorFields.h"
#include "zrdefine/VexlorMsgType.h"
#include "zrdefine/VexlorValues.h"

/// The names that both sides of the bus share: two that are equal would be one field or one key for two
/// things.
class tst_ZrDefine : public QObject
{
    Q_OBJECT
private slots:
    void namesOfAGroupAreDistinctAndNotEmpty_data();
    void namesOfAGroupAreDistinctAndNotEmpty();
    void noNameIsLeftOut_data();
    void noNameIsLeftOut();
};

namespace {
struct Group
{
    const char *header;
    const char *name;
    QStringList values;
};

QList<Group> constantGroups()
{
    using namespace Constants;
    return {
        {"Constants.h",
         "title buttons",
         {PLUGIN_SYSTEMBUTTON_CLOSE, PLUGIN_SYSTEMBUTTON_COPY, PLUGIN_SYSTEMBUTTON_DOCK,
          PLUGIN_SYSTEMBUTTON_REFRESH, PLUGIN_SYSTEMBUTTON_SETTING, PLUGIN_SYSTEMBUTTON_VIEWEXPORT}},
        {"Constants.h",
         "setting groups",
         {PLUGIN_VIEWCUSTOMHIDESTYLE, PLUGIN_VIEWCURRENTCUSTOMHIDESTYLE, VIEWFIELDORDERLIST}},
        {"Constants.h", "single names", {SKIN_SYSTEM, LinkageType, USER_ACCOUNT, SymbolSearch_Split}},
        {"Constants.h",
         "keys of a strategy parameter",
         {STRATEGYPARAM_KEY,
          STRATEGYPARAM_PARAMID,
          STRATEGYPARAM_PARAMNAME,
          STRATEGYPARAM_PARAMVALUE,
          STRATEGYPARAM_PARAMDESC,
          STRATEGYPARAM_VALUETYPE,
          STRATEGYPARAM_WIDGETTYPE,
          STRATEGYPARAM_WIDGETWIDTH,
          STRATEGYPARAM_NAMEWIDTH,
          STRATEGYPARAM_ROW,
          STRATEGYPARAM_DISPLAYROLE,
          STRATEGYPARAM_USERROLE,
          STRATEGYPARAM_OPTIONS,
          STRATEGYPARAM_INIT,
          STRATEGYPARAM_MINVALUE,
          STRATEGYPARAM_MAXVALUE,
          STRATEGYPARAM_EXCLUSIVEMINVALUE,
          STRATEGYPARAM_EXCLUSIVEMAXVALUE,
          STRATEGYPARAM_PRECISION,
          STRATEGYPARAM_STEP,
          STRATEGYPARAM_VALUELENGTH,
          STRATEGYPARAM_REGEXPVALIDATOR,
          STRATEGYPARAM_CANBEEMPTY,
          STRATEGYPARAM_EDITABLEAFTERRUNNING,
          STRATEGYPARAM_EXTRAACTION,
          STRATEGYPARAM_LINKPARAMID,
          STRATEGYPARAM_LINKTYPE,
          STRATEGYPARAM_HBOXLAYOUT,
          STRATEGYPARAM_VBOXLAYOUT,
          STRATEGYPARAM_VIEWDISPLAY,
          STRATEGYPARAM_INITIALBASICPARAMDESCVISIABLE,
          STRATEGYPARAM_INITIALBASICPARAMUI,
          STRATEGYPARAM_INITIALBASICPARAMVISIABLE,
          STRATEGYPARAM_INITIALBASICPARAMWIDTH,
          STRATEGYPARAM_INITIALPARAMLAYOUT,
          STRATEGYPARAM_INITIALPARAMVIEWPARAMLIST,
          STRATEGYPARAM_INITIALPARAMVISIABLE}},
        {"Constants.h",
         "value types",
         {VALUETYPE_BOOL, VALUETYPE_DATE, VALUETYPE_DOUBLE, VALUETYPE_INT, VALUETYPE_INT64, VALUETYPE_STRING,
          VALUETYPE_TIME}},
        {"Constants.h",
         "widget types",
         {WIDGETTYPE_ACCOUNTCOMBOBOX, WIDGETTYPE_CHECKBOX, WIDGETTYPE_COMBOBOX, WIDGETTYPE_DATETIME,
          WIDGETTYPE_ZRSEARCHBOX, WIDGETTYPE_LABEL, WIDGETTYPE_LINEEDIT, WIDGETTYPE_MULTICOMBOBOX,
          WIDGETTYPE_RADIOBUTTON, WIDGETTYPE_SPINBOX, WIDGETTYPE_TIMEEDIT}},
    };
}

QList<Group> pluginGroups()
{
    using namespace PluginPropety;
    return {{"PluginPropety.h",
             "plugin properties",
             {PLUGININSTANCE_ID, PLUGINWIDGET_TITLETEXT, PLUGINWIDGET_TITLEICON, PLUGINWIDGET_NORMALWIDTH,
              PLUGINWIDGET_NORMALHEIGHT, PLUGIN_CUSTOMPROP, PLUGIN_TITLE_HAS_ACCOUNT_WIDGET,
              PLUGIN_WIDGET_CLOSEBUTTONVISIABLE, PLUGIN_WIDGET_COPYBUTTONVISIABLE,
              PLUGIN_WIDGET_SETTINGBUTTONVISIABLE, PLUGIN_WIDGET_DOCKABLE, PLUGIN_WIDGET_FRESHABLE,
              PluginEventNotifyType, PluginPosLeft, PluginPosTop, PluginSelectState}}};
}

// One record may carry fields of all kinds, so they are one group.
QList<Group> fieldGroups()
{
    using namespace Vexlor_Fields;
    return {{"VexlorFields.h",
             "fields",
             {System::clientMsgID,
              System::msgType,
              System::hasFollowup,
              System::traceID,
              System::textDescription,
              System::itemType,
              System::itemValue,
              System::itemValueEx,
              System::filterValue,
              CustomField::requestType,
              Security::symbol,
              Security::chineseName,
              Security::systemNodeId,
              UserAccount::tradingAccount,
              UserAccount::tradingAccountName,
              UserAccount::assetAccount,
              UserAccount::assetAccountName,
              UserAccount::investorName,
              UserAccount::productName,
              UserAccount::SymbolPost,
              Infomation::compareOperator,
              Infomation::logicOperator,
              Infomation::fieldComment}},
            {"VexlorMsgType.h",
             "message types",
             {Vexlor_MsgType::executionReport, Vexlor_MsgType::bussinessMsgReject}}};
}

QList<Group> valueGroups()
{
    using namespace Vexlor_Values;
    return {{"VexlorValues.h", "request types", {RequestType::sync, RequestType::aync}},
            {"VexlorValues.h", "user types", {UserType::sysAdmin}},
            {"VexlorValues.h", "authorities", {AuthorityType::AccountTrade}},
            {"VexlorValues.h", "ID sources", {SecurityIDSource::securityID}},
            {"VexlorValues.h", "common infos", {ClientPerformItem::PluginInitedCount}},
            {"VexlorValues.h", "reports of the client", {ClinetInfoUpload::RequestTimeOutError}},
            {"VexlorValues.h",
             "compare operators",
             {CompareOperator::equal, CompareOperator::greaterOrEqual, CompareOperator::lessOrEqual}},
            {"VexlorValues.h", "logic operators", {LogicOperator::andOperator, LogicOperator::orOperator}}};
}

QList<Group> groups()
{
    return constantGroups() + pluginGroups() + fieldGroups() + valueGroups();
}
} // namespace

void tst_ZrDefine::namesOfAGroupAreDistinctAndNotEmpty_data()
{
    QTest::addColumn<QStringList>("values");
    for (const Group &group : groups())
        QTest::newRow(group.name) << group.values;
}

void tst_ZrDefine::namesOfAGroupAreDistinctAndNotEmpty()
{
    QFETCH(QStringList, values);
    QStringList seen;
    for (const QString &value : values) {
        QVERIFY(!value.isEmpty());
        QVERIFY2(!seen.contains(value), qPrintable(value));
        // They become names of properties and keys of settings.
        QCOMPARE(QString::fromLatin1(value.toLatin1()), value);
        seen.append(value);
    }
}

void tst_ZrDefine::noNameIsLeftOut_data()
{
    QTest::addColumn<int>("expected");
    QMap<QByteArray, int> counts;
    for (const Group &group : groups())
        counts[group.header] += group.values.size();
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        QTest::newRow(it.key().constData()) << it.value();
}

void tst_ZrDefine::noNameIsLeftOut()
{
    QFETCH(int, expected);
    QFile header(QStringLiteral(ZR_HOSTAPI "/zrdefine/") + QLatin1String(QTest::currentDataTag()));
    QVERIFY(header.open(QIODevice::ReadOnly));
    QCOMPARE(header.readAll().count("extern ZRDEFINE_EXPORT const QString "), expected);
}

ZR_TEST_GUILESS_MAIN(tst_ZrDefine)
#include "tst_zrdefine.moc"
