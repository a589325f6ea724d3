#include "DialogScene.h"
#include "ZrTestMain.h"
#include "ZrToastDialog.h"

#include "zrdefine/Constants.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QScreen>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>

namespace {
/// Counts the sheets that it is given.
class CountingToast : public ZrToastDialog
{
public:
    using ZrToastDialog::ZrToastDialog;
    QStringList sheets;
    void loadSkin(const QVariant &css) override
    {
        sheets.append(css.toString());
        ZrToastDialog::loadSkin(css);
    }
};

QString sheetOf(const char *skin, const char *name)
{
    QFile file(QStringLiteral(ZR_SKINS "/%1/").arg(QLatin1String(skin)) + Constants::SKIN_SYSTEM +
               QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

constexpr const char *tipSheet = "zrwidget/ZrToastDialogTip.css";
constexpr const char *errorSheet = "zrwidget/ZrToastDialog.css";
} // namespace

class tst_ZrToastDialog : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theLevelsAreConstantsOfTheClass();
    void itIsAToolOnTopOfOthers();
    void itIsBuiltOfNamedParts();
    void aLevelChoosesItsSheet_data();
    void aLevelChoosesItsSheet();
    void anEqualLevelLoadsNothing();
    void aLevelThatComesBackLoadsAgain();
    void aChangeOfSkinLoadsTheSheetInUse();
    void aMessageIsShownAndLogged();
    void theToastStandsOverTheMiddleOfItsParent();
    void aToastWithoutParentStaysWhereItIs();
    void itClosesAfterItsDuration();
    void itClosesAfterThreeSecondsByItself();
    void theFirstMessagesTimeEndsBoth();
    void aToastMayBeUsedAgain();
    void aToastMayEndBeforeItsTime();
    void aDurationBelowZeroIsNone();
    void itTakesNoFocus();
    void theSizeFollowsFromTheText();
    void aTextWithoutBlankStaysInsideTheToast();
    void textsFromOutsideAreShownAsTheyAre();
    void theMarkHasAName();

private:
    static QLabel *textOf(const ZrToastDialog &toast) { return toast.findChild<QLabel *>("textLabel"); }
    std::unique_ptr<DialogScene> m_scene;
};

void tst_ZrToastDialog::init()
{
    m_scene = std::make_unique<DialogScene>();
    QVERIFY(m_scene->isReady());
}

void tst_ZrToastDialog::cleanup()
{
    m_scene.reset();
}

void tst_ZrToastDialog::theLevelsAreConstantsOfTheClass()
{
    static_assert(ZrToastDialog::LevelTip == 0);
    static_assert(ZrToastDialog::LevelError == 2);
    const int level = ZrToastDialog::LevelError;
    ZrToastDialog toast(nullptr);
    toast.setMsgLevel(level);
    QCOMPARE(toast.msgLevel(), 2);
}

void tst_ZrToastDialog::itIsAToolOnTopOfOthers()
{
    const ZrToastDialog toast(nullptr);
    QCOMPARE(int(toast.windowFlags()), int(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
    QVERIFY(toast.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!toast.isModal());
    QCOMPARE(toast.metaObject()->superClass(), &QDialog::staticMetaObject);
    QCOMPARE(toast.minimumSize(), QSize(300, 40));
    QCOMPARE(toast.msgLevel(), -1);
}

void tst_ZrToastDialog::itIsBuiltOfNamedParts()
{
    const ZrToastDialog toast(nullptr);
    const auto *const outer = qobject_cast<QHBoxLayout *>(toast.layout());
    QVERIFY(outer);
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins());
    auto *const frame = toast.findChild<QFrame *>("mainFrame");
    QCOMPARE(outer->itemAt(0)->widget(), frame);
    const auto *const inner = qobject_cast<QHBoxLayout *>(frame->layout());
    QVERIFY(inner);
    QCOMPARE(inner->spacing(), 10);
    QCOMPARE(inner->contentsMargins(), QMargins(12, 3, 12, 3));
    const auto *const icon = qobject_cast<QLabel *>(inner->itemAt(0)->widget());
    QCOMPARE(icon->objectName(), QString("errorIcon"));
    QCOMPARE(icon->minimumSize(), QSize(14, 14));
    QCOMPARE(icon->maximumSize(), QSize(14, 14));
    QCOMPARE(inner->itemAt(1)->widget(), textOf(toast));
    QVERIFY(textOf(toast)->wordWrap());
    QCOMPARE(inner->stretch(1), 1);
}

void tst_ZrToastDialog::aLevelChoosesItsSheet_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("tip") << 0 << QByteArray(tipSheet);
    QTest::newRow("error") << 2 << QByteArray(errorSheet);
    QTest::newRow("between") << 1 << QByteArray(errorSheet);
    QTest::newRow("below") << -2 << QByteArray(errorSheet);
}

void tst_ZrToastDialog::aLevelChoosesItsSheet()
{
    QFETCH(int, level);
    QFETCH(QByteArray, expected);
    QVERIFY(sheetOf("dark", tipSheet) != sheetOf("dark", errorSheet));
    CountingToast toast(nullptr);
    QVERIFY(toast.qt_metacast("IZrSkin"));
    QVERIFY(toast.qt_metacast("com.orbenlake.Plugin.ISkin"));
    toast.setMsgLevel(level);
    QCOMPARE(toast.msgLevel(), level);
    QCOMPARE(toast.sheets, QStringList{sheetOf("dark", expected.constData())});
    QCOMPARE(toast.styleSheet(), sheetOf("dark", expected.constData()));
}

void tst_ZrToastDialog::anEqualLevelLoadsNothing()
{
    CountingToast toast(nullptr);
    toast.setMsgLevel(-1);
    QCOMPARE(toast.sheets.size(), 0);
    toast.setMsgLevel(ZrToastDialog::LevelError);
    toast.setMsgLevel(ZrToastDialog::LevelError);
    QCOMPARE(toast.sheets.size(), 1);
    toast.ShowToastMessage("again", ZrToastDialog::LevelError);
    toast.ShowToastMessage("and again", ZrToastDialog::LevelError);
    QCOMPARE(toast.sheets.size(), 1);
}

void tst_ZrToastDialog::aLevelThatComesBackLoadsAgain()
{
    CountingToast toast(nullptr);
    for (const int level : {2, 0, 2})
        toast.setMsgLevel(level);
    QCOMPARE(toast.sheets, (QStringList{sheetOf("dark", errorSheet), sheetOf("dark", tipSheet),
                                        sheetOf("dark", errorSheet)}));
}

// Whichever sheet was first in use.
void tst_ZrToastDialog::aChangeOfSkinLoadsTheSheetInUse()
{
    CountingToast toast(nullptr);
    for (const int level : {2, 0, 2})
        toast.setMsgLevel(level);
    toast.sheets.clear();
    QVERIFY(m_scene->host.setSkin("light"));
    QCOMPARE(toast.sheets, QStringList{sheetOf("light", errorSheet)});
    toast.setMsgLevel(0);
    toast.sheets.clear();
    QVERIFY(m_scene->host.setSkin("dark"));
    QCOMPARE(toast.sheets, QStringList{sheetOf("dark", tipSheet)});
}

void tst_ZrToastDialog::aMessageIsShownAndLogged()
{
    ZrToastDialog toast(nullptr);
    QTest::ignoreMessage(QtInfoMsg, "ZrToastDialog::ShowToastMessage 2 \"order refused\"");
    toast.ShowToastMessage("order refused", ZrToastDialog::LevelError);
    QVERIFY(toast.isVisible());
    QCOMPARE(textOf(toast)->text(), QString("order refused"));
    QCOMPARE(toast.msgLevel(), 2);
}

void tst_ZrToastDialog::theToastStandsOverTheMiddleOfItsParent()
{
    QWidget part(&m_scene->mainWindow);
    part.setGeometry(100, 50, 301, 201);
    ZrToastDialog toast(&part);
    toast.ShowToastMessage("order refused", ZrToastDialog::LevelError);
    QCOMPARE(toast.geometry().center(), part.mapToGlobal(part.rect().center()));
    // Wherever the parent has gone, and however large the text.
    m_scene->mainWindow.move(10, 200);
    toast.ShowToastMessage(QString("order refused ").repeated(20), ZrToastDialog::LevelError);
    QCOMPARE(toast.geometry().center(), part.mapToGlobal(part.rect().center()));
}

void tst_ZrToastDialog::aToastWithoutParentStaysWhereItIs()
{
    ZrToastDialog toast(nullptr);
    toast.move(33, 44);
    toast.ShowToastMessage("order refused", ZrToastDialog::LevelError);
    QCOMPARE(toast.pos(), QPoint(33, 44));
}

void tst_ZrToastDialog::itClosesAfterItsDuration()
{
    ZrToastDialog toast(nullptr);
    toast.SetDuration(200);
    QElapsedTimer clock;
    clock.start();
    toast.ShowToastMessage("order refused", ZrToastDialog::LevelError);
    QTRY_VERIFY(!toast.isVisible());
    QVERIFY(clock.elapsed() >= 190);
}

void tst_ZrToastDialog::itClosesAfterThreeSecondsByItself()
{
    ZrToastDialog toast(nullptr);
    QElapsedTimer clock;
    clock.start();
    toast.ShowToastMessage("order refused", ZrToastDialog::LevelError);
    QTRY_VERIFY_WITH_TIMEOUT(!toast.isVisible(), 30000);
    QVERIFY2(clock.elapsed() >= 2850, qPrintable(QString::number(clock.elapsed())));
}

void tst_ZrToastDialog::theFirstMessagesTimeEndsBoth()
{
    ZrToastDialog toast(nullptr);
    toast.SetDuration(100);
    toast.ShowToastMessage("first", ZrToastDialog::LevelError);
    toast.SetDuration(60 * 1000);
    toast.ShowToastMessage("second", ZrToastDialog::LevelError);
    QCOMPARE(textOf(toast)->text(), QString("second"));
    QVERIFY(toast.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!toast.isVisible(), 30000);
}

void tst_ZrToastDialog::aToastMayBeUsedAgain()
{
    ZrToastDialog toast(nullptr);
    toast.SetDuration(1);
    toast.ShowToastMessage("first", ZrToastDialog::LevelError);
    QTRY_VERIFY(!toast.isVisible());
    toast.ShowToastMessage("second", ZrToastDialog::LevelTip);
    QVERIFY(toast.isVisible());
    QTRY_VERIFY(!toast.isVisible());
}

void tst_ZrToastDialog::aToastMayEndBeforeItsTime()
{
    auto toast = std::make_unique<ZrToastDialog>(nullptr);
    toast->SetDuration(0);
    toast->ShowToastMessage("first", ZrToastDialog::LevelError);
    toast.reset();
    QCoreApplication::processEvents(); // the timer must not find it
}

void tst_ZrToastDialog::aDurationBelowZeroIsNone()
{
    ZrToastDialog toast(nullptr);
    toast.SetDuration(-5);
    toast.ShowToastMessage("first", ZrToastDialog::LevelError);
    QTRY_VERIFY(!toast.isVisible());
}

void tst_ZrToastDialog::itTakesNoFocus()
{
    ZrToastDialog toast(nullptr);
    QVERIFY(toast.testAttribute(Qt::WA_ShowWithoutActivating));
    const QList<QWidget *> parts = toast.findChildren<QWidget *>();
    for (const QWidget *const part : parts)
        QCOMPARE(part->focusPolicy(), Qt::NoFocus);
}

void tst_ZrToastDialog::theSizeFollowsFromTheText()
{
    ZrToastDialog toast(nullptr);
    toast.ShowToastMessage("short", ZrToastDialog::LevelTip);
    QCOMPARE(toast.size(), QSize(300, 40));
    // A text that is just wider stays on one line.
    toast.ShowToastMessage(QString(48, 'n'), ZrToastDialog::LevelTip);
    QVERIFY(toast.width() > 300);
    QCOMPARE(toast.height(), 40);
    toast.ShowToastMessage(QString("order refused ").repeated(30), ZrToastDialog::LevelTip);
    QCOMPARE(toast.width(), 480);
    QVERIFY(toast.height() > 60);
    QVERIFY(textOf(toast)->height() >= textOf(toast)->heightForWidth(textOf(toast)->width()));
    // And smaller again.
    toast.ShowToastMessage("short", ZrToastDialog::LevelTip);
    QCOMPARE(toast.size(), QSize(300, 40));
}

void tst_ZrToastDialog::aTextWithoutBlankStaysInsideTheToast()
{
    ZrToastDialog toast(nullptr);
    toast.ShowToastMessage(DialogScene::withoutBlank(), ZrToastDialog::LevelError);
    QCOMPARE(toast.width(), 480);
    QVERIFY(toast.height() < QGuiApplication::primaryScreen()->availableGeometry().height());
    const QRect place(textOf(toast)->mapTo(&toast, QPoint(0, 0)), textOf(toast)->size());
    QVERIFY(toast.rect().contains(place));
    QVERIFY(textOf(toast)->heightForWidth(textOf(toast)->width()) <= textOf(toast)->height());
}

void tst_ZrToastDialog::textsFromOutsideAreShownAsTheyAre()
{
    ZrToastDialog toast(nullptr);
    toast.ShowToastMessage(DialogScene::markup(), ZrToastDialog::LevelError);
    // A label holds a place to break, which shows nothing, in each word too long for it.
    QCOMPARE(textOf(toast)->text().remove(QChar(0x200B)), DialogScene::markup());
    QCOMPARE(textOf(toast)->textFormat(), Qt::PlainText);
    QVERIFY(!textOf(toast)->buddy());
}

void tst_ZrToastDialog::theMarkHasAName()
{
    ZrToastDialog toast(nullptr);
    const auto *const icon = toast.findChild<QLabel *>("errorIcon");
    toast.setMsgLevel(ZrToastDialog::LevelTip);
    QCOMPARE(icon->accessibleName(), QString("Notice"));
    toast.setMsgLevel(ZrToastDialog::LevelError);
    QCOMPARE(icon->accessibleName(), QString("Error"));
}

ZR_TEST_MAIN(tst_ZrToastDialog)
#include "tst_zrtoastdialog.moc"
