#include "ZrParseTableColsCfg.h"
#include "ZrTestMain.h"
#include "ZrTextFile.h"

#include <ctime>
#include <sys/resource.h>

Q_DECLARE_METATYPE(ZrFieldSetting)

namespace {
QByteArray grid(const QByteArray &content)
{
    return "<GridSetting>" + content + "</GridSetting>";
}

// Announces one warning; the pattern has to match all of it.
void expectWarning(const QString &pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::anchoredPattern(pattern)));
}

QString quoted(const QString &path)
{
    return QRegularExpression::escape(QLatin1Char('"') + path + QLatin1Char('"'));
}

QString parseWarning(const QString &path)
{
    return QStringLiteral(
               "Error: Parse column configuration file  %1 error at line  \\d+ ,  column  \\d+ :  .+")
        .arg(quoted(path));
}

long peakKilobytes()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}
} // namespace

class tst_ZrParseTableColsCfg : public QObject
{
    Q_OBJECT

private slots:
    void everyAttributeReachesItsField();
    void attributeIsReadAsTheTableSays_data();
    void attributeIsReadAsTheTableSays();
    void fieldWithoutAttributesIsKeptAndSortsFirst();
    void fieldsAreSortedByIndex();
    void doubleIndexKeepsBothFields();
    void onlyDirectChildrenNamedFieldSettingCount();
    void missingFileWarnsAndGivesNoColumns();
    void brokenFileWarnsAndGivesNoColumns_data();
    void brokenFileWarnsAndGivesNoColumns();
    void parserMessageStandsAtTheEndUnquoted();
    void rootWithAnotherTagWarns_data();
    void rootWithAnotherTagWarns();
    void declaredEncodingIsHonoured_data();
    void declaredEncodingIsHonoured();
    void hostileFileEndsQuicklyInTheWarning_data();
    void hostileFileEndsQuicklyInTheWarning();

private:
    QList<ZrFieldSetting> fieldsOf(const QByteArray &content)
    {
        return ZrParseTableColsCfg::parseGridConfigure(m_files.write(content)).getFieldSetList();
    }
    ZrTextFile m_files;
};

void tst_ZrParseTableColsCfg::everyAttributeReachesItsField()
{
    const QList<ZrFieldSetting> fields = fieldsOf(grid(
        "<FieldSetting Index='4' TitleName='Amount' FieldNumber='38' ColumnWidth='120' Type='double' "
        "DisplayRole_Property='CommaSeparation|Percent' UserRole_Property='Anything' "
        "ExportViewRole_Property='UserRole' ColumnAlignment='Right' KeyColumn='1' Filterable='1' Decimal='2' "
        "Date_Style='yyyy' Role='ITEM_CUSTOMROLE'>ignored<b/></FieldSetting>"));
    QCOMPARE(fields.size(), 1);
    const ZrFieldSetting &field = fields.first();
    QCOMPARE(field.index, 4);
    QCOMPARE(field.titleName, QString("Amount"));
    QCOMPARE(field.fieldNumber, QString("38"));
    QCOMPARE(field.columnWidth, 120);
    QCOMPARE(field.type, QString("double"));
    QCOMPARE(field.displayRoleProperty, QString("CommaSeparation|Percent"));
    QCOMPARE(field.userRoleProperty, QString("Anything"));
    QCOMPARE(field.exportViewRoleProperty, QString("UserRole"));
    QCOMPARE(field.columnAlignment, 130);
    QCOMPARE(field.keyColumn, true);
    QCOMPARE(field.filterable, true);
    QCOMPARE(field.decimal, 2);
    QCOMPARE(field.dateStyle, QString("yyyy"));
    QCOMPARE(field.role, QString("ITEM_CUSTOMROLE"));
}

void tst_ZrParseTableColsCfg::attributeIsReadAsTheTableSays_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("expected");

    QTest::newRow("index of letters is 0, not -1") << QByteArray("Index='abc'") << "index" << 0;
    QTest::newRow("empty index is not set") << QByteArray("Index=''") << "index" << -1;
    QTest::newRow("negative index stays") << QByteArray("Index='-7'") << "index" << -7;
    QTest::newRow("decimal 0 is configured") << QByteArray("Decimal='0'") << "decimal" << 0;
    QTest::newRow("decimal of letters is 0") << QByteArray("Decimal='x'") << "decimal" << 0;
    QTest::newRow("empty decimal is not configured") << QByteArray("Decimal=''") << "decimal" << -1;
    QTest::newRow("width of letters is 0") << QByteArray("ColumnWidth='wide'") << "width" << 0;
    QTest::newRow("width beyond the number range is 0")
        << QByteArray("ColumnWidth='99999999999'") << "width" << 0;
    QTest::newRow("key 2 is true") << QByteArray("KeyColumn='2'") << "key" << 1;
    QTest::newRow("key -1 is true") << QByteArray("KeyColumn='-1'") << "key" << 1;
    QTest::newRow("key of the word true is false") << QByteArray("KeyColumn='true'") << "key" << 0;
    QTest::newRow("empty key is false") << QByteArray("KeyColumn=''") << "key" << 0;
    QTest::newRow("filterable 1") << QByteArray("Filterable='1'") << "filterable" << 1;
    QTest::newRow("filterable of the word true") << QByteArray("Filterable='true'") << "filterable" << 0;
    QTest::newRow("Center") << QByteArray("ColumnAlignment='Center'") << "alignment" << 132;
    QTest::newRow("Left") << QByteArray("ColumnAlignment='Left'") << "alignment" << 129;
    QTest::newRow("Right") << QByteArray("ColumnAlignment='Right'") << "alignment" << 130;
    QTest::newRow("center in lower case") << QByteArray("ColumnAlignment='center'") << "alignment" << 0;
    QTest::newRow("empty alignment") << QByteArray("ColumnAlignment=''") << "alignment" << 0;
    QTest::newRow("attribute name in lower case is another one") << QByteArray("index='3'") << "index" << -1;
}

void tst_ZrParseTableColsCfg::attributeIsReadAsTheTableSays()
{
    QFETCH(QByteArray, attribute);
    QFETCH(QString, field);
    QFETCH(int, expected);

    const QList<ZrFieldSetting> fields = fieldsOf(grid("<FieldSetting " + attribute + "/>"));
    QCOMPARE(fields.size(), 1);
    const ZrFieldSetting &setting = fields.first();
    const QHash<QString, int> values = {
        {"index", setting.index},           {"decimal", setting.decimal},
        {"width", setting.columnWidth},     {"key", setting.keyColumn},
        {"filterable", setting.filterable}, {"alignment", setting.columnAlignment}};
    QCOMPARE(values.value(field), expected);
}

void tst_ZrParseTableColsCfg::fieldWithoutAttributesIsKeptAndSortsFirst()
{
    const QList<ZrFieldSetting> fields = fieldsOf(grid("<FieldSetting Index='0'/><FieldSetting/>"));
    QCOMPARE(fields.size(), 2);
    const ZrFieldSetting &bare = fields.first();
    QCOMPARE(bare.index, -1);
    QCOMPARE(bare.columnWidth, -1);
    QCOMPARE(bare.columnAlignment, 0);
    QCOMPARE(bare.keyColumn, false);
    QCOMPARE(bare.filterable, false);
    QCOMPARE(bare.decimal, -1);
    for (const QString &text :
         {bare.titleName, bare.fieldNumber, bare.type, bare.displayRoleProperty, bare.userRoleProperty,
          bare.exportViewRoleProperty, bare.dateStyle, bare.role})
        QVERIFY(text.isEmpty());
}

void tst_ZrParseTableColsCfg::fieldsAreSortedByIndex()
{
    const QList<ZrFieldSetting> fields =
        fieldsOf(grid("<FieldSetting Index='10'/><FieldSetting Index='2'/><FieldSetting Index='-3'/>"));
    QList<int> indexes;
    for (const ZrFieldSetting &field : fields)
        indexes.append(field.index);
    QCOMPARE(indexes, QList<int>({-3, 2, 10}));
}

void tst_ZrParseTableColsCfg::doubleIndexKeepsBothFields()
{
    const QList<ZrFieldSetting> fields =
        fieldsOf(grid("<FieldSetting Index='1' TitleName='a'/><FieldSetting Index='1' TitleName='b'/>"));
    QCOMPARE(fields.size(), 2);
    QCOMPARE(fields.at(0).index, 1);
    QCOMPARE(fields.at(1).index, 1);
    QVERIFY(fields.at(0).titleName != fields.at(1).titleName);
}

void tst_ZrParseTableColsCfg::onlyDirectChildrenNamedFieldSettingCount()
{
    const QList<ZrFieldSetting> fields = fieldsOf(
        grid("text<!-- <FieldSetting Index='9'/> --><Group><FieldSetting Index='1'/></Group>"
             "<fieldsetting Index='2'/><FieldSetting Index='3'><FieldSetting Index='4'/></FieldSetting>"));
    QCOMPARE(fields.size(), 1);
    QCOMPARE(fields.first().index, 3);
}

void tst_ZrParseTableColsCfg::missingFileWarnsAndGivesNoColumns()
{
    expectWarning(QStringLiteral("Error: Open column configuration file  %1").arg(quoted(m_files.missing())));
    QVERIFY(ZrParseTableColsCfg::parseGridConfigure(m_files.missing()).getFieldSetList().isEmpty());
}

void tst_ZrParseTableColsCfg::brokenFileWarnsAndGivesNoColumns_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("Index=1\nTitleName=Price\n");
    QTest::newRow("cut off") << QByteArray("<GridSetting><FieldSetting Index='1'/>");
    QTest::newRow("tags cross") << QByteArray("<GridSetting><a></GridSetting></a>");
    QTest::newRow("two roots") << QByteArray("<GridSetting/><GridSetting/>");
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\x02\x01\x01\x00\x00\x00\xff\xfe\xfd",
                                          13);
    QTest::newRow("zeros") << QByteArray(1000, '\0');
    QTest::newRow("GBK bytes without a declaration")
        << grid("<FieldSetting TitleName='\xce\xaf\xcd\xd0'/>"); // two Chinese characters
    QTest::newRow("unknown encoding") << QByteArray("<?xml version='1.0' encoding='klingon'?><GridSetting/>");
    QTest::newRow("entity definition")
        << QByteArray("<!DOCTYPE GridSetting [<!ENTITY a 'b'>]><GridSetting>&a;</GridSetting>");
    QTest::newRow("outside document type") << QByteArray("<!DOCTYPE GridSetting SYSTEM 'file:///etc/passwd'>"
                                                         "<GridSetting/>");
}

void tst_ZrParseTableColsCfg::brokenFileWarnsAndGivesNoColumns()
{
    QFETCH(QByteArray, content);
    const QString path = m_files.write(content);
    expectWarning(parseWarning(path));
    QVERIFY(ZrParseTableColsCfg::parseGridConfigure(path).getFieldSetList().isEmpty());
}

void tst_ZrParseTableColsCfg::parserMessageStandsAtTheEndUnquoted()
{
    const QString path = m_files.write("<GridSetting>\n<a></b></GridSetting>");
    expectWarning(
        QStringLiteral("Error: Parse column configuration file  %1 error at line  2 ,  column  \\d+ :  "
                       "tag mismatch")
            .arg(quoted(path)));
    ZrParseTableColsCfg::parseGridConfigure(path);
}

void tst_ZrParseTableColsCfg::rootWithAnotherTagWarns_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("only the case differs")
        << QByteArray("<gridsetting><FieldSetting Index='1'/></gridsetting>");
    QTest::newRow("other word") << QByteArray("<html><FieldSetting Index='1'/></html>");
    QTest::newRow("prefix") << QByteArray("<x:GridSetting/>");
}

void tst_ZrParseTableColsCfg::rootWithAnotherTagWarns()
{
    QFETCH(QByteArray, content);
    const QString path = m_files.write(content);
    expectWarning(
        QStringLiteral("Error: column configuration file  %1 Not a GridSetting file").arg(quoted(path)));
    QVERIFY(ZrParseTableColsCfg::parseGridConfigure(path).getFieldSetList().isEmpty());
}

void tst_ZrParseTableColsCfg::declaredEncodingIsHonoured_data()
{
    QTest::addColumn<QByteArray>("content");
    const QString text = QString::fromUtf8("<GridSetting><FieldSetting TitleName='委托'/></GridSetting>");
    QTest::newRow("UTF-8") << text.toUtf8();
    QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf") + text.toUtf8();
    QTest::newRow("GBK") << "<?xml version='1.0' encoding='GBK'?>" +
                                QTextCodec::codecForName("GBK")->fromUnicode(text);
    QTest::newRow("UTF-16 with a mark") << QTextCodec::codecForName("UTF-16")->fromUnicode(text);
    QTextCodec::ConverterState noMark(QTextCodec::IgnoreHeader);
    QTest::newRow("UTF-16 without a mark")
        << QTextCodec::codecForName("UTF-16LE")->fromUnicode(text.constData(), text.size(), &noMark);
}

void tst_ZrParseTableColsCfg::declaredEncodingIsHonoured()
{
    QFETCH(QByteArray, content);
    const QList<ZrFieldSetting> fields = fieldsOf(content);
    QCOMPARE(fields.size(), 1);
    QCOMPARE(fields.first().titleName, QString::fromUtf8("委托"));
}

void tst_ZrParseTableColsCfg::hostileFileEndsQuicklyInTheWarning_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray laughs = "<!DOCTYPE GridSetting [<!ENTITY a0 'ha'>";
    for (int i = 1; i < 40; ++i) {
        laughs += QStringLiteral("<!ENTITY a%1 '&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;'>")
                      .arg(i)
                      .arg(i - 1)
                      .toUtf8();
    }
    const int million = 1000 * 1000;
    QByteArray attributes;
    for (int i = 0; i < 100 * 1000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";

    QTest::newRow("a megabyte of nested elements") << grid(QByteArray("<a>").repeated(million / 3));
    QTest::newRow("nested and closed")
        << grid(QByteArray("<a>").repeated(1 << 16) + QByteArray("</a>").repeated(1 << 16));
    QTest::newRow("entity bomb") << laughs + "]><GridSetting>&a39;</GridSetting>";
    QTest::newRow("a hundred thousand attributes") << grid("<FieldSetting" + attributes + "/>");
    QTest::newRow("a million small elements") << grid(QByteArray("<a/>").repeated(million / 4));
    QTest::newRow("many comments") << grid(QByteArray("<!---->").repeated(million / 7));
    QTest::newRow("many sections") << grid(QByteArray("<![CDATA[]]>x<b/>").repeated(million / 17));
    QTest::newRow("larger than any grid") << grid(QByteArray(64 * million, ' '));
    QTest::newRow("a megabyte of open brackets") << QByteArray(million, '<');
    QTest::newRow("a megabyte of an open tag")
        << "<GridSetting " + QByteArray("a='b' ").repeated(million / 6);
    QTest::newRow("malformed and nested")
        << "<GridSetting a='1' a='2'>" + QByteArray("<a>").repeated(million / 3);
}

void tst_ZrParseTableColsCfg::hostileFileEndsQuicklyInTheWarning()
{
    QFETCH(QByteArray, content);
    const QString path = m_files.write(content);
    content.clear();
    expectWarning(parseWarning(path));
    const long before = peakKilobytes();
    // Processor time: what else the machine does isn't the file's fault.
    const std::clock_t start = std::clock();
    const QList<ZrFieldSetting> fields = ZrParseTableColsCfg::parseGridConfigure(path).getFieldSetList();
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY(fields.isEmpty());
    QVERIFY2(seconds < 1.0, qPrintable(QString::number(seconds)));
    QVERIFY2(peakKilobytes() - before < 100 * 1024, qPrintable(QString::number(peakKilobytes() - before)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrParseTableColsCfg)
#include "tst_zrparsetablecolscfg.moc"
