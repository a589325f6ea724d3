#include "FormScene.h"
#include "ZrParamLink.h"
#include "ZrParamSearchKind.h"
#include "ZrSearchBox.h"

#include <QtCore/QStringListModel>
#include <QtWidgets/QCompleter>

namespace {
ZrSearchBox *make(const ZrParamSearchKind &kind, QWidget *parent, const QVariant &entries)
{
    const QVariantMap record =
        form::record("p", Constants::WIDGETTYPE_ZRSEARCHBOX, Constants::VALUETYPE_STRING,
                     {{Constants::STRATEGYPARAM_OPTIONS, entries}});
    return qobject_cast<ZrSearchBox *>(kind.make(record, parent, ZrParamLink(record, QString())));
}

/// The short codes that the box offers, in the order of its list.
QStringList offered(const ZrSearchBox *box)
{
    const auto *const completer = box->findChild<QCompleter *>();
    QStringList codes;
    const QStringList rows = qobject_cast<QStringListModel *>(completer->model())->stringList();
    for (const QString &row : rows)
        codes.append(row.section('.', 0, 0));
    return codes;
}
} // namespace

class tst_ZrParamSearchKind : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(m_host.isReady()); }

    void theBoxOffersTheEntriesSecurities_data()
    {
        QTest::addColumn<QVariant>("entries");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("one type") << QVariant("Stock") << QStringList({"600001", "000002"});
        QTest::newRow("type and kind") << QVariant("Fund|Lof") << QStringList({"159004"});
        QTest::newRow("two entries, joined in their order")
            << QVariant("Fund|Etf/Stock") << QStringList({"510003", "600001", "000002"});
        QTest::newRow("an entry of three parts") << QVariant("Fund|Etf|x") << QStringList();
        QTest::newRow("unknown type") << QVariant("Bond") << QStringList();
        QTest::newRow("no entries: nothing before a key") << QVariant("") << QStringList();
    }

    void theBoxOffersTheEntriesSecurities()
    {
        QFETCH(QVariant, entries);
        QFETCH(QStringList, expected);
        QWidget window;
        QCOMPARE(offered(make(m_kind, &window, entries)), expected);
    }

    void theCodeIsSeenAndTheSymbolStored()
    {
        QWidget window;
        ZrSearchBox *const box = make(m_kind, &window, "Stock");
        m_kind.write(box, "600001.SH", true);
        QCOMPARE(m_kind.read(box, Qt::DisplayRole), QVariant("600001"));
        QCOMPARE(m_kind.read(box, Qt::UserRole), QVariant("600001.SH"));
        QVERIFY(!m_kind.read(box, Qt::ToolTipRole).isValid());
        QVERIFY(!box->isReadOnly());
        m_kind.write(box, "000002.SZ", false);
        QCOMPARE(box->getSymbol(), QString("000002.SZ"));
        QVERIFY(box->isReadOnly());
    }

private:
    FormHost m_host;
    const ZrParamSearchKind m_kind;
};

ZR_TEST_MAIN(tst_ZrParamSearchKind)
#include "tst_zrparamsearchkind.moc"
