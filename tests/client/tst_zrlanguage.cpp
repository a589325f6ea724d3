#include "ZrLanguage.h"
#include "ZrTestMain.h"

#include <QtCore/QTranslator>

/// The texts of the workstation, the library and the toolkit in the language that was asked for.
class tst_ZrLanguage : public QObject
{
    Q_OBJECT
private slots:
    void cleanup();
    void theTextsComeInTheLanguage_data();
    void theTextsComeInTheLanguage();
    void withoutALanguageTheLocalesIsTaken();
    void numbersAreWrittenAsTheLanguageDoes();
};

namespace {
QString skinWord()
{
    return QCoreApplication::translate("ZrDeskToolBar", "Skin");
}
QString libraryText()
{
    return QCoreApplication::translate("ZrColumnFileGuard", "a document type isn't allowed");
}
} // namespace

void tst_ZrLanguage::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator *>()); // each takes itself away
    QCOMPARE(skinWord(), QStringLiteral("Skin"));
    QLocale::setDefault(QLocale::system());
}

void tst_ZrLanguage::theTextsComeInTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("client");
    QTest::addColumn<QString>("library");
    const QString english = QStringLiteral("a document type isn't allowed");
    QTest::newRow("Chinese") << "zh_CN"
                             << "皮肤"
                             << "不允许文档类型声明";
    QTest::newRow("English") << "en"
                             << "Skin" << english;
    QTest::newRow("one that there is not") << "fr"
                                           << "Skin" << english;
    QTest::newRow("no language") << "no such thing"
                                 << "Skin" << english;
}

void tst_ZrLanguage::theTextsComeInTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, client);
    QFETCH(QString, library);
    ZrLanguage::install(qApp, language);
    QCOMPARE(skinWord(), client);
    QCOMPARE(libraryText(), library);
}

void tst_ZrLanguage::withoutALanguageTheLocalesIsTaken()
{
    QLocale::setDefault(QLocale(QStringLiteral("zh_CN")));
    ZrLanguage::install(qApp, QString());
    QCOMPARE(skinWord(), QStringLiteral("皮肤"));
}

void tst_ZrLanguage::numbersAreWrittenAsTheLanguageDoes()
{
    ZrLanguage::install(qApp, QStringLiteral("de"));
    QCOMPARE(QLocale().toString(1234.5, 'f', 1), QStringLiteral("1.234,5"));
    ZrLanguage::install(qApp, QStringLiteral("zh_CN"));
    QCOMPARE(QLocale().name(), QStringLiteral("zh_CN"));
    QCOMPARE(QLocale().toString(1234.5, 'f', 1), QStringLiteral("1,234.5"));
}

ZR_TEST_GUILESS_MAIN(tst_ZrLanguage)
#include "tst_zrlanguage.moc"
