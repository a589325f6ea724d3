#include "ZrColumnFileGuard.h"
#include "ZrTestMain.h"

#include <QtXml/QDomDocument>

#include <ctime>

class tst_ZrColumnFileGuard : public QObject
{
    Q_OBJECT

private slots:
    void boundIsTheLastThatPasses_data();
    void boundIsTheLastThatPasses();
    void refusalNamesTheLine();
    void malformedButSmallIsLeftToTheDocument();
    void equalSignsInTextsAreNoAttributes();
    void largestAcceptedFileIsReadWithinASecond_data();
    void largestAcceptedFileIsReadWithinASecond();
};

void tst_ZrColumnFileGuard::boundIsTheLastThatPasses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("accepted");

    const auto nested = [](int depth) {
        return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
    };
    const auto ofSize = [](int bytes) { return "<a>" + QByteArray(bytes - 7, ' ') + "</a>"; };
    const auto attributes = [](int count) {
        QByteArray text;
        for (int i = 0; i < count; ++i)
            text += " a" + QByteArray::number(i) + " = \"\"";
        return "<a" + text + "/>";
    };
    // Each small element is a start, an end and an attribute.
    const auto elements = [](int count) { return "<a>" + QByteArray("<b c='1'/>").repeated(count) + "</a>"; };

    QTest::newRow("as deep as allowed") << nested(ZrColumnFileGuard::MaxDepth) << true;
    QTest::newRow("one too deep") << nested(ZrColumnFileGuard::MaxDepth + 1) << false;
    QTest::newRow("as large as allowed") << ofSize(ZrColumnFileGuard::MaxBytes) << true;
    QTest::newRow("one byte too large") << ofSize(ZrColumnFileGuard::MaxBytes + 1) << false;
    QTest::newRow("as many attributes as allowed")
        << attributes(ZrColumnFileGuard::MaxAttributesPerTag) << true;
    QTest::newRow("one attribute too many")
        << attributes(ZrColumnFileGuard::MaxAttributesPerTag + 1) << false;
    QTest::newRow("many elements") << elements(ZrColumnFileGuard::MaxNodes / 3 - 10) << true;
    QTest::newRow("too many elements") << elements(ZrColumnFileGuard::MaxNodes / 3 + 10) << false;
    QTest::newRow("bytes that are no UTF-8") << QByteArray("<a>\xff</a>") << false;
    QTest::newRow("document type") << QByteArray("<!DOCTYPE a><a/>") << false;
    QTest::newRow("malformed with a document type behind") << QByteArray("<a><b></a><!doctype a>") << false;
    QTest::newRow("malformed with an entity behind") << QByteArray("<a><b></a><!ENTITY a 'b'>") << false;
    QTest::newRow("malformed with many tags behind")
        << "<a x='1' x='2'>" + QByteArray("<b>").repeated(ZrColumnFileGuard::MaxTagsWhenMalformed) << false;
}

void tst_ZrColumnFileGuard::boundIsTheLastThatPasses()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, accepted);
    const ZrColumnFileGuard::Verdict verdict = ZrColumnFileGuard::check(content);
    QCOMPARE(verdict.accepted, accepted);
    QCOMPARE(verdict.message.isEmpty(), accepted);
    QCOMPARE(verdict.text.isEmpty(), !accepted);
}

void tst_ZrColumnFileGuard::refusalNamesTheLine()
{
    const ZrColumnFileGuard::Verdict verdict =
        ZrColumnFileGuard::check("<a>\n\n" + QByteArray("<a>").repeated(ZrColumnFileGuard::MaxDepth) + "\n");
    QVERIFY(!verdict.accepted);
    QCOMPARE(verdict.line, 3);
    QVERIFY(verdict.column > 1);
}

void tst_ZrColumnFileGuard::malformedButSmallIsLeftToTheDocument()
{
    QVERIFY(ZrColumnFileGuard::check("<a><b></a>").accepted);
    QVERIFY(ZrColumnFileGuard::check("").accepted);
}

void tst_ZrColumnFileGuard::equalSignsInTextsAreNoAttributes()
{
    const QByteArray banner(5000, '=');
    QVERIFY(ZrColumnFileGuard::check("<!-- " + banner + " --><a>" + banner + "</a>").accepted);
}

void tst_ZrColumnFileGuard::largestAcceptedFileIsReadWithinASecond_data()
{
    QTest::addColumn<QByteArray>("content");
    const int room = ZrColumnFileGuard::MaxBytes - 100;
    QTest::newRow("one text") << "<a>" + QByteArray(room, 'x') + "</a>";
    QTest::newRow("references") << "<a>" + QByteArray("&amp;").repeated(room / 5) + "</a>";
    QTest::newRow("unknown entities") << "<a>" + QByteArray("&b;").repeated(room / 3) + "</a>";
    QTest::newRow("sections") << "<a>" + QByteArray("<![CDATA[]]>").repeated(room / 12) + "</a>";
    QTest::newRow("attributes") << "<a>" + ("<b" + QByteArray(" c='1'") + "/>").repeated(30000) + "</a>";
    QTest::newRow("one long name") << "<" + QByteArray(room, 'a') + "/>";
    QTest::newRow("one long value") << "<a b='" + QByteArray(room, 'a') + "'/>";
}

void tst_ZrColumnFileGuard::largestAcceptedFileIsReadWithinASecond()
{
    QFETCH(QByteArray, content);
    // Processor time: what else the machine does isn't the file's fault.
    const std::clock_t start = std::clock();
    const ZrColumnFileGuard::Verdict verdict = ZrColumnFileGuard::check(content);
    QDomDocument document;
    if (verdict.accepted)
        document.setContent(verdict.text, false);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 1.0, qPrintable(QString::number(seconds)));
}

ZR_TEST_GUILESS_MAIN(tst_ZrColumnFileGuard)
#include "tst_zrcolumnfileguard.moc"
