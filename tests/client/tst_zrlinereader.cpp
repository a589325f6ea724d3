#include "ZrCsvLine.h"
#include "ZrLineReader.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>

#include <zlib.h>

class tst_ZrLineReader : public QObject
{
    Q_OBJECT
private slots:
    void linesAreTheSameForEveryLineEnd_data();
    void linesAreTheSameForEveryLineEnd();
    void aGzipFileReadsLikeAPlainOne();
    void aBrokenGzipFileSaysSo();
    void aLineThatIsTooLongIsCutAndTheNextOneIsWhole();
    void whatIsNoFileIsRefused();
    void fieldsAreSplit_data();
    void fieldsAreSplit();
    void linesThatCannotBeSplitAreRefused();
    void aColumnBeyondTheEndIsEmpty();

private:
    QString write(const QByteArray &content);
    static QList<QByteArray> linesOf(const QString &path, QString *error);
    QTemporaryDir m_folder;
    int m_files = 0;
};

QString tst_ZrLineReader::write(const QByteArray &content)
{
    QFile file(m_folder.filePath(QString::number(m_files++)));
    const bool good = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return good ? file.fileName() : QString();
}

QList<QByteArray> tst_ZrLineReader::linesOf(const QString &path, QString *error)
{
    ZrLineReader reader;
    QList<QByteArray> lines;
    QByteArray line;
    if (reader.open(path)) {
        while (reader.next(&line))
            lines.append(line);
    }
    *error = reader.error();
    return lines;
}

void tst_ZrLineReader::linesAreTheSameForEveryLineEnd_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QList<QByteArray>>("expected");
    const QList<QByteArray> two = {"a,b", "1,2"};
    QTest::newRow("LF") << QByteArray("a,b\n1,2\n") << two;
    QTest::newRow("CRLF") << QByteArray("a,b\r\n1,2\r\n") << two;
    QTest::newRow("no end at the last line") << QByteArray("a,b\n1,2") << two;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "a,b\n1,2\n")
                                     << two;
    QTest::newRow("empty line") << QByteArray("a\n\nb\n") << QList<QByteArray>{"a", "", "b"};
    QTest::newRow("empty file") << QByteArray() << QList<QByteArray>();
    QTest::newRow("only a mark") << QByteArray("\xEF\xBB\xBF") << QList<QByteArray>();
    QTest::newRow("null bytes") << QByteArray("a\0b\n", 4) << QList<QByteArray>{QByteArray("a\0b", 3)};
    QTest::newRow("line across two buffers") << (QByteArray(60000, 'a') + '\n').repeated(9)
                                             << QVector<QByteArray>(9, QByteArray(60000, 'a')).toList();
}

void tst_ZrLineReader::linesAreTheSameForEveryLineEnd()
{
    QFETCH(QByteArray, content);
    QFETCH(QList<QByteArray>, expected);
    QString error;
    QCOMPARE(linesOf(write(content), &error), expected);
    QCOMPARE(error, QString());
}

void tst_ZrLineReader::aGzipFileReadsLikeAPlainOne()
{
    const QString path = m_folder.filePath(QStringLiteral("plain.gz"));
    gzFile file = gzopen(QFile::encodeName(path).constData(), "wb");
    QVERIFY(gzwrite(file,
                    "\xEF\xBB\xBF"
                    "a,b\r\n1,2\n",
                    12) == 12);
    QCOMPARE(gzclose(file), Z_OK);
    QString error;
    QCOMPARE(linesOf(path, &error), (QList<QByteArray>{"a,b", "1,2"}));
    QCOMPARE(error, QString());
}

void tst_ZrLineReader::aBrokenGzipFileSaysSo()
{
    const QString path = m_folder.filePath(QStringLiteral("broken.gz"));
    gzFile out = gzopen(QFile::encodeName(path).constData(), "wb");
    for (int i = 0; i < 20000; ++i)
        gzprintf(out, "%d,%d\n", i, i * 7919);
    QCOMPARE(gzclose(out), Z_OK);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.resize(file.size() / 2));
    file.close();
    QString error;
    linesOf(path, &error);
    QCOMPARE(error, QStringLiteral("the compressed data is broken"));
}

void tst_ZrLineReader::aLineThatIsTooLongIsCutAndTheNextOneIsWhole()
{
    ZrLineReader reader;
    QVERIFY(reader.open(write(QByteArray(1000000, 'x') + "\nshort\n")));
    QByteArray line;
    QVERIFY(reader.next(&line));
    QVERIFY(reader.wasTooLong());
    QCOMPARE(line.size(), ZrLineReader::MaxLine);
    QVERIFY(reader.next(&line));
    QVERIFY(!reader.wasTooLong());
    QCOMPARE(line, QByteArray("short"));
    QCOMPARE(reader.lineNumber(), 2);
    QVERIFY(!reader.next(&line));
}

void tst_ZrLineReader::whatIsNoFileIsRefused()
{
    ZrLineReader reader;
    QVERIFY(!reader.open(m_folder.path()));
    QVERIFY(!reader.open(m_folder.filePath(QStringLiteral("nothing"))));
    QCOMPARE(reader.error(), QStringLiteral("there is no such file"));
    QByteArray line;
    QVERIFY(!reader.next(&line));
}

void tst_ZrLineReader::fieldsAreSplit_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<char>("separator");
    QTest::addColumn<QList<QByteArray>>("expected");
    QTest::newRow("plain") << QByteArray("a,b,c") << ',' << QList<QByteArray>{"a", "b", "c"};
    QTest::newRow("empty fields") << QByteArray(",,") << ',' << QList<QByteArray>{"", "", ""};
    QTest::newRow("empty line") << QByteArray() << ',' << QList<QByteArray>{""};
    QTest::newRow("blanks around") << QByteArray(" a , b ") << ',' << QList<QByteArray>{"a", "b"};
    QTest::newRow("quoted separator") << QByteArray("\"a,b\",c") << ',' << QList<QByteArray>{"a,b", "c"};
    QTest::newRow("doubled quote") << QByteArray("\"a\"\"b\" , c") << ',' << QList<QByteArray>{"a\"b", "c"};
    QTest::newRow("quoted blanks stay") << QByteArray("\" a \"") << ',' << QList<QByteArray>{" a "};
    QTest::newRow("empty quotes") << QByteArray("\"\",x") << ',' << QList<QByteArray>{"", "x"};
    QTest::newRow("tabs") << QByteArray("a\t\tb") << '\t' << QList<QByteArray>{"a", "", "b"};
    QTest::newRow("bars") << QByteArray("a|b") << '|' << QList<QByteArray>{"a", "b"};
}

void tst_ZrLineReader::fieldsAreSplit()
{
    QFETCH(QByteArray, line);
    QFETCH(char, separator);
    QFETCH(QList<QByteArray>, expected);
    ZrCsvLine row;
    QVERIFY(row.split("1,2,3,4,5,6,7", ',', '"'));
    QVERIFY(row.split(line, separator, '"'));
    QList<QByteArray> fields;
    for (int i = 0; i < row.size(); ++i)
        fields.append(row.at(i));
    QCOMPARE(fields, expected);
}

void tst_ZrLineReader::linesThatCannotBeSplitAreRefused()
{
    ZrCsvLine row;
    QVERIFY(!row.split("a,\"b", ',', '"'));
    QVERIFY(!row.split("\"a\"b,c", ',', '"'));
    QVERIFY(row.split("\"a\"b,c", ',', '\0'));
    QVERIFY(row.split(QByteArray(ZrCsvLine::MaxFields - 1, ','), ',', '"'));
    QVERIFY(!row.split(QByteArray(ZrCsvLine::MaxFields, ','), ',', '"'));
}

void tst_ZrLineReader::aColumnBeyondTheEndIsEmpty()
{
    ZrCsvLine row;
    QVERIFY(row.split("a,b,c", ',', '"'));
    QVERIFY(row.split("d", ',', '"'));
    QCOMPARE(row.at(0), QByteArray("d"));
    QCOMPARE(row.at(1), QByteArray());
    QCOMPARE(row.at(-1), QByteArray());
    QCOMPARE(row.at(100), QByteArray());
}

ZR_TEST_GUILESS_MAIN(tst_ZrLineReader)
#include "tst_zrlinereader.moc"
