#include "FrameScene.h"
#include "ZrLogWidget.h"
#include "ZrPlainText.h"
#include "ZrTestMain.h"

#include <QtGui/QMovie>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

#include <memory>

namespace {

/// A log widget with its parts.
class LogScene
{
public:
    explicit LogScene(QWidget *parent)
        : widget(parent)
        , label(widget.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
        , movie(widget.findChild<QMovie *>())
        , edit(widget.findChild<QTextEdit *>())
    {
    }

    bool isMoving() const { return movie->state() == QMovie::Running; }

    ZrLogWidget widget;
    QLabel *label;
    QMovie *movie;
    QTextEdit *edit;
};

} // namespace

class tst_ZrLogWidget : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void thePartsStandAsTheyShould();
    void theFirstPictureShowsAtRest();
    void thePictureMovesUntilItIsStopped();
    void aSecondStartAndASecondStopDoNothing();
    void aNewSizeScalesThePicture_data();
    void aNewSizeScalesThePicture();
    void theWidgetShrinksAfterItGrew();
    void aLineIsAddedAtTheEnd();
    void aNewLogReplacesTheOld();
    void theLogScrollsToTheNewLine();
    void theLogIsShownAndHidden();
    void markupIsShownAsItStands_data();
    void markupIsShownAsItStands();
    void aLineWithoutEndStaysInside();
    void withoutTheFileOnlyTheLogIsThere();
    void aSheetThatIsMissingChangesNothing();
    void theShippedSkinsGiveASheet_data();
    void theShippedSkinsGiveASheet();
    void thePartsHaveAccessibleNames();

private:
    std::unique_ptr<FrameScene> m_scene;
};

void tst_ZrLogWidget::init()
{
    m_scene = std::make_unique<FrameScene>();
    QVERIFY(m_scene->startShipped());
    qRegisterMetaType<QMovie::MovieState>();
}

void tst_ZrLogWidget::cleanup()
{
    m_scene.reset();
}

void tst_ZrLogWidget::thePartsStandAsTheyShould()
{
    const LogScene scene(m_scene->stage());
    QVERIFY(scene.label && scene.movie && scene.edit);
    QVERIFY(qobject_cast<QHBoxLayout *>(scene.widget.layout()));
    QCOMPARE(scene.widget.layout()->contentsMargins(), QMargins());
    QCOMPARE(scene.widget.layout()->itemAt(0)->widget(), scene.label);
    QCOMPARE(scene.label->movie(), scene.movie);
    QCOMPARE(scene.edit->parentWidget(), scene.label);
    QVERIFY(qobject_cast<QHBoxLayout *>(scene.label->layout()));
    QCOMPARE(scene.label->layout()->contentsMargins(), QMargins());
    QCOMPARE(scene.label->layout()->itemAt(0)->widget(), scene.edit);
    QVERIFY(scene.edit->isReadOnly());
    QVERIFY(scene.edit->isHidden());
}

void tst_ZrLogWidget::theFirstPictureShowsAtRest()
{
    const LogScene scene(m_scene->stage());
    QVERIFY(!scene.isMoving());
    QVERIFY(scene.movie->frameCount() > 1);
    QVERIFY(!scene.movie->currentPixmap().isNull());
    QCOMPARE(scene.widget.sizeHint(), scene.movie->currentPixmap().size());
}

void tst_ZrLogWidget::thePictureMovesUntilItIsStopped()
{
    LogScene scene(m_scene->stage());
    scene.widget.startLogger();
    QVERIFY(scene.isMoving());
    QTRY_VERIFY(scene.movie->currentFrameNumber() > 0);
    scene.widget.stopLogger();
    QVERIFY(!scene.isMoving());
}

void tst_ZrLogWidget::aSecondStartAndASecondStopDoNothing()
{
    LogScene scene(m_scene->stage());
    QSignalSpy changes(scene.movie, &QMovie::stateChanged);
    scene.widget.stopLogger();
    QCOMPARE(changes.count(), 0);
    scene.widget.startLogger();
    scene.widget.startLogger();
    QCOMPARE(changes.count(), 1);
    scene.widget.stopLogger();
    scene.widget.stopLogger();
    QCOMPARE(changes.count(), 2);
}

void tst_ZrLogWidget::aNewSizeScalesThePicture_data()
{
    QTest::addColumn<bool>("moving");

    QTest::newRow("at rest") << false;
    QTest::newRow("while it moves") << true;
}

void tst_ZrLogWidget::aNewSizeScalesThePicture()
{
    QFETCH(bool, moving);
    LogScene scene(m_scene->stage());
    if (moving)
        scene.widget.startLogger();
    for (const QSize &size : {QSize(500, 300), QSize(90, 70), QSize(320, 40)}) {
        scene.widget.resize(size);
        scene.widget.show();
        QTRY_COMPARE(scene.label->size(), size);
        QTRY_COMPARE(scene.movie->scaledSize(), size);
        QTRY_COMPARE(scene.movie->currentPixmap().size(), size);
        QCOMPARE(scene.isMoving(), moving);
    }
}

void tst_ZrLogWidget::theWidgetShrinksAfterItGrew()
{
    QWidget panel(m_scene->stage());
    auto *const layout = new QHBoxLayout(&panel);
    LogScene scene(&panel);
    layout->addWidget(&scene.widget);
    panel.resize(700, 500);
    panel.show();
    QTRY_VERIFY(scene.movie->scaledSize().width() > 600);
    const QSize hint = scene.widget.sizeHint();
    QVERIFY(layout->totalMinimumSize().width() < 200);
    panel.resize(200, 150);
    QTRY_VERIFY(scene.widget.width() < 200);
    QVERIFY(scene.widget.height() < 150);
    QCOMPARE(scene.widget.sizeHint(), hint);
}

void tst_ZrLogWidget::aLineIsAddedAtTheEnd()
{
    LogScene scene(m_scene->stage());
    scene.widget.appendLog(QStringLiteral("first"));
    // Where the user has put the cursor does not matter.
    scene.edit->moveCursor(QTextCursor::Start);
    scene.widget.appendLog(QStringLiteral("second"));
    QCOMPARE(scene.edit->toPlainText(), QStringLiteral("first\nsecond\n"));
    QVERIFY(scene.edit->textCursor().atEnd());
}

void tst_ZrLogWidget::aNewLogReplacesTheOld()
{
    LogScene scene(m_scene->stage());
    scene.widget.appendLog(QStringLiteral("old"));
    scene.widget.setLog(QStringLiteral("new\nlog"));
    QCOMPARE(scene.edit->toPlainText(), QStringLiteral("new\nlog"));
    scene.widget.setLog(QString());
    QCOMPARE(scene.edit->toPlainText(), QString());
}

void tst_ZrLogWidget::theLogScrollsToTheNewLine()
{
    LogScene scene(m_scene->stage());
    scene.widget.resize(300, 100);
    scene.widget.showLog(true);
    scene.widget.show();
    for (int i = 0; i < 100; ++i)
        scene.widget.appendLog(QString::number(i));
    QVERIFY(scene.edit->verticalScrollBar()->maximum() > 0);
    QVERIFY(scene.edit->viewport()->rect().contains(scene.edit->cursorRect()));
}

void tst_ZrLogWidget::theLogIsShownAndHidden()
{
    LogScene scene(m_scene->stage());
    scene.widget.show();
    QVERIFY(!scene.edit->isVisible());
    scene.widget.showLog(true);
    QVERIFY(scene.edit->isVisible());
    QTRY_COMPARE(scene.edit->geometry(), scene.label->rect());
    scene.widget.showLog(false);
    QVERIFY(!scene.edit->isVisible());
}

void tst_ZrLogWidget::markupIsShownAsItStands_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("picture") << QStringLiteral("<img src=\"ZRData:image/dataservice.gif\">");
    QTest::newRow("link") << QStringLiteral("<a href=\"file:///\">x</a>");
    QTest::newRow("document") << QStringLiteral("<!DOCTYPE html><html><body><b>x</b></body></html>");
    QTest::newRow("ampersand") << QStringLiteral("a & b &amp; c");
}

void tst_ZrLogWidget::markupIsShownAsItStands()
{
    QFETCH(QString, text);
    LogScene scene(m_scene->stage());
    scene.widget.setLog(text);
    QCOMPARE(scene.edit->toPlainText(), text);
    scene.widget.appendLog(text);
    QCOMPARE(scene.edit->toPlainText(), text + text + '\n');
}

void tst_ZrLogWidget::aLineWithoutEndStaysInside()
{
    LogScene scene(m_scene->stage());
    scene.widget.resize(300, 200);
    scene.widget.showLog(true);
    scene.widget.show();
    const QString endless(100 * 1024, 'x');
    scene.widget.setLog(endless);
    QVERIFY(scene.edit->toPlainText().startsWith(QString(1000, 'x')));
    QCOMPARE(scene.edit->horizontalScrollBar()->maximum(), 0);
    scene.widget.appendLog(endless);
    QCOMPARE(scene.edit->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(scene.widget.size(), QSize(300, 200));
    QVERIFY(scene.edit->toPlainText().endsWith(ZrPlainText::mark() + '\n'));
}

void tst_ZrLogWidget::withoutTheFileOnlyTheLogIsThere()
{
    m_scene.reset();
    FrameScene empty;
    QVERIFY(empty.startOwn(QString()));
    LogScene scene(empty.stage());
    QVERIFY(scene.movie->currentPixmap().isNull());
    scene.widget.resize(200, 100);
    scene.widget.show();
    scene.widget.startLogger();
    QVERIFY(!scene.isMoving());
    scene.widget.stopLogger();
    scene.widget.showLog(true);
    scene.widget.appendLog(QStringLiteral("line"));
    QCOMPARE(scene.edit->toPlainText(), QStringLiteral("line\n"));
    QVERIFY(scene.edit->isVisible());
}

void tst_ZrLogWidget::aSheetThatIsMissingChangesNothing()
{
    LogScene scene(m_scene->stage());
    scene.widget.loadSkin(QStringLiteral("QTextEdit { color: #010203; }"));
    scene.widget.loadSkin(QVariant());
    QCOMPARE(scene.widget.styleSheet(), QStringLiteral("QTextEdit { color: #010203; }"));
}

void tst_ZrLogWidget::theShippedSkinsGiveASheet_data()
{
    QTest::addColumn<QString>("skin");

    QTest::newRow("dark") << QStringLiteral("dark");
    QTest::newRow("light") << QStringLiteral("light");
}

void tst_ZrLogWidget::theShippedSkinsGiveASheet()
{
    QFETCH(QString, skin);
    QVERIFY(m_scene->host.setSkin(skin));
    LogScene scene(m_scene->stage());
    QVERIFY(scene.widget.styleSheet().contains(QStringLiteral("ZrLogWidget")));
    scene.widget.resize(200, 120);
    // The sheet's ground is there, behind the picture that lets it show through.
    const QImage image = FrameScene::shot(&scene.widget);
    QCOMPARE(image.pixelColor(1, 1).alpha(), 255);
}

void tst_ZrLogWidget::thePartsHaveAccessibleNames()
{
    const LogScene scene(m_scene->stage());
    QVERIFY(!scene.label->accessibleName().isEmpty());
    QVERIFY(!scene.edit->accessibleName().isEmpty());
}

ZR_TEST_MAIN(tst_ZrLogWidget)
#include "tst_zrlogwidget.moc"
