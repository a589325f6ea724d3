#include "FrameScene.h"
#include "ZrLoadingFrame.h"
#include "ZrTestMain.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>

#include <memory>

namespace {
constexpr int hour = 3600 * 1000; // ms: no timer of that length ends during a test
const QColor red(200, 10, 10);
const QColor green(10, 200, 10);
const QColor blue(10, 10, 200);
} // namespace

class tst_ZrLoadingFrame : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void theFormIsAsDrawn();
    void aNewFrameKnowsNoPictures();
    void stepsGoThroughThePicturesAndBeginAgain();
    void numbersHaveTwoDigits();
    void withoutACountTheFirstPictureStays();
    void aMissingPictureLeavesTheLastOne();
    void anUnreadablePictureLeavesTheLastOne();
    void aPathThatLeavesTheSkinShowsNothing();
    void stateOneShowsAndAnimates();
    void stateOneWhileLoadingRestartsNothing();
    void anyOtherStateEnds_data();
    void anyOtherStateEnds();
    void aNewIntervalCountsWhileItRuns();
    void anIntervalOfNothingIsNoHarm();
    void theGroundIsFilled();
    void aSheetThatIsMissingChangesNothing();
    void aChangeOfSkinChangesThePictureAtOnce();
    void theShippedSkinsHaveAllPictures_data();
    void theShippedSkinsHaveAllPictures();
    void theLabelHasAnAccessibleName();

private:
    /// A frame with three pictures: red, green, blue.
    std::unique_ptr<ZrLoadingFrame> makeFrame();
    static QColor picture(const ZrLoadingFrame &frame);

    std::unique_ptr<FrameScene> m_scene;
};

void tst_ZrLoadingFrame::init()
{
    m_scene = std::make_unique<FrameScene>();
    QVERIFY(m_scene->writePicture("skins/a/run/01.png", red));
    QVERIFY(m_scene->writePicture("skins/a/run/02.png", green));
    QVERIFY(m_scene->writePicture("skins/a/run/03.png", blue));
    QVERIFY(m_scene->startOwn("a"));
}

void tst_ZrLoadingFrame::cleanup()
{
    m_scene.reset();
}

std::unique_ptr<ZrLoadingFrame> tst_ZrLoadingFrame::makeFrame()
{
    auto frame = std::make_unique<ZrLoadingFrame>(m_scene->stage());
    frame->setImagePath(QUrl(QStringLiteral("run")));
    frame->setLoadingImageCount(3);
    frame->setTimerInterval(hour);
    return frame;
}

QColor tst_ZrLoadingFrame::picture(const ZrLoadingFrame &frame)
{
    const QPixmap shown =
        frame.findChild<QLabel *>(QStringLiteral("LoadingImageLabel"))->pixmap(Qt::ReturnByValue);
    return shown.isNull() ? QColor() : shown.toImage().pixelColor(0, 0);
}

void tst_ZrLoadingFrame::theFormIsAsDrawn()
{
    const ZrLoadingFrame frame;
    QCOMPARE(frame.objectName(), QStringLiteral("ZrLoadingFrame"));
    QCOMPARE(frame.size(), QSize(429, 254));
    auto *const column = frame.findChild<QVBoxLayout *>(QStringLiteral("verticalLayout"));
    QVERIFY(column);
    QCOMPARE(frame.layout(), column);
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->count(), 3);
    QCOMPARE(column->itemAt(0)->spacerItem()->sizeHint(), QSize(20, 113));
    QCOMPARE(column->itemAt(2)->spacerItem()->sizeHint(), QSize(20, 113));
    auto *const row = frame.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    QVERIFY(row);
    QCOMPARE(column->itemAt(1)->layout(), row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->itemAt(0)->spacerItem()->sizeHint(), QSize(40, 20));
    QCOMPARE(row->itemAt(1)->widget()->objectName(), QStringLiteral("LoadingImageLabel"));
    QCOMPARE(row->itemAt(2)->spacerItem()->sizeHint(), QSize(40, 20));
}

void tst_ZrLoadingFrame::aNewFrameKnowsNoPictures()
{
    const ZrLoadingFrame frame;
    QCOMPARE(frame.loadingImageCount(), 0);
    QCOMPARE(frame.timerInterval(), 500);
    QVERIFY(frame.imagePath().isEmpty());
    QVERIFY(!picture(frame).isValid());
}

void tst_ZrLoadingFrame::stepsGoThroughThePicturesAndBeginAgain()
{
    const auto frame = makeFrame();
    for (const QColor &expected : {red, green, blue, red, green}) {
        frame->slotTimerOut();
        QCOMPARE(picture(*frame), expected);
    }
}

void tst_ZrLoadingFrame::numbersHaveTwoDigits()
{
    QVERIFY(m_scene->writePicture("skins/a/run/10.png", Qt::black));
    QVERIFY(m_scene->writePicture("skins/a/run/100.png", Qt::white));
    const auto frame = makeFrame();
    frame->setLoadingImageCount(100);
    for (int i = 0; i < 10; ++i)
        frame->slotTimerOut();
    QCOMPARE(picture(*frame), QColor(Qt::black));
    for (int i = 0; i < 90; ++i)
        frame->slotTimerOut();
    QCOMPARE(picture(*frame), QColor(Qt::white));
}

void tst_ZrLoadingFrame::withoutACountTheFirstPictureStays()
{
    const auto frame = makeFrame();
    for (const int count : {0, -1, 1}) {
        frame->setLoadingImageCount(count);
        for (int i = 0; i < 3; ++i) {
            frame->slotTimerOut();
            QCOMPARE(picture(*frame), red);
        }
    }
}

void tst_ZrLoadingFrame::aMissingPictureLeavesTheLastOne()
{
    const auto frame = makeFrame();
    frame->setLoadingImageCount(4);
    for (int i = 0; i < 4; ++i)
        frame->slotTimerOut();
    QCOMPARE(picture(*frame), blue);
    frame->slotTimerOut();
    QCOMPARE(picture(*frame), red);
}

void tst_ZrLoadingFrame::anUnreadablePictureLeavesTheLastOne()
{
    QVERIFY(m_scene->writeFile("skins/a/run/02.png", "no picture"));
    const auto frame = makeFrame();
    frame->slotTimerOut();
    frame->slotTimerOut();
    QCOMPARE(picture(*frame), red);
}

void tst_ZrLoadingFrame::aPathThatLeavesTheSkinShowsNothing()
{
    QVERIFY(m_scene->writePicture("skins/b/run/01.png", red));
    const auto frame = makeFrame();
    frame->setImagePath(QUrl(QStringLiteral("../b/run")));
    frame->slotTimerOut();
    QVERIFY(!picture(*frame).isValid());
}

void tst_ZrLoadingFrame::stateOneShowsAndAnimates()
{
    const auto frame = makeFrame();
    frame->setTimerInterval(1);
    QVERIFY(!frame->isVisible());
    frame->setLoadingState(1);
    QVERIFY(frame->isVisible());
    QTRY_COMPARE(picture(*frame), blue);
    QTRY_COMPARE(picture(*frame), red);
}

void tst_ZrLoadingFrame::stateOneWhileLoadingRestartsNothing()
{
    const auto frame = makeFrame();
    frame->setLoadingState(1);
    frame->slotTimerOut();
    frame->slotTimerOut();
    frame->hide(); // by somebody else: the state shows it again
    frame->setLoadingState(1);
    QVERIFY(frame->isVisible());
    frame->slotTimerOut();
    QCOMPARE(picture(*frame), blue);
}

void tst_ZrLoadingFrame::anyOtherStateEnds_data()
{
    QTest::addColumn<int>("state");

    QTest::newRow("finished") << 2;
    QTest::newRow("timed out") << 3;
    QTest::newRow("none") << 0;
    QTest::newRow("unknown") << -7;
}

void tst_ZrLoadingFrame::anyOtherStateEnds()
{
    QFETCH(int, state);
    const auto frame = makeFrame();
    frame->setLoadingState(1);
    frame->slotTimerOut();
    frame->slotTimerOut();
    frame->setLoadingState(state);
    QVERIFY(!frame->isVisible());
    frame->setLoadingState(state);
    QVERIFY(!frame->isVisible());
    // A timer that still ran would keep the place.
    frame->setLoadingState(1);
    frame->slotTimerOut();
    QCOMPARE(picture(*frame), red);
}

void tst_ZrLoadingFrame::aNewIntervalCountsWhileItRuns()
{
    const auto frame = makeFrame();
    frame->setLoadingState(1);
    frame->setTimerInterval(1);
    QCOMPARE(frame->timerInterval(), 1);
    QTRY_COMPARE(picture(*frame), red);
}

void tst_ZrLoadingFrame::anIntervalOfNothingIsNoHarm()
{
    for (const int interval : {0, -5}) {
        const auto frame = makeFrame();
        frame->setTimerInterval(interval);
        frame->setLoadingState(1);
        QTRY_COMPARE(picture(*frame), red);
    }
}

void tst_ZrLoadingFrame::theGroundIsFilled()
{
    ZrLoadingFrame frame;
    frame.resize(60, 40);
    frame.setBackgroundColor(QColor(1, 2, 3));
    QImage image = FrameScene::shot(&frame);
    QCOMPARE(image.pixelColor(0, 0), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(59, 39), QColor(1, 2, 3));
    frame.setBackgroundColor(QColor(0, 0, 0, 100));
    image = FrameScene::shot(&frame);
    QCOMPARE(image.pixelColor(30, 20).alpha(), 100);
}

void tst_ZrLoadingFrame::aSheetThatIsMissingChangesNothing()
{
    ZrLoadingFrame frame;
    frame.loadSkin(QStringLiteral("ZrLoadingFrame { qproperty-loadingimagecount: 5; }"));
    const QString sheet = frame.styleSheet();
    frame.loadSkin(QVariant());
    QCOMPARE(frame.styleSheet(), sheet);
    frame.ensurePolished();
    QCOMPARE(frame.loadingImageCount(), 5);
}

void tst_ZrLoadingFrame::aChangeOfSkinChangesThePictureAtOnce()
{
    QVERIFY(m_scene->writePicture("skins/b/run/02.png", Qt::white));
    const auto frame = makeFrame();
    frame->slotTimerOut();
    frame->slotTimerOut();
    QVERIFY(m_scene->host.setSkin("b"));
    QCOMPARE(picture(*frame), QColor(Qt::white));
    // That skin has no third picture.
    frame->slotTimerOut();
    QCOMPARE(picture(*frame), QColor(Qt::white));
}

void tst_ZrLoadingFrame::theShippedSkinsHaveAllPictures_data()
{
    QTest::addColumn<QString>("skin");

    QTest::newRow("dark") << QStringLiteral("dark");
    QTest::newRow("light") << QStringLiteral("light");
}

void tst_ZrLoadingFrame::theShippedSkinsHaveAllPictures()
{
    QFETCH(QString, skin);
    m_scene.reset();
    FrameScene shipped;
    QVERIFY(shipped.startShipped(skin));
    ZrLoadingFrame frame;
    frame.ensurePolished();
    QVERIFY(frame.backgroundColor().isValid());
    QVERIFY(frame.timerInterval() > 0);
    const int count = frame.loadingImageCount();
    QVERIFY(count > 1);
    auto *const label = frame.findChild<QLabel *>(QStringLiteral("LoadingImageLabel"));
    QList<QImage> seen;
    for (int i = 0; i < count; ++i) {
        frame.slotTimerOut();
        const QImage image = label->pixmap(Qt::ReturnByValue).toImage();
        QVERIFY2(!seen.contains(image), qPrintable(QString::number(i + 1)));
        seen.append(image);
    }
    frame.slotTimerOut();
    QCOMPARE(label->pixmap(Qt::ReturnByValue).toImage(), seen.first());
}

void tst_ZrLoadingFrame::theLabelHasAnAccessibleName()
{
    const ZrLoadingFrame frame;
    QVERIFY(!frame.findChild<QLabel *>(QStringLiteral("LoadingImageLabel"))->accessibleName().isEmpty());
}

ZR_TEST_MAIN(tst_ZrLoadingFrame)
#include "tst_zrloadingframe.moc"
